#include "quizzes/word_box_quiz.h"

#include "catalogue/quizzes.h"

namespace quizzes {

using catalogue::TeacherHelp;

namespace {

constexpr int boxCount = 4;
constexpr int boxWidth = 185;
constexpr int boxPitch = 201;
constexpr int boxTop = 410;
constexpr std::size_t sentence = 0;
constexpr std::size_t korean = 1;
const QString noKorean = QStringLiteral("Blank");

}  // namespace

WordBoxQuiz::WordBoxQuiz(core::Context& context, const QuizEntry& entry) : QuestionQuiz(context, entry) {
    for (int i = 0; i < boxCount; ++i) {
        TextBox& box =
            addTextBox(txtWord_, QRect(cardLeft + i * boxPitch, boxTop, boxWidth, 56), TextRole::Letter);
        box.setAccessibleName(QStringLiteral("Word %1").arg(i + 1));
        box.onKeyDown = [this, i](int code) { keyDown(i, code); };
        box.hide();
    }
    addHint(496);
}

void WordBoxQuiz::start() {
    loadBackground(QStringLiteral("interface\\quiz.jpg"));
    startRun();
}

void WordBoxQuiz::showQuestion(bool) {
    fillShown(sentence);
    if (required("q2") != noKorean)
        fillShown(korean);
    for (TextBox* box : txtWord_) {
        box->hide();
        box->setText(QString());
    }
    blankCount_ = readBlankCount();
    const int left = cardLeft + (boxCount - askedCount()) * boxPitch / 2;
    for (int i = 0; i < blankCount_; ++i) {
        movePlace(txtWord_(i), left + i * boxPitch, boxTop);
        txtWord_(i).show();
    }
    txtWord_(0).setFocus();
}

Int16 WordBoxQuiz::readBlankCount() const {
    const QString count = required("q3");
    const auto fail = [&](platform::ErrorCode code) {
        failRows(code, QStringLiteral("the question \"%1\" asks for %2 boxes in q3, and the screen has %3.")
                           .arg(required("q1"), count, QString::number(boxCount)));
    };
    Int16 asked;
    try {
        asked = platform::textToInt16(count);
    } catch (const platform::RuntimeError& error) {
        fail(error.code());
    }
    if (asked > boxCount)
        fail(platform::ErrorCode::SubscriptOutOfRange);
    return asked;
}

int WordBoxQuiz::askedCount() const {
    return blankCount_ >= 1 && blankCount_ <= boxCount ? static_cast<int>(blankCount_) : 0;
}

void WordBoxQuiz::keyDown(int index, int code) {
    if (!gateOpen())
        return;
    if (code == platform::key::enter) {
        if (index < blankCount_ - 1)
            txtWord_(index + 1).setFocus();
        else
            judge();
    }
    if ((code == platform::key::backspace || code == platform::key::left) && index > 0)
        txtWord_(index - 1).selectAndFocus();
}

void WordBoxQuiz::check() {
    if (!gateOpen())
        return;
    // A teacher moves through the quiz with one click a question, whatever the boxes hold.
    if (entry().teacherHelp == TeacherHelp::PassesByQuiz && session().isTeacher()) {
        announce({Outcome::Right});
        advance();
        return;
    }
    judge();
}

void WordBoxQuiz::judge() {
    for (int i = 0; i < askedCount(); ++i) {
        if (!txtWord_(i).text().isEmpty())
            continue;
        context().boxes.notice(QStringLiteral("단어를 입력하십시오."));
        return;
    }
    positionRow();
    announce(judgeBoxes());
    advance();
}

Verdict WordBoxQuiz::judgeBoxes() {
    const QString a1 = answer(0);
    const qsizetype words = answerWords(a1).size();
    if (words > boxCount)
        failRows(platform::ErrorCode::SubscriptOutOfRange,
                 QStringLiteral("the answer \"%1\" has %2 words, and the screen has room for %3.")
                     .arg(a1, QString::number(words), QString::number(boxCount)));
    QStringList typed;
    for (int i = 0; i < askedCount(); ++i)
        typed.append(txtWord_(i).text());
    return judgeWords(entry().compare, typed, a1);
}

}  // namespace quizzes
