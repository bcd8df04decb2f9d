#include "quizzes/button_quiz.h"

#include "catalogue/judging.h"
#include "platform/desktop/input_gate.h"

namespace quizzes {

using catalogue::buttonCount;
using catalogue::ButtonSet;
using catalogue::buttonSet;

namespace {

constexpr int buttonWidth = 146;
constexpr int buttonHeight = 70;
constexpr int buttonTop = 350;
constexpr int buttonPitch = (cardWidth - buttonWidth) / (buttonCount - 1);
const QString unneeded = QStringLiteral("Not Need");

}  // namespace

ButtonQuiz::ButtonQuiz(core::Context& context, const QuizEntry& entry) : QuestionQuiz(context, entry) {
    lblMemo_ = &addLabel(QStringLiteral("lblMemo"), QRect(cardLeft, 136, cardWidth, 28), TextRole::Row);
    lblMemo_->setAlignment(Qt::AlignCenter);
    for (int i = 0; i < buttonCount; ++i) {
        const QRect place(cardLeft + i * buttonPitch, buttonTop, buttonWidth, buttonHeight);
        platform::CommandButton& button = addButton(cmdOne_, place, unneeded);
        button.setFont(platform::roleFont(TextRole::Choice, scale()));
        applyLook(button);
        button.setCursor(Qt::PointingHandCursor);
        button.setAutoDefault(true);
        button.onClick = [this, i] { pressed(i); };
    }
}

void ButtonQuiz::prepare() {
    const ButtonSet set = buttonSet(session().recordNo);
    const int count = static_cast<int>(set.captions.size());
    const int left = cardLeft + (buttonCount - count) * buttonPitch / 2;
    for (int i = 0; i < buttonCount; ++i) {
        platform::CommandButton& button = cmdOne_(i);
        button.setVisible(i < count);
        if (i >= count)
            continue;
        button.setText(QString::fromUtf8(set.captions[static_cast<std::size_t>(i)]));
        button.setAccessibleName(button.text());
        movePlace(button, left + i * buttonPitch, buttonTop);
    }
    lblMemo_->setCaption(QString::fromUtf8(set.memo));
}

void ButtonQuiz::showQuestion(bool) {
    fillAllShown();
    // The buttons keep their captions and answer another question.
    for (const platform::CommandButton* button : cmdOne_)
        platform::noteChange(*button);
}

void ButtonQuiz::pressed(int index) {
    if (!gateOpen())
        return;
    positionRow();
    announce(judgeButton(session().recordNo, index, cmdOne_(index).text(), answer(0)));
    advance();
}

void ButtonQuiz::chooseByDigit(int number) {
    if (cmdOne_(number - 1).isVisible())
        pressed(number - 1);
}

}  // namespace quizzes
