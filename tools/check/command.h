#pragma once

#include <QStringList>

namespace tools {

/// `course check`: holds text tables, or a finished install, against every demand of the screens.
int runCheck(const QStringList& arguments);

}  // namespace tools
