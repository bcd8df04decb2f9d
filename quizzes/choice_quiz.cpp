#include "quizzes/choice_quiz.h"

#include "platform/desktop/input_gate.h"

#include <utility>

namespace quizzes {

ChoiceQuiz::ChoiceQuiz(core::Context& context, const QuizEntry& entry) : QuestionQuiz(context, entry) {
    for (std::size_t i = 0; i < choices().size(); ++i)
        choices()[i]->onClick = [this, i] { chosen(i); };
    if (entry.choicesLightUp)
        lightUpChoices();
}

void ChoiceQuiz::lightUpChoices() {
    for (Label* choice : choices())
        choice->onMouseMove = [this, choice] {
            if (hoverOpen())
                choice->setForeColor(platform::colour::red);
        };
    // The choices leave the hover state as it is, so they turn black at every move over the form.
    onMouseMove = [this, crossed = std::move(onMouseMove)] {
        crossed();
        for (Label* choice : choices())
            choice->setForeColor(platform::colour::black);
    };
}

void ChoiceQuiz::showQuestion(bool) {
    fillAllShown();
    // Where both questions offer the same words the choices look the same.
    for (const Label* choice : choices())
        platform::noteChange(*choice);
}

void ChoiceQuiz::chosen(std::size_t index) {
    if (!gateOpen())
        return;
    positionRow();
    const bool either = entry().eitherAnswer.holds(session().recordNo);
    announce(judgeChoice(entry().compare, choices()[index]->caption(), answer(0),
                         either ? answer(1) : QString(), either));
    advance();
}

}  // namespace quizzes
