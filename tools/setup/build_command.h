#pragma once

#include <QStringList>

namespace tools {

/// `course build`: makes the stores of an install from text tables that have no errors.
int runBuild(const QStringList& arguments);

}  // namespace tools
