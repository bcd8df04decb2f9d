#pragma once

#include "lessons/drill_catalogue.h"

#include "core/screen.h"

namespace lessons {

/// Makes the screen of a catalogue row.
core::Screen* makeDrill(core::Context& context, const Drill& drill);

}  // namespace lessons
