#include "lessons/lessons.h"

#include "lessons/drill_screen.h"

namespace lessons {

core::Screen* makeLesson(core::Context& context, const Drill& drill) {
    return new DrillScreen(context, drill);
}

}  // namespace lessons
