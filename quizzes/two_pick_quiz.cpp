#include "quizzes/two_pick_quiz.h"

#include "quizzes/fitted_text.h"

namespace quizzes {

namespace {

constexpr std::size_t choicesPerPair = 2;

}  // namespace

TwoPickQuiz::TwoPickQuiz(core::Context& context, const QuizEntry& entry) : QuestionQuiz(context, entry) {
    const QString first = QStringLiteral("Answered Word (1)");
    const QString second = QStringLiteral("Answered Word (2)");
    addHeading("lblHeading(0)", QRect(68, 476, 366, 20), "Answered Word (1)");
    addHeading("lblHeading(1)", QRect(462, 476, 366, 20), "Answered Word (2)");
    lblWord8_ = &addSlot("lblWord8", QRect(68, 500, 366, 56), first);
    lblWord9_ = &addSlot("lblWord9", QRect(462, 500, 366, 56), second);
    for (std::size_t i = 0; i < choices().size(); ++i) {
        const Label& choice = *choices()[i];
        Label& slot = i < choicesPerPair ? *lblWord8_ : *lblWord9_;
        choices()[i]->onClick = [this, &choice, &slot] {
            showFitted(slot, choice.caption(), TextRole::Choice, scale());
        };
    }
    addHint(578);
}

void TwoPickQuiz::showQuestion(bool) {
    fillAllShown();
    lblWord8_->setCaption(QString());
    lblWord9_->setCaption(QString());
}

void TwoPickQuiz::check() {
    if (lblWord8_->caption().isEmpty() || lblWord9_->caption().isEmpty()) {
        context().boxes.notice(QStringLiteral("답을 선택하십시오."));
        return;
    }
    positionRow();
    announce(judgePicks(entry().compare, lblWord8_->caption(), lblWord9_->caption(), answer(0), answer(1)));
    advance();
}

}  // namespace quizzes
