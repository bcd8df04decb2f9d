#include "quizzes/sentence_quiz.h"

#include "catalogue/judging.h"
#include "quizzes/fitted_text.h"

namespace quizzes {

using catalogue::SentenceFields;
using catalogue::sentenceFields;

namespace {

// The places of the two labels in the entry's list of what is shown.
constexpr std::size_t word = 0;
constexpr std::size_t korean = 1;

}  // namespace

SentenceQuiz::SentenceQuiz(core::Context& context, const QuizEntry& entry) : QuestionQuiz(context, entry) {
    addHeading("lblHeading(0)", QRect(cardLeft, 392, cardWidth, 20), "Type Correct Answer Here");
    txtWord_ =
        &addTextBox(QStringLiteral("txtWord"), QRect(cardLeft, 416, cardWidth, 56), TextRole::Sentence);
    txtWord_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    txtWord_->setTextMargins(12, 0, 12, 0);
    txtWord_->setAccessibleName(QStringLiteral("The sentence"));
    txtWord_->onKeyDown = [this](int code) {
        if (code == platform::key::enter)
            judge(true);
    };
    Label& rule = addLabel(QStringLiteral("lblRule"), QRect(cardLeft, 490, cardWidth, 24), TextRole::Row,
                           QStringLiteral("대문자, 띄어쓰기 모두 일치하여야 합니다"));
    rule.setAlignment(Qt::AlignCenter);
    addHint(524);
}

void SentenceQuiz::showQuestion(bool) {
    const SentenceFields fields = sentenceFields(session().recordNo);
    if (fields.word != nullptr)
        showFitted(shownLabel(word), required(fields.word), TextRole::Sentence, scale());
    if (fields.korean != nullptr)
        showFitted(shownLabel(korean), required(fields.korean), TextRole::Sentence, scale());
    txtWord_->setText(fillsForTeacher() ? answer(0) : QString());
    txtWord_->setFocus();
}

void SentenceQuiz::judge(bool byEnter) {
    if (!gateOpen())
        return;
    if (txtWord_->text().isEmpty()) {
        context().boxes.notice(QStringLiteral("답을 입력하십시오."));
        return;
    }
    positionRow();
    announce(judgeSentence(entry().compare, txtWord_->text(), answer(0)));
    if (byEnter && onLastQuestion())
        txtWord_->setText(QString());
    advance();
}

}  // namespace quizzes
