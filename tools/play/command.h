#pragma once

#include <QStringList>

namespace tools {

/// `course play`: plays every step of a course through the real screens and tells the score of each.
int runPlay(const QStringList& arguments);

}  // namespace tools
