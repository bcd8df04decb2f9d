#include "lessons/drill_maker.h"

#include "lessons/answer_list_drill.h"
#include "lessons/cloze_drill.h"
#include "lessons/drill_screen.h"
#include "lessons/reading_page.h"
#include "lessons/set_drill.h"

namespace lessons {

using catalogue::Flow;

core::Screen* makeDrill(core::Context& context, const Drill& drill) {
    switch (drill.flow) {
        case Flow::Table: return new DrillScreen(context, drill);
        case Flow::AnswerList: return new AnswerListDrill(context, drill);
        case Flow::Set: return new SetDrill(context, drill);
        case Flow::Cloze: return new ClozeDrill(context, drill);
        case Flow::Reading: return new ReadingPage(context, drill);
    }
    return nullptr;
}

}  // namespace lessons
