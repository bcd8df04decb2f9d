#include "lessons/drill_judge.h"

#include "platform/letter_case.h"

namespace lessons {

using catalogue::Terms;

QString typedWord(const QString& boxText) {
    // Blanks alone: a tab that was pasted in is part of the word.
    qsizetype first = 0;
    qsizetype end = boxText.size();
    while (first < end && boxText[first] == u' ')
        ++first;
    while (end > first && boxText[end - 1] == u' ')
        --end;
    return boxText.mid(first, end - first).toLower();
}

QString rightRowCriterion(const Drill& drill, int box, const QString& word) {
    QString wordTerm = QStringLiteral("word='") + word + u'\'';
    if (box >= drill.wordAloneFromBox)
        return wordTerm;
    const QString boxTerm = QStringLiteral("orderno=") + QString::number(box + 1);
    return drill.terms == Terms::BoxThenWord ? boxTerm + QStringLiteral(" and ") + wordTerm
                                             : wordTerm + QStringLiteral(" and ") + boxTerm;
}

QString unmatchedRowCriterion(const QString& word) {
    return QStringLiteral("word1='") + word + QStringLiteral("' and word2='NONE'");
}

bool isClozeAnswer(const QString& word, const QString& boxText) {
    return platform::sameButForCase(word, typedWord(boxText));
}

QString firstLetter(const QString& word) {
    return word.left(1);
}

}  // namespace lessons
