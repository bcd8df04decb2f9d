#pragma once

#include "tools/coursefiles/course_source.h"
#include "tools/media/slides.h"

namespace tools {

/// What the videos of a course are made of: one for each row of tips that names a video, titled by its unit;
/// where a unit has several, they are counted. In the order of their numbers.
std::vector<VideoText> videoTexts(const CourseSource& course);

}  // namespace tools
