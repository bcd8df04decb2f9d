#pragma once

#include "catalogue/drills.h"

#include "core/screen.h"

namespace lessons {

using catalogue::Drill;

/// Makes the screen of a catalogue row.
core::Screen* makeDrill(core::Context& context, const Drill& drill);

}  // namespace lessons
