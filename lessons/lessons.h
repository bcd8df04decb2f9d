#pragma once

#include "lessons/drill_catalogue.h"

#include "core/screen.h"

namespace lessons {

/// Makes the screen of a catalogue row.
core::Screen* makeLesson(core::Context& context, const Drill& drill);

}  // namespace lessons
