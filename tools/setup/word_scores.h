#pragma once

#include "tools/coursefiles/course_source.h"

#include <QDir>

namespace tools {

/// Lets learners do the words of steps that had none when they finished them: where such a row of the score
/// stores below `root` holds no result of its words, they count as not done. No other result is touched. A
/// store that cannot be written now is left for the next time.
void openWordParts(const QDir& root, const BuiltTable& steps);

}  // namespace tools
