#include "quizzes/choice_quiz.h"

namespace quizzes {

ChoiceQuiz::ChoiceQuiz(core::Context& context, const QuizEntry& entry) : QuestionQuiz(context, entry) {
    for (std::size_t i = 0; i < choices().size(); ++i) {
        Label& choice = *choices()[i];
        choice.onClick = [this, i] { chosen(i); };
        if (entry.choicesLightUp)
            choice.onMouseMove = [this, &choice] {
                if (spendHover())
                    choice.setForeColor(platform::colour::red);
            };
    }
}

void ChoiceQuiz::restoreHover() {
    for (Label* choice : choices())
        choice->setForeColor(platform::colour::black);
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
