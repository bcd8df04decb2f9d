#include "lessons/cloze_drill.h"

#include "lessons/drill_judge.h"

namespace lessons {

using platform::BoxMark;
namespace colour = platform::colour;

namespace {

const QString yes = QStringLiteral("YES");
const QString no = QStringLiteral("NO");
const QString given = QStringLiteral("NONE");
const QString byBox = QStringLiteral(" order by blankno");

}  // namespace

void ClozeDrill::beginClicked() {
    if (loading())
        return;
    if (retrying())
        beginLaterPass();
    else
        beginFirstPass();
    focusFirstListed();
    showTyping();
}

void ClozeDrill::beginFirstPass() {
    platform::Transaction transaction(contentDb);
    listAllRows();
    showListedRows();
    keepBlanksAlone();
    transaction.commit();
}

void ClozeDrill::listAllRows() {
    deleteBlanks();
    openRows();
    for (int blankNo = 0; !basicRs.eof(); ++blankNo, basicRs.moveNext()) {
        const platform::Value word = basicRs.value(QStringLiteral("word1"));
        const bool isGiven = basicRs.textOrEmpty(QStringLiteral("word3")) == given;
        blankRs.addNew();
        blankRs.set(QStringLiteral("orderno"), blankNo + 1);
        blankRs.set(QStringLiteral("blankno"), blankNo);
        blankRs.set(QStringLiteral("word"), word);
        blankRs.set(QStringLiteral("showword"), isGiven ? yes : no);
        blankRs.update();
        if (isGiven)
            setField(basicRs, QStringLiteral("word2"), word);
    }
}

void ClozeDrill::showListedRows() {
    for (blankRs.moveFirst(); !blankRs.eof(); blankRs.moveNext()) {
        const int box = blankRs.integer(QStringLiteral("blankno"));
        const QString word = blankRs.text(QStringLiteral("word"));
        const bool isGiven = blankRs.text(QStringLiteral("showword")) == yes;
        txtWord(box).setLocked(isGiven);
        if (isGiven)
            setBox(box, word, txtWord(box).foreColor(), BoxMark::Given);
        else
            setBox(box, firstLetter(word), colour::black);
    }
}

void ClozeDrill::keepBlanksAlone() {
    openBlanks(QStringLiteral(" where showword='YES'"));
    platform::deleteAll(blankRs);
    openBlanks(QStringLiteral(" where showword='NO' order by orderno"));
    renumber();
}

void ClozeDrill::beginLaterPass() {
    openBlanks(byBox);
    for (; !blankRs.eof(); blankRs.moveNext())
        setBox(blankRs.integer(QStringLiteral("blankno")), firstLetter(blankRs.text(QStringLiteral("word"))),
               colour::black);
}

void ClozeDrill::focusFirstListed() {
    blankRs.moveFirst();
    goTo(blankRs.integer(QStringLiteral("blankno")));
}

void ClozeDrill::renumber() {
    for (int orderNo = 1; !blankRs.eof(); ++orderNo, blankRs.moveNext()) {
        blankRs.edit();
        blankRs.set(QStringLiteral("orderno"), orderNo);
        blankRs.update();
    }
}

void ClozeDrill::quizClicked() {
    startRetrying();
    platform::Transaction transaction(contentDb);
    removeRightRows();
    openBlanks(byBox);
    const bool done = blankRs.isEmpty();
    if (!done)
        renumber();
    transaction.commit();
    if (done) {
        finish();
        return;
    }
    context().boxes.notice(QString::fromUtf8(drill().missed));
    showReview();
}

void ClozeDrill::removeRightRows() {
    openBlanks(byBox);
    for (blankRs.moveFirst(); !blankRs.eof(); blankRs.moveNext()) {
        const int box = blankRs.integer(QStringLiteral("blankno"));
        const QString word = blankRs.text(QStringLiteral("word"));
        if (isClozeAnswer(word, txtWord(box).text())) {
            blankRs.remove();
            txtWord(box).setMark(BoxMark::Right);
        } else {
            setBox(box, word, colour::red, BoxMark::Wrong);
            txtWord(box).setLocked(false);
        }
    }
}

void ClozeDrill::finish() {
    saveFullMarks();
    showCompletion();
    picNext().show();
    showQuizButton(false);
}

void ClozeDrill::enterPressed(int box) {
    if (retrying())
        goToNextListed(box);
    else
        goTo(box + 1);
}

}  // namespace lessons
