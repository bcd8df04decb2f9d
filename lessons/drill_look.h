#pragma once

#include "catalogue/drills.h"
#include "course/exercise_screen.h"

namespace lessons {

/// The buttons and pictures around a drill.
course::ChromeLayout chromeOf(const catalogue::Drill& drill);

/// The letters of a drill's boxes.
platform::TextRole boxRole(const catalogue::Drill& drill);

/// The paper of a box by its index.
QRgb boxColour(const catalogue::Drill& drill, int box);

}  // namespace lessons
