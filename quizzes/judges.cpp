#include "quizzes/judges.h"

#include "core/text.h"
#include "platform/letter_case.h"

#include <algorithm>

namespace quizzes {

namespace {

const QString wrongChoice = QStringLiteral("틀린 답을 선택하였습니다.\n\n");
const QString wrongTyping = QStringLiteral("틀린 답을 입력하였습니다.\n\n");
const QString rightSentence = QStringLiteral("올바른 문장은 ");

Verdict right() {
    return {Outcome::Right};
}

Verdict wrong(const QString& message) {
    return {Outcome::Wrong, message};
}

const QString noArticle = QStringLiteral("Blank");
constexpr int noArticleButton = 3;

Verdict judgeArticle(int index, const QString& a1) {
    constexpr std::array articles{"a", "an", "the"};
    if (index > noArticleButton)
        return {};
    const bool isRight = index == noArticleButton
                             ? a1 == noArticle
                             : a1.toLower() == QLatin1String(articles[static_cast<std::size_t>(index)]);
    if (isRight)
        return right();
    if (a1 == noArticle)
        return wrong(wrongChoice + QStringLiteral("관사가 필요없는 문장입니다."));
    return wrong(wrongChoice + QStringLiteral("정답은 ") + a1);
}

}  // namespace

bool matches(Compare compare, const QString& answer, const QString& field) {
    switch (compare) {
        case Compare::Exact: return answer == field;
        case Compare::LowerCase: return platform::sameButForCase(answer, field);
        case Compare::TrimmedLowerCase: return platform::sameButForCase(answer.trimmed(), field.trimmed());
        case Compare::LetterByLetter: return answer.startsWith(field, Qt::CaseSensitive);
        case Compare::ByRecord: break;
    }
    return false;
}

Verdict judgeChoice(Compare compare, const QString& choice, const QString& a1, const QString& a2,
                    bool either) {
    if (matches(compare, choice, a1) || (either && matches(compare, choice, a2)))
        return right();
    return wrong(wrongChoice + rightSentence + a1);
}

Verdict judgePicks(Compare compare, const QString& first, const QString& second, const QString& a1,
                   const QString& a2) {
    if (matches(compare, first, a1) && matches(compare, second, a2))
        return right();
    return wrong(QStringLiteral("올바른 답은 ") + a1 + QStringLiteral(" / ") + a2);
}

Verdict judgeCorrection(int recordNo, const QString& typed, const QString& a1, const QString& a2,
                        bool byEnter) {
    const catalogue::CorrectionRule* rule = catalogue::correctionRule(recordNo);
    if (rule == nullptr)
        return {};
    const bool either = rule->field == catalogue::AnswerField::Either;
    const QString& answer = rule->field == catalogue::AnswerField::Second ? a2 : a1;
    if (matches(Compare::TrimmedLowerCase, typed, answer) ||
        (either && matches(Compare::TrimmedLowerCase, typed, a2)))
        return right();
    const bool namesBoth = either && !a2.isEmpty();
    Verdict verdict = wrong(wrongTyping + QStringLiteral("올바른 단어는 ") +
                            (namesBoth ? a1 + QStringLiteral(" or ") + a2 : answer));
    verdict.marksRow = !byEnter || (rule->enterMarks && (!either || namesBoth));
    return verdict;
}

Verdict judgeButton(int recordNo, int index, const QString& caption, const QString& a1) {
    if (!catalogue::comparesCaptions(recordNo))
        return judgeArticle(index, a1);
    if (caption == a1)
        return right();
    Verdict verdict = wrong(wrongChoice + QStringLiteral("정답은 ") + a1);
    verdict.sounds = false;
    return verdict;
}

Verdict judgeSentence(Compare compare, const QString& typed, const QString& a1) {
    if (matches(compare, typed, a1))
        return right();
    return wrong(wrongTyping + rightSentence + a1);
}

QStringList answerWords(const QString& a1) {
    if (!a1.contains(u' '))
        return {a1};
    QStringList words = a1.split(u' ');
    for (QString& word : words)
        word = core::KeepLettersLower(word);
    return words;
}

Verdict judgeWords(Compare compare, const QStringList& boxes, const QString& a1) {
    const QStringList words = answerWords(a1);
    for (qsizetype i = 0; i < boxes.size(); ++i)
        if (!matches(compare, boxes[i], words.value(i)))
            return wrong(wrongTyping + rightSentence + a1);
    return right();
}

QStringList cutSentence(const QString& sentence) {
    if (!sentence.contains(u' '))
        return {};
    const qsizetype end = sentence.indexOf(u' ');
    QStringList words{sentence.first(end)};
    QString rest = sentence.sliced(end + 1);
    while (!rest.isEmpty()) {
        QString word = rest.section(u' ', 0, 0);
        rest = rest.sliced(std::min(word.size() + 1, rest.size())).trimmed();
        words.append(core::KeepAnswerChars(word));
    }
    return words;
}

}  // namespace quizzes
