#include "quizzes/wrong_word_quiz.h"

#include "catalogue/quizzes.h"
#include "quizzes/fitted_text.h"

#include <QFontMetrics>

#include <algorithm>
#include <cmath>

namespace quizzes {

using catalogue::Look;

namespace {

constexpr int wordCount = 14;
constexpr int wordsTop = 252;
constexpr int wordsHeight = 196;
constexpr int wordHeight = 40;
constexpr int wordGap = 8;
constexpr int wordPadding = 32;
constexpr int leastWordWidth = 44;

}  // namespace

WrongWordQuiz::WrongWordQuiz(core::Context& context, const QuizEntry& entry) : QuestionQuiz(context, entry) {
    for (int i = 0; i < wordCount; ++i) {
        Label& word =
            addLabel(lblWord2_, QRect(cardLeft, wordsTop, leastWordWidth, wordHeight), TextRole::Choice);
        applyLook(word, Look::Choice);
        word.setWordWrap(false);
        makeClickable(word);
        word.onClick = [this, i] { wordClicked(i); };
        word.hide();
    }
    addHeading("lblHeading(0)", QRect(68, 470, 366, 20), "Selected Word ");
    addHeading("lblHeading(1)", QRect(462, 470, 366, 20), "Answered Word ");
    lblWord3_ = &addSlot("lblWord3", QRect(68, 494, 366, 56), QStringLiteral("Selected word"));
    txtWord_ = &addTextBox(QStringLiteral("txtWord"), QRect(462, 494, 366, 56), TextRole::Choice);
    txtWord_->setAccessibleName(QStringLiteral("Answered word"));
    txtWord_->onKeyDown = [this](int code) {
        if (code == platform::key::enter)
            judge(true);
    };
    addHint(574);
}

void WrongWordQuiz::showQuestion(bool first) {
    txtWord_->setText(fillsForTeacher() ? answer(0) : QString());
    fillAllShown();
    const QString sentence = required("q1");
    ShowSentence(first ? sentence : sentence.trimmed());
}

void WrongWordQuiz::ShowSentence(const QString& sentence) {
    for (Label* word : lblWord2_)
        word->hide();
    const QStringList words = cutSentence(sentence);
    if (words.size() > wordCount)
        failRows(platform::ErrorCode::SubscriptOutOfRange,
                 QStringLiteral("the sentence \"%1\" has %2 words, and the screen has room for %3.")
                     .arg(sentence, QString::number(words.size()), QString::number(wordCount)));
    for (qsizetype i = 0; i < words.size(); ++i)
        lblWord2_(static_cast<int>(i)).setCaption(words[i]);
    layOutWords(static_cast<int>(words.size()));
    lblWord3_->setCaption(QString());
}

int WrongWordQuiz::widthOf(const Label& word) const {
    const double text = QFontMetrics(word.font()).horizontalAdvance(word.caption()) / scale();
    return std::clamp(static_cast<int>(std::ceil(text)) + wordPadding, leastWordWidth, cardWidth);
}

void WrongWordQuiz::layOutWords(int count) {
    std::vector<std::vector<int>> lines(1);
    int room = cardWidth;
    for (int i = 0; i < count; ++i) {
        const int width = widthOf(lblWord2_(i));
        if (width > room && !lines.back().empty()) {
            lines.emplace_back();
            room = cardWidth;
        }
        lines.back().push_back(i);
        room -= width + wordGap;
    }
    const int used = static_cast<int>(lines.size()) * (wordHeight + wordGap) - wordGap;
    int top = wordsTop + std::max(0, (wordsHeight - used) / 2);
    for (const std::vector<int>& line : lines) {
        placeLine(line, top);
        top += wordHeight + wordGap;
    }
}

void WrongWordQuiz::placeLine(const std::vector<int>& words, int top) {
    int width = -wordGap;
    for (const int word : words)
        width += widthOf(lblWord2_(word)) + wordGap;
    int left = cardLeft + (cardWidth - width) / 2;
    for (const int index : words) {
        Label& word = lblWord2_(index);
        place(word, QRect(left, top, widthOf(word), wordHeight));
        word.show();
        left += widthOf(word) + wordGap;
    }
}

void WrongWordQuiz::wordClicked(int index) {
    showFitted(*lblWord3_, lblWord2_(index).caption(), TextRole::Choice, scale());
    txtWord_->setFocus();
}

void WrongWordQuiz::chooseByDigit(int number) {
    if (lblWord2_(number - 1).isVisible())
        wordClicked(number - 1);
}

void WrongWordQuiz::judge(bool byEnter) {
    if (!gateOpen())
        return;
    if (lblWord3_->caption().isEmpty()) {
        context().boxes.notice(QStringLiteral("문장에서 틀린 단어를 선택하십시오."));
        return;
    }
    if (txtWord_->text().isEmpty()) {
        context().boxes.notice(QStringLiteral("답을 입력하십시오."));
        if (!byEnter)
            txtWord_->setFocus();
        return;
    }
    positionRow();
    announce(judgeCorrection(session().recordNo, txtWord_->text(), answer(0), answer(1), byEnter));
    if (byEnter)
        txtWord_->setText(QString());
    advance();
}

}  // namespace quizzes
