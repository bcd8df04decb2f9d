#include "lessons/drill_screen.h"

#include "catalogue/drills.h"
#include "lessons/drill_judge.h"

namespace lessons {

using catalogue::Field;
using catalogue::never;

using platform::BoxMark;

namespace {

const QString yes = QStringLiteral("YES");
const QString no = QStringLiteral("NO");
const QString stillWrong = QStringLiteral(" where showword='NO'");

}  // namespace

void DrillScreen::beginClicked() {
    if (loading())
        return;
    if (retrying())
        beginLaterPass();
    else
        beginFirstPass();
    boxesCleared();
    showTyping();
}

void DrillScreen::beginFirstPass() {
    blankAllBoxes();
    if (drill().firstHintFromOrder != never) {
        for (toFirstRow(); !basicRs.eof(); basicRs.moveNext()) {
            const int orderNo = basicRs.integer(QStringLiteral("orderno"));
            if (orderNo >= drill().firstHintFromOrder)
                txtWord(orderNo - 1).setText(firstLetter(basicRs.text(QStringLiteral("word1"))));
        }
    }
    if (boxCount() > 0)
        txtWord(0).setFocus();
}

void DrillScreen::beginLaterPass() {
    openBlanks();
    for (blankRs.moveFirst(); !blankRs.eof(); blankRs.moveNext()) {
        if (blankRs.text(QStringLiteral("showword")) != no)
            continue;
        const int box = blankRs.integer(QStringLiteral("blankno"));
        const bool hinted = box >= drill().laterHintFromBox;
        setBox(box, hinted ? firstLetter(blankRs.text(QStringLiteral("word"))) : QString(),
               platform::colour::black);
    }
    openBlanks(stillWrong + QStringLiteral(" order by orderno"));
    blankRs.moveFirst();
    goTo(blankRs.integer(QStringLiteral("blankno")));
}

void DrillScreen::quizClicked() {
    startRetrying();
    judge();
    openBlanks(stillWrong);
    if (blankRs.isEmpty())
        finish();
    else
        showWrongBoxes();
}

void DrillScreen::judge() {
    platform::Transaction transaction(contentDb);
    listRightWords();
    markRightRows();
    transaction.commit();
}

void DrillScreen::listRightWords() {
    deleteBlanks();
    openRows();
    // Only the table whose length is counted at run time may have no row to ask for.
    if (!drill().countsRows)
        toFirstRow();
    const QString field =
        drill().rightWord == Field::Word1 ? QStringLiteral("word1") : QStringLiteral("word2");
    for (int blankNo = 0; !basicRs.eof(); ++blankNo, basicRs.moveNext()) {
        blankRs.addNew();
        blankRs.set(QStringLiteral("orderno"), blankNo + 1);
        blankRs.set(QStringLiteral("blankno"), blankNo);
        blankRs.set(QStringLiteral("word"), basicRs.value(field));
        blankRs.set(QStringLiteral("showword"), no);
        blankRs.update();
    }
}

void DrillScreen::markRightRows() {
    for (int i = 0; i < boxCount(); ++i) {
        blankRs.findFirst(rightRowCriterion(drill(), i, typedWord(txtWord(i).text())));
        if (!blankRs.noMatch()) {
            blankRs.edit();
            blankRs.set(QStringLiteral("showword"), yes);
            blankRs.update();
        }
        txtWord(i).setLocked(true);
    }
}

void DrillScreen::finish() {
    for (int i = 0; i < boxCount(); ++i)
        txtWord(i).setMark(BoxMark::Right);
    saveFullMarks();
    showCompletion();
    picNext().show();
}

void DrillScreen::showWrongBoxes() {
    context().boxes.notice(QString::fromUtf8(drill().missed));
    showReview();
    openBlanks();
    for (blankRs.moveFirst(); !blankRs.eof(); blankRs.moveNext()) {
        const bool right = blankRs.text(QStringLiteral("showword")) == yes;
        const int box = blankRs.integer(QStringLiteral("blankno"));
        setBox(box, blankRs.text(QStringLiteral("word")),
               right ? platform::colour::black : platform::colour::red,
               right ? BoxMark::Right : BoxMark::Wrong);
        txtWord(box).setLocked(right);
    }
}

void DrillScreen::enterPressed(int box) {
    if (!retrying()) {
        if (drill().enterSelects)
            goTo(box + 1);
        else
            txtWord(box + 1).setFocus();
        return;
    }
    openBlanks(stillWrong + QStringLiteral(" and blankno >=%1 order by orderno").arg(box));
    if (blankRs.isEmpty()) {
        goTo(box + 1);
        return;
    }
    blankRs.moveLast();
    if (blankRs.recordCount() <= 1) {
        goTo(box + 1);
        return;
    }
    blankRs.moveFirst();
    blankRs.moveNext();
    goTo(blankRs.integer(QStringLiteral("blankno")));
}

}  // namespace lessons
