#include "lessons/set_drill.h"

#include "catalogue/steps.h"
#include "core/stores.h"
#include "lessons/drill_judge.h"

namespace lessons {

using platform::BoxMark;
namespace colour = platform::colour;

namespace {

const QString word1 = QStringLiteral("word1");
const QString word2 = QStringLiteral("word2");
const QString unmatched = QStringLiteral("NONE");

// The one step whose first page has a result column of its own.
constexpr int pairTopic = 1;

void addBlank(Recordset& blanks, int blankNo, int orderNo) {
    blanks.addNew();
    blanks.set(QStringLiteral("blankno"), blankNo);
    blanks.set(QStringLiteral("orderno"), orderNo);
    blanks.update();
}

}  // namespace

void SetDrill::firstTick() {
    if (!drill().savesScore)
        checkStoredPart();
    DrillForm::firstTick();
}

void SetDrill::checkStoredPart() {
    core::Session& s = session();
    if (s.recordNo != catalogue::doubleStep || s.topicNo != pairTopic)
        return;
    s.scoreDb = core::openScores(context());
    s.scoreRs =
        s.scoreDb.openRecordset(QStringLiteral("Select * from score where ") + core::learnerStepCriterion(s));
    if (!s.scoreRs.isEmpty() && s.scoreRs.textOrEmpty(QStringLiteral("s5")) == QStringLiteral("100"))
        picNext().show();
    s.scoreRs.close();
    s.scoreDb.close();
}

void SetDrill::beginClicked() {
    if (loading())
        return;
    blankAllBoxes();
    if (retrying())
        beginLaterPass();
    else
        beginFirstPass();
    showTyping();
}

void SetDrill::beginFirstPass() {
    platform::Transaction transaction(contentDb);
    deleteBlanks();
    toFirstRow();
    for (int i = 0; !basicRs.eof(); ++i, basicRs.moveNext())
        txtWord(i).setText(firstLetter(basicRs.text(word1)));
    for (int i = 0; i < boxCount(); ++i)
        addBlank(blankRs, i, i + 1);
    transaction.commit();
    txtWord(0).setFocus();
}

void SetDrill::beginLaterPass() {
    openRows();
    for (int i = 0; !basicRs.eof(); ++i, basicRs.moveNext()) {
        const QString word = basicRs.text(word1);
        const bool done = isRowDone();
        setBox(i, done ? word : firstLetter(word), colour::black, done ? BoxMark::Right : BoxMark::None);
    }
    openBlanks();
    // After a passed check no row is left to do.
    if (!blankRs.isEmpty())
        goTo(blankRs.integer(QStringLiteral("blankno")));
}

bool SetDrill::isRowDone() const {
    return basicRs.text(word1) == basicRs.text(word2);
}

void SetDrill::quizClicked() {
    startRetrying();
    if (countMisses() == 1)
        finish();
    else
        showWrongRows();
}

Int16 SetDrill::countMisses() {
    platform::Transaction transaction(contentDb);
    deleteBlanks();
    openRows();
    for (toFirstRow(); !basicRs.eof(); basicRs.moveNext())
        setField(basicRs, word2, unmatched);
    // From 1, so that 1 stands for none.
    Int16 missCount = 1;
    for (int i = 0; i < boxCount(); ++i) {
        const QString text = txtWord(i).text();
        basicRs.findFirst(unmatchedRowCriterion(typedWord(text)));
        if (basicRs.noMatch())
            ++missCount;
        else
            setField(basicRs, word2, text);
    }
    transaction.commit();
    return missCount;
}

void SetDrill::finish() {
    if (drill().savesScore)
        saveFullMarks();
    for (int i = 0; i < boxCount(); ++i)
        txtWord(i).setMark(BoxMark::Right);
    showCompletion();
    picNext().show();
    // The first page has its marks in hand, and leaves it to the second to store them.
    session().scoreValue = 100;
    showReview();
}

void SetDrill::showWrongRows() {
    context().boxes.notice(QString::fromUtf8(drill().missed));
    platform::Transaction transaction(contentDb);
    openRows();
    openBlanks();
    toFirstRow();
    int orderNo = 1;
    for (int i = 0; !basicRs.eof(); ++i, basicRs.moveNext()) {
        const QString word = basicRs.text(word1);
        const bool done = isRowDone();
        setBox(i, word, done ? colour::black : colour::red, done ? BoxMark::Right : BoxMark::Wrong);
        if (!done)
            addBlank(blankRs, basicRs.integer(QStringLiteral("orderno")) - 1, orderNo++);
    }
    transaction.commit();
    showReview();
}

void SetDrill::enterPressed(int box) {
    if (!retrying()) {
        goTo(box + 1);
        return;
    }
    openBlanks();
    goToNextListed(box);
}

}  // namespace lessons
