#include "tests/lessons/drill_desk.h"

#include <gtest/gtest.h>

using namespace lessons_test;
using support::courseStore;
using support::scoreStore;

namespace {

const QString wellDone =
    QStringLiteral("Good Job!  Lesson Completed!\n\n다음 레슨을 학습하려면 <Next>버튼을 클릭하십시오.");
const QString someWrong =
    QStringLiteral("틀린 단어들이 있습니다.  정답을 확인한 후 <Begin>을 클릭하여 올바른 답을 입력하십시오.");

struct PluralDrill : DrillDesk, ::testing::Test {
    PluralDrill() : DrillDesk(QStringLiteral("frmLesson")) {}
    QString storedScore() { return row(scoreStore, "SELECT s4 FROM score"); }
};

}  // namespace

TEST_F(PluralDrill, ShowsTipRulesPromptsAndAnswersToStudy) {
    ASSERT_NE(open(), nullptr) << failure().toStdString();
    EXPECT_EQ(caption("lblTopic"), QStringLiteral("명사 1"));
    EXPECT_EQ(support::find<platform::StoryBox>(&form(), QStringLiteral("txtStory")).text(),
              QStringLiteral("명사의 복수형"));
    EXPECT_EQ(caption("lblTopic3(0)"), QStringLiteral("rule 1"));
    EXPECT_EQ(caption("lblTopic3(7)"), QStringLiteral("rule 8"));
    EXPECT_EQ(caption("lblWord(27)"), QStringLiteral("bword28"));
    EXPECT_EQ(boxTexts(0, 28), rightWords());
    EXPECT_TRUE(isShown("picBegin"));
    EXPECT_TRUE(isShown("picNext"));
    for (const char* hidden : {"picQuiz", "lblAnswer", "picPre"})
        EXPECT_FALSE(isShown(hidden)) << hidden;
    EXPECT_EQ(session.scoreSlot, 4);
    EXPECT_EQ(content("word3"), QStringList(28, QString()));
}

TEST_F(PluralDrill, OffersTheWayBackToTheWordsWhereTheStepHasSome) {
    session.hasWords = QStringLiteral("YES");
    open();
    EXPECT_TRUE(isShown("picPre"));
    EXPECT_EQ(caption("lblPreCaption"), QStringLiteral("Voca Quiz"));
}

TEST_F(PluralDrill, BlanksTheBoxesAndPutsTheFocusInTheFirst) {
    open();
    begin();
    EXPECT_EQ(boxTexts(0, 28), QStringList(28, QString()));
    EXPECT_EQ(focusedBox(), 0);
    EXPECT_TRUE(isShown("picQuiz"));
    EXPECT_TRUE(isShown("lblAnswer"));
    EXPECT_FALSE(isShown("picBegin"));
}

TEST_F(PluralDrill, StoresFullMarksWhenAllIsRightAtTheFirstCheck) {
    open();
    fail({});
    EXPECT_EQ(boxes.texts(), QStringList{wellDone});
    EXPECT_EQ(boxes.shown.front().icon, platform::BoxIcon::Information);
    EXPECT_EQ(boxes.shown.front().title, QString());
    EXPECT_EQ(sound.names().last().toLower(), QStringLiteral("contestbegin.wav"));
    EXPECT_EQ(storedScore().toDouble(), 100);
    EXPECT_TRUE(wrongBoxes().isEmpty());
    for (int i = 0; i < 28; ++i) {
        EXPECT_TRUE(box(i).locked());
        EXPECT_EQ(box(i).foreColor(), colour::black);
        EXPECT_EQ(box(i).mark(), BoxMark::Right);
    }
    EXPECT_TRUE(isShown("picQuiz"));
    EXPECT_TRUE(isShown("lblAnswer"));
    EXPECT_FALSE(isShown("picBegin"));
}

TEST_F(PluralDrill, SavesAndTellsAgainWhenCheckedAgainAfterItIsDone) {
    open();
    fail({});
    exec(scoreStore, "UPDATE score SET s4=7");
    check();
    EXPECT_EQ(boxes.texts(), (QStringList{wellDone, wellDone}));
    EXPECT_EQ(storedScore().toDouble(), 100);
}

TEST_F(PluralDrill, ShowsOneWrongBoxInRedThenAsksForItAlone) {
    open();
    fail({5});
    EXPECT_EQ(boxes.texts(), QStringList{someWrong});
    EXPECT_EQ(boxes.shown.front().icon, platform::BoxIcon::Information);
    EXPECT_FALSE(sound.names().contains(QStringLiteral("contestbegin.wav"), Qt::CaseInsensitive));
    EXPECT_EQ(boxText(5), QStringLiteral("fword6s"));
    EXPECT_EQ(box(5).foreColor(), colour::red);
    EXPECT_EQ(box(5).mark(), BoxMark::Wrong);
    EXPECT_FALSE(box(5).locked());
    EXPECT_EQ(box(6).mark(), BoxMark::Right);
    EXPECT_TRUE(storedScore().isEmpty());
    EXPECT_TRUE(isShown("picBegin"));
    EXPECT_FALSE(isShown("picQuiz"));
    EXPECT_FALSE(isShown("lblAnswer"));
    begin();
    EXPECT_EQ(boxText(5), QString());
    EXPECT_EQ(box(5).foreColor(), colour::black);
    EXPECT_EQ(focusedBox(), 5);
    for (int i = 0; i < 28; ++i)
        EXPECT_EQ(box(i).locked(), i != 5) << i;
    answer(5, QStringLiteral("fword6s"));
    check();
    EXPECT_EQ(storedScore().toDouble(), 100);
}

TEST_F(PluralDrill, TellsOfWrongWordsBeforeItShowsThemWithAllBoxesLocked) {
    open();
    int told = 0;
    boxes.onShow = [&](const platform::Message&) {
        ++told;
        EXPECT_EQ(boxText(5), QStringLiteral("zzz"));
        EXPECT_EQ(box(5).foreColor(), colour::black);
        EXPECT_TRUE(box(5).locked());
        EXPECT_TRUE(isShown("picQuiz"));
        EXPECT_FALSE(isShown("picBegin"));
    };
    fail({5});
    EXPECT_EQ(told, 1);
}

TEST_F(PluralDrill, StoresTheMarksThenPlaysThenTells) {
    open();
    int told = 0;
    boxes.onShow = [&](const platform::Message&) {
        ++told;
        EXPECT_EQ(storedScore().toDouble(), 100);
        EXPECT_EQ(sound.names().last().toLower(), QStringLiteral("contestbegin.wav"));
        EXPECT_FALSE(sound.played.back().waited);
    };
    fail({});
    EXPECT_EQ(told, 1);
}

TEST_F(PluralDrill, LeavesTheStepAtNoughtUntilAllIsRight) {
    exec(scoreStore,
         "INSERT INTO score (studentno, program, recordno, s4, vtitle) VALUES ('1001', 'Tovalin1', 500, 0, "
         "'')");
    open();
    fail({5});
    EXPECT_EQ(storedScore().toDouble(), 0);
    fail({});
    EXPECT_EQ(storedScore().toDouble(), 100);
}

TEST_F(PluralDrill, KeepsTheRightBoxesLockedThroughAllLaterPasses) {
    open();
    fail({5, 6});
    begin();
    answer(5, QStringLiteral("fword6s"));
    answer(6, QStringLiteral("zzz"));
    check();
    begin();
    for (int i = 0; i < 28; ++i)
        EXPECT_EQ(box(i).locked(), i != 6) << i;
    EXPECT_EQ(boxText(5), QStringLiteral("fword6s"));
    EXPECT_EQ(boxText(6), QString());
    EXPECT_EQ(focusedBox(), 6);
}

TEST_F(PluralDrill, CountsNothingThatIsTypedWhileTheAnswersAreOnView) {
    open();
    answer(0, QStringLiteral("study"));
    begin();
    EXPECT_EQ(boxText(0), QString());
    answerAndCheck({3});
    answer(3, QStringLiteral("review"));
    EXPECT_EQ(boxText(3), QStringLiteral("review"));
    begin();
    EXPECT_EQ(boxText(3), QString());
    EXPECT_EQ(wrongBoxes(), QStringList{QStringLiteral("3")});
}

TEST_F(PluralDrill, StartsFromTheFirstPassAgainAtANewLoadWhateverTheLastDrillLeft) {
    open();
    fail({5});
    form().unload();
    support::settle();
    open();
    EXPECT_EQ(blanks().size(), 28);
    EXPECT_EQ(box(5).foreColor(), colour::black);
    begin();
    EXPECT_EQ(boxTexts(0, 28), QStringList(28, QString()));
    EXPECT_FALSE(box(0).locked());
    key(0, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 1);
    answerAndCheck();
    EXPECT_EQ(blanks().size(), 28);
    EXPECT_EQ(storedScore().toDouble(), 100);
}

TEST_F(PluralDrill, TakesAWordWithBlanksAroundItAndShowsItWithout) {
    open();
    begin();
    QStringList words = rightWords();
    words[0] = QStringLiteral("  aword1s ");
    words[1] = QStringLiteral("zzz");
    answer(words);
    check();
    EXPECT_EQ(wrongBoxes(), QStringList{QStringLiteral("1")});
    EXPECT_EQ(boxText(0), QStringLiteral("aword1s"));
}

TEST_F(PluralDrill, TakesUpperCaseLettersAndStoredCapitals) {
    setRows(
        {{QStringLiteral("book"), QStringLiteral("Books")}, {QStringLiteral("cat"), QStringLiteral("cats")}},
        step());
    open();
    begin();
    answer({QStringLiteral("books"), QStringLiteral("CATS")});
    check();
    EXPECT_EQ(boxes.texts(), QStringList{wellDone});
}

TEST_F(PluralDrill, LeavesSpareBoxesAtTheirSampleUntilBeginAndOutOfTheCheck) {
    setRows({{QStringLiteral("book"), QStringLiteral("books")}}, step());
    open();
    EXPECT_EQ(boxText(1), QStringLiteral("houses"));
    EXPECT_EQ(caption("lblWord(1)"), QStringLiteral("house"));
    begin();
    EXPECT_EQ(boxText(27), QString());
    answer(0, QStringLiteral("books"));
    check();
    EXPECT_EQ(storedScore().toDouble(), 100);
    EXPECT_EQ(blanks(), QStringList{QStringLiteral("1|0|books|YES")});
}

TEST_F(PluralDrill, MarksEveryBoxWrongWhenAllAreEmpty) {
    open();
    begin();
    check();
    EXPECT_EQ(wrongBoxes().size(), 28);
    EXPECT_EQ(boxTexts(0, 28), rightWords());
    for (int i = 0; i < 28; ++i)
        EXPECT_EQ(box(i).foreColor(), colour::red);
}

TEST_F(PluralDrill, GoesFromBoxToBoxByEnterAndBackByLeftUpAndPageUp) {
    open();
    begin();
    answer(1, QStringLiteral("abc"));
    key(0, Qt::Key_Enter);
    EXPECT_EQ(focusedBox(), 1);
    EXPECT_EQ(box(1).selectedText(), QStringLiteral("abc"));
    for (const Qt::Key back : {Qt::Key_Left, Qt::Key_Up, Qt::Key_PageUp}) {
        key(3, back);
        EXPECT_EQ(focusedBox(), 2);
    }
    key(0, Qt::Key_Left);
    EXPECT_EQ(focusedBox(), 2);
}

TEST_F(PluralDrill, GoesOnByDownPageDownAndRightAtTheEndOfAText) {
    open();
    begin();
    for (const Qt::Key on : {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Right}) {
        key(2, on);
        EXPECT_EQ(focusedBox(), 3);
    }
    answer(4, QStringLiteral("abc"));
    box(4).setCursorPosition(1);
    key(4, Qt::Key_Right);
    EXPECT_EQ(focusedBox(), 4);
    EXPECT_EQ(box(4).cursorPosition(), 2);
}

TEST_F(PluralDrill, GoesToTheFirstBoxByHomeAtTheEdgeOfATextAndNeverToTheLastByEnd) {
    open();
    begin();
    box(4).setFocus();
    key(4, Qt::Key_End);
    EXPECT_EQ(focusedBox(), 4) << "the last box would not be left again by the arrows";
    box(27).setFocus();
    key(27, Qt::Key_Home);
    EXPECT_EQ(focusedBox(), 0);
    answer(4, QStringLiteral("abc"));
    key(4, Qt::Key_Home);
    EXPECT_EQ(focusedBox(), 4);
    EXPECT_EQ(box(4).cursorPosition(), 0);
    key(4, Qt::Key_Home);
    EXPECT_EQ(focusedBox(), 0);
}

TEST_F(PluralDrill, LeavesTheKeysUnansweredInTheLastBoxInEveryState) {
    open();
    const auto ignores = [&] {
        box(27).setFocus();
        for (const Qt::Key pressed :
             {Qt::Key_Return, Qt::Key_Left, Qt::Key_Up, Qt::Key_PageUp, Qt::Key_Right, Qt::Key_Down})
            key(27, pressed);
        return focusedBox() == 27;
    };
    EXPECT_TRUE(ignores());
    begin();
    EXPECT_TRUE(ignores());
    answerAndCheck({3, 27});
    EXPECT_TRUE(ignores());
    begin();
    EXPECT_TRUE(ignores());
    answerAndCheck();
    EXPECT_TRUE(ignores());
}

TEST_F(PluralDrill, WalksTheWrongBoxesByEnterAfterAFailedCheck) {
    open();
    fail({3, 9, 20});
    begin();
    EXPECT_EQ(focusedBox(), 3);
    key(3, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 9);
    key(9, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 20);
    key(20, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 21);
    key(21, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 22);
}

TEST_F(PluralDrill, PassesOverAWrongBoxByEnterFromABoxThatIsRight) {
    open();
    fail({3, 9, 20});
    begin();
    key(1, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 9);
    key(10, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 11);
}

TEST_F(PluralDrill, EndsTheRunOnAnApostropheAndKeepsTheStoresWhole) {
    open();
    begin();
    answer(0, QStringLiteral("don't"));
    check();
    EXPECT_TRUE(failure().contains(QStringLiteral("Syntax error"))) << failure().toStdString();
    EXPECT_EQ(row(courseStore, "PRAGMA integrity_check"), QStringLiteral("ok"));
}

TEST_F(PluralDrill, LetsALearnerLeaveUnfinishedUnlessARowStandsUnfinished) {
    exec(courseStore,
         "INSERT INTO tablework (recordno, topicno, pageno, Type, Title, wordno, useform) VALUES "
         "(500, 1, 1, 'Lesson', '명사', 0, 'frmLesson'), (501, 1, 2, 'Quiz', '명사', 0, 'none')");
    exec(scoreStore,
         "INSERT INTO score (studentno, program, recordno, s4, vtitle) VALUES ('1001', 'Tovalin1', 500, 0, "
         "'')");
    open();
    press("picNext");
    EXPECT_EQ(boxes.shown.size(), 3U);
    EXPECT_EQ(form().objectName(), QStringLiteral("frmLesson"));
    EXPECT_EQ(session.recordNo, 500);
    exec(scoreStore, "UPDATE score SET s4=50");
    press("picNext");
    EXPECT_EQ(session.recordNo, 501);
    EXPECT_EQ(failure(), QString());
}
