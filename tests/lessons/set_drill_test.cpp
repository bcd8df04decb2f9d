#include "tests/lessons/drill_desk.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace lessons_test;
using support::courseStore;
using support::scoreStore;

namespace {

const QString firstPageDone = QStringLiteral(
    "Good Job!  <Next> 버튼을 클릭하여 다음 단계 학습을 하십시오.\n\n다음 단계의 학습까지 완료되어야 해당 "
    "레슨 학습이 종료된 것으로 "
    "처리됩니다.");
const QString lessonDone =
    QStringLiteral("Good Job!  Lesson Completed!\n\n다음 레슨을 학습하려면 <Next>버튼을 클릭하십시오.");

QStringList letters(const QStringList& words) {
    QStringList firsts;
    for (const QString& word : words)
        firsts.append(word.left(1));
    return firsts;
}

QStringList reversed(QStringList words) {
    std::reverse(words.begin(), words.end());
    return words;
}

struct FirstPage : DrillDesk, ::testing::Test {
    FirstPage() : DrillDesk(QStringLiteral("frmLesson2")) {}
    QString scoreRows() { return row(scoreStore, "SELECT count(*) FROM score"); }
};

struct SecondPage : DrillDesk, ::testing::Test {
    SecondPage() : DrillDesk(QStringLiteral("frmLesson2_2")) { session.recordNo = 15; }
};

}  // namespace

TEST_F(FirstPage, ShowsTheWordsToStudyAndEmptiesTheScratchField) {
    open();
    EXPECT_EQ(boxTexts(0, 28), rightWords());
    EXPECT_EQ(content("word3"), QStringList(28, QString()));
    EXPECT_EQ(session.scoreSlot, 5);
    EXPECT_TRUE(isShown("picNext"));
    EXPECT_EQ(caption("lblPreCaption"), QStringLiteral("Voca Quiz"));
}

TEST_F(FirstPage, HintsWithFirstLettersFromTheFirstPassOn) {
    open();
    begin();
    EXPECT_EQ(boxTexts(0, 28), letters(rightWords()));
    EXPECT_EQ(focusedBox(), 0);
    EXPECT_EQ(rows(courseStore, "SELECT orderno, blankno, word, showword FROM blankno").size(), 28);
    EXPECT_EQ(blanks().last(), QStringLiteral("28|27|NULL|NULL"));
}

TEST_F(FirstPage, PassesWithAllWordsInReverseOrderAndStoresNothing) {
    open();
    begin();
    answer(reversed(rightWords()));
    check();
    EXPECT_EQ(boxes.texts(), QStringList{firstPageDone});
    EXPECT_EQ(boxes.shown.front().icon, platform::BoxIcon::Information);
    EXPECT_EQ(sound.names().last().toLower(), QStringLiteral("contestbegin.wav"));
    EXPECT_EQ(session.scoreValue, 100);
    EXPECT_EQ(scoreRows(), QStringLiteral("0"));
    EXPECT_TRUE(isShown("picBegin"));
    EXPECT_FALSE(isShown("picQuiz"));
    EXPECT_FALSE(isShown("lblAnswer"));
    EXPECT_FALSE(box(0).locked());
}

TEST_F(FirstPage, CountsAnEmptyBoxAsAMiss) {
    open();
    begin();
    answerAndCheck();
    boxes.shown.clear();
    begin();
    answer(rightWords());
    box(6).clear();
    check();
    EXPECT_EQ(boxes.texts(), QStringList{QStringLiteral(
                                 "틀린 단어들이 있습니다.  <Begin>을 클릭한 후 올바른 답을 입력하십시오.")});
    EXPECT_EQ(box(6).foreColor(), colour::red);
    EXPECT_EQ(box(6).mark(), BoxMark::Wrong);
    EXPECT_EQ(blanks(), QStringList{QStringLiteral("1|6|NULL|NULL")});
}

TEST_F(FirstPage, CountsAWordTypedTwiceOnceAndShowsEachRowInItsOwnBox) {
    open();
    begin();
    QStringList words = reversed(rightWords());
    words[0] = words[1];
    answer(words);
    check();
    // The word of row 28 is missing, wherever it would have been typed.
    EXPECT_EQ(boxTexts(0, 28), rightWords());
    EXPECT_EQ(box(27).foreColor(), colour::red);
    EXPECT_EQ(box(0).foreColor(), colour::black);
    EXPECT_EQ(box(0).mark(), BoxMark::Right);
    EXPECT_FALSE(box(0).locked());
    begin();
    EXPECT_EQ(boxText(27), QStringLiteral("b"));
    EXPECT_EQ(boxText(0), QStringLiteral("aword1"));
    EXPECT_EQ(box(27).foreColor(), colour::black);
    EXPECT_EQ(focusedBox(), 27);
}

TEST_F(FirstPage, MatchesACapitalAndYetShowsItRed) {
    open();
    begin();
    QStringList words = rightWords();
    words[2] = QStringLiteral("Cword3");
    words[9] = QStringLiteral("zzz");
    answer(words);
    check();
    EXPECT_EQ(content("word2").at(2), QStringLiteral("Cword3"));
    EXPECT_EQ(content("word2").at(9), QStringLiteral("NONE"));
    EXPECT_EQ(box(2).foreColor(), colour::red);
    EXPECT_EQ(box(9).foreColor(), colour::red);
    EXPECT_EQ(blanks(), (QStringList{QStringLiteral("1|2|NULL|NULL"), QStringLiteral("2|9|NULL|NULL")}));
}

TEST_F(FirstPage, PassesWithCapitalsAndShowsThemAsHintsAtTheNextBegin) {
    open();
    begin();
    QStringList words = rightWords();
    words[2] = QStringLiteral("Cword3");
    answer(words);
    check();
    EXPECT_EQ(boxes.texts(), QStringList{firstPageDone});
    begin();
    EXPECT_EQ(failure(), QString());
    EXPECT_EQ(boxText(1), QStringLiteral("bword2"));
    EXPECT_EQ(boxText(2), QStringLiteral("c"));
    EXPECT_TRUE(isShown("picQuiz"));
}

TEST_F(FirstPage, WalksTheListOfRedBoxesByEnterAndFromOffTheListToItsHead) {
    open();
    fail({3, 9, 20});
    begin();
    EXPECT_EQ(focusedBox(), 3);
    key(3, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 9);
    key(9, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 20);
    key(20, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 20);
    key(11, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 3);
    key(5, Qt::Key_Up);
    EXPECT_EQ(focusedBox(), 4);
}

TEST_F(FirstPage, LooksAtTheListAnewWithEachEnter) {
    open();
    fail({3});
    begin();
    exec(courseStore, "INSERT INTO blankno (orderno, blankno) VALUES (2, 20)");
    key(3, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 20);
}

TEST_F(FirstPage, TellsOfItsEndBeforeItAsksToBeginAgain) {
    open();
    int told = 0;
    boxes.onShow = [&](const platform::Message&) {
        ++told;
        EXPECT_EQ(session.scoreValue, 0);
        EXPECT_EQ(sound.names().last().toLower(), QStringLiteral("contestbegin.wav"));
        EXPECT_TRUE(isShown("picQuiz"));
        EXPECT_FALSE(isShown("picBegin"));
    };
    fail({});
    EXPECT_EQ(told, 1);
    EXPECT_EQ(session.scoreValue, 100);
}

TEST_F(FirstPage, GoesToTheNextBoxByEnterInTheFirstPass) {
    open();
    begin();
    key(4, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 5);
    key(27, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 5);
}

TEST_F(FirstPage, GoesOnToItsSecondPageWithNoQuestion) {
    setRows(plainRows(23), 16);
    setRules(13, 16);
    exec(courseStore, "INSERT INTO gram_tip2 (topicno, recordno, orderno, tip2) VALUES (1, 500, 1, 'rule')");
    open();
    press("picNext");
    EXPECT_NE(awaitScreen(QStringLiteral("frmLesson2_2")), nullptr) << failure().toStdString();
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_EQ(session.scoreSlot, 4);
    EXPECT_EQ(session.recordNo, 500);
}

TEST_F(FirstPage, LooksAtTheStoredPartOfItsOwnStepWithoutLastingEffect) {
    session.recordNo = 15;
    setRows(plainRows(28), 15);
    setTip(QStringLiteral("tip"));
    setRules(7, 15);
    exec(scoreStore,
         "INSERT INTO score (studentno, program, recordno, s4, s5) VALUES ('1001', 'Tovalin1', 15, 0, '')");
    EXPECT_NE(open(), nullptr) << failure().toStdString();
    EXPECT_TRUE(isShown("picNext"));
    EXPECT_FALSE(session.scoreDb.isOpen());
}

TEST_F(SecondPage, ReadsTheRowsOfStepSixteenAndScoresTheStepInHand) {
    EXPECT_NE(open(), nullptr) << failure().toStdString();
    EXPECT_EQ(session.scoreSlot, 4);
    EXPECT_EQ(boxTexts(0, 23), rightWords());
    fail({});
    EXPECT_EQ(boxes.texts(), QStringList{lessonDone});
    EXPECT_EQ(row(scoreStore, "SELECT recordno, s4 FROM score"), QStringLiteral("15|100.0"));
    EXPECT_TRUE(isShown("picBegin"));
    EXPECT_FALSE(isShown("picQuiz"));
    begin();
    EXPECT_EQ(boxTexts(0, 23), rightWords());
    EXPECT_EQ(failure(), QString());
}

TEST_F(SecondPage, NeverTouchesItsLastBox) {
    open();
    EXPECT_FALSE(isShown("txtWord(23)"));
    const QString sample = boxText(23);
    fail({1, 22});
    begin();
    EXPECT_EQ(boxText(23), sample);
    EXPECT_FALSE(box(23).locked());
    key(21, Qt::Key_Down);
    EXPECT_EQ(focusedBox(), 22);
    key(22, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 22);
    key(1, Qt::Key_End);
    EXPECT_EQ(focusedBox(), 22);
}

TEST_F(SecondPage, StoresTheMarksBeforeItTellsOfTheEnd) {
    open();
    QString storedWhenTold;
    boxes.onShow = [&](const platform::Message&) {
        storedWhenTold = row(scoreStore, "SELECT recordno, s4, s5 FROM score");
    };
    fail({});
    EXPECT_EQ(storedWhenTold, QStringLiteral("15|100.0|"));
}

TEST_F(SecondPage, AsksAgainInWordsOfItsOwn) {
    open();
    fail({1});
    EXPECT_EQ(boxes.texts(),
              QStringList{QStringLiteral("틀린 단어들이 있습니다.  올바른 답을 입력하십시오.")});
}

TEST_F(SecondPage, GoesBackToTheFirstPageFromItsStart) {
    session.hasWords = QStringLiteral("YES");
    setRows(plainRows(28), 15);
    setTip(QStringLiteral("tip"));
    exec(courseStore, "INSERT INTO gram_tip2 (topicno, recordno, orderno, tip2) VALUES (1, 15, 1, 'rule')");
    open();
    EXPECT_EQ(caption("lblPreCaption"), QStringLiteral("Pre Lesson"));
    begin();
    press("picPre");
    ASSERT_NE(awaitScreen(QStringLiteral("frmLesson2")), nullptr) << failure().toStdString();
    EXPECT_TRUE(isShown("picBegin"));
    EXPECT_EQ(boxText(0), QStringLiteral("aword1"));
    EXPECT_EQ(session.scoreSlot, 5);
}

TEST_F(SecondPage, HidesNextInAReviewAndTellsOfItsEndAllTheSame) {
    session.reviewMode = QStringLiteral("YES");
    open();
    EXPECT_FALSE(isShown("picNext"));
    fail({});
    EXPECT_EQ(boxes.texts(), QStringList{lessonDone});
    EXPECT_TRUE(isShown("picNext"));
}
