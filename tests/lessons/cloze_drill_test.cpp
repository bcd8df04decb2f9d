#include "tests/lessons/drill_desk.h"

#include <gtest/gtest.h>

using namespace lessons_test;
using support::courseStore;
using support::scoreStore;

namespace {

// Given are boxes 0, 3 and 26; the scratch field of the others is left as authored.
std::vector<Row> clozeRows() {
    std::vector<Row> rows = DrillDesk::plainRows(27);
    for (Row& row : rows)
        row.word3 = QString(QLatin1String(""));
    for (const std::size_t given : {0U, 3U, 26U})
        rows[given].word3 = QStringLiteral("NONE");
    rows[5].word3 = QStringLiteral("kept");
    return rows;
}

struct Cloze : DrillDesk, ::testing::Test {
    Cloze() : DrillDesk(QStringLiteral("frmLesson3_2"), clozeRows()) {}

    void answerBlanks(const std::vector<int>& wrong = {}) {
        QStringList words = rightWords();
        for (const int index : wrong)
            words[index] = QStringLiteral("zzz");
        answer(words);
        check();
    }
};

struct Reading : DrillDesk, ::testing::Test {
    Reading() : DrillDesk(QStringLiteral("frmLesson3")) { session.recordNo = 21; }
};

}  // namespace

TEST_F(Cloze, ShowsAllSentencesToStudyAndWritesNothingAtLoad) {
    ASSERT_NE(open(), nullptr) << failure().toStdString();
    EXPECT_EQ(boxTexts(0, 27), rightWords());
    EXPECT_EQ(content("word3").at(5), QStringLiteral("kept"));
    EXPECT_EQ(caption("lblTopic3(7)"), QStringLiteral("rule 8"));
    EXPECT_EQ(caption("Label1"), QStringLiteral("Pre Lesson"));
    EXPECT_EQ(caption("lblTopic4"), QStringLiteral(" 정관사 (the)를 반드시 붙이지 않는 경우"));
}

TEST_F(Cloze, ReadsTheRowsOfItsOwnStepWhateverTheStepInHand) {
    session.recordNo = 77;
    ASSERT_NE(open(), nullptr) << failure().toStdString();
    EXPECT_EQ(boxTexts(0, 27), rightWords());
}

TEST_F(Cloze, LocksTheGivenBoxesAndNeverCountsThem) {
    open();
    begin();
    for (const int given : {0, 3, 26}) {
        EXPECT_TRUE(box(given).locked());
        EXPECT_EQ(box(given).mark(), BoxMark::Given);
        EXPECT_EQ(boxText(given), rightWords()[given]);
    }
    EXPECT_EQ(boxText(1), QStringLiteral("b"));
    EXPECT_FALSE(box(1).locked());
    EXPECT_EQ(focusedBox(), 1);
    EXPECT_EQ(box(1).selectedText(), QStringLiteral("b"));
    EXPECT_EQ(content("word2").at(3), QStringLiteral("dword4"));
    EXPECT_EQ(content("word2").at(1), QStringLiteral("bword2s"));
    answerBlanks();
    EXPECT_EQ(row(scoreStore, "SELECT s4 FROM score").toDouble(), 100);
}

TEST_F(Cloze, KeepsTheBlanksAloneOnItsListNumberedFromOne) {
    open();
    begin();
    const QStringList listed = blanks();
    ASSERT_EQ(listed.size(), 24);
    EXPECT_EQ(listed.first(), QStringLiteral("1|1|bword2|NO"));
    EXPECT_EQ(listed.at(2), QStringLiteral("3|4|eword5|NO"));
    EXPECT_EQ(listed.last(), QStringLiteral("24|25|zword26|NO"));
}

TEST_F(Cloze, GoesOnByEnterToAGivenBoxInTheFirstPass) {
    open();
    begin();
    key(2, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 3);
    key(3, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 4);
    key(4, Qt::Key_PageUp);
    EXPECT_EQ(focusedBox(), 3);
    key(26, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 3);
}

TEST_F(Cloze, LeavesTheWrongRowsAloneOnTheListAfterAFailedCheck) {
    open();
    begin();
    answerBlanks({4, 9, 25});
    EXPECT_EQ(blanks(), (QStringList{QStringLiteral("1|4|eword5|NO"), QStringLiteral("2|9|jword10|NO"),
                                     QStringLiteral("3|25|zword26|NO")}));
    EXPECT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown.front().icon, platform::BoxIcon::Information);
    EXPECT_EQ(box(4).foreColor(), colour::red);
    EXPECT_EQ(box(4).mark(), BoxMark::Wrong);
    EXPECT_EQ(boxText(4), QStringLiteral("eword5"));
    EXPECT_EQ(box(5).foreColor(), colour::black);
    EXPECT_FALSE(box(5).locked());
    EXPECT_TRUE(isShown("picBegin"));
    EXPECT_FALSE(isShown("picQuiz"));
}

TEST_F(Cloze, HintsTheWrongBoxesAgainAndTouchesNoOther) {
    open();
    begin();
    answerBlanks({4, 9});
    box(5).setText(QStringLiteral("changed"));
    begin();
    EXPECT_EQ(boxText(4), QStringLiteral("e"));
    EXPECT_EQ(box(4).foreColor(), colour::black);
    EXPECT_EQ(boxText(5), QStringLiteral("changed"));
    EXPECT_EQ(focusedBox(), 4);
    key(4, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 9);
    key(9, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 9);
    key(12, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 4);
    answer(4, QStringLiteral("EWORD5 "));
    answer(9, QStringLiteral("jword10"));
    check();
    EXPECT_EQ(row(scoreStore, "SELECT s4 FROM score").toDouble(), 100);
}

TEST_F(Cloze, WalksByEnterTheListThatTheCheckLeftOpen) {
    open();
    begin();
    answerBlanks({4, 9});
    begin();
    exec(courseStore, "INSERT INTO blankno (orderno, blankno, word, showword) VALUES (3, 20, 'x', 'NO')");
    // No row that was added since is on it.
    box(9).setFocus();
    key(9, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 9);
}

TEST_F(Cloze, StaysInItsBoxByEnterWhenItIsDone) {
    open();
    begin();
    answerBlanks();
    box(7).setFocus();
    key(7, Qt::Key_Return);
    EXPECT_EQ(focusedBox(), 7);
    EXPECT_EQ(failure(), QString());
}

TEST_F(Cloze, TellsOfItsEndWithoutAnIconAndOffersNoButtonToGoOnTyping) {
    open();
    begin();
    answerBlanks();
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(
        boxes.shown.front().text,
        QStringLiteral("Good Job!  Lesson Completed!\n\n다음 레슨을 학습하려면 <Next>버튼을 클릭하십시오."));
    EXPECT_EQ(boxes.shown.front().icon, platform::BoxIcon::None);
    EXPECT_EQ(sound.names().last().toLower(), QStringLiteral("contestbegin.wav"));
    EXPECT_FALSE(isShown("picQuiz"));
    EXPECT_FALSE(isShown("picBegin"));
    EXPECT_TRUE(isShown("picNext"));
}

TEST_F(Cloze, TakesAnApostropheAsAWrongLetterAndNoMore) {
    open();
    begin();
    answer(1, QStringLiteral("it's"));
    check();
    EXPECT_EQ(failure(), QString());
    EXPECT_EQ(box(1).foreColor(), colour::red);
}

TEST_F(Cloze, GoesBackToTheReadingPageAndStartsOverFromThere) {
    session.hasWords = QStringLiteral("YES");
    open();
    begin();
    answer(1, QStringLiteral("typed"));
    press("picPre");
    ASSERT_NE(awaitScreen(QStringLiteral("frmLesson3")), nullptr) << failure().toStdString();
    EXPECT_EQ(support::find<platform::StoryBox>(&form(), QStringLiteral("txtStory")).text(),
              QStringLiteral("명사의 복수형"));
    press("picNext");
    ASSERT_NE(awaitScreen(QStringLiteral("frmLesson3_2")), nullptr) << failure().toStdString();
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_TRUE(isShown("picBegin"));
    EXPECT_EQ(boxText(1), QStringLiteral("bword2"));
}

TEST_F(Cloze, LeavesForTheTableOnNo) {
    open();
    boxes.answers = {false};
    press("picNext");
    EXPECT_TRUE(top() == nullptr || top()->objectName() == QStringLiteral("frmTable"));
    EXPECT_EQ(boxes.texts(), QStringList{QStringLiteral("다음 레슨을 학습하시겠습니까?")});
}

TEST_F(Reading, ShowsTheTipAloneWithTheCheckHidden) {
    setTip(QStringLiteral("관사"));
    ASSERT_NE(open(), nullptr) << failure().toStdString();
    EXPECT_EQ(support::find<platform::StoryBox>(&form(), QStringLiteral("txtStory")).text(),
              QStringLiteral("관사"));
    EXPECT_FALSE(isShown("picQuiz"));
    EXPECT_FALSE(isShown("lblQuiz"));
    EXPECT_TRUE(isShown("picNext"));
    EXPECT_EQ(session.scoreSlot, 4);
}

TEST_F(Reading, SaysNoWhereTheStepHasNoTip) {
    exec(courseStore, "DELETE FROM gram_tip");
    ASSERT_NE(open(), nullptr) << failure().toStdString();
    ASSERT_EQ(boxes.texts(), QStringList{QStringLiteral("NO")});
    EXPECT_EQ(boxes.shown.front().icon, platform::BoxIcon::None);
}

TEST_F(Reading, CountsAsFullMarksOnAnyOtherStepBeforeTheQuestionIsAsked) {
    session.recordNo = 56;
    setTip(QStringLiteral("tip"));
    open();
    QString storedAtQuestion;
    boxes.onShow = [&](const platform::Message&) {
        storedAtQuestion = row(scoreStore, "SELECT recordno, s4 FROM score");
    };
    boxes.answers = {false};
    press("picNext");
    EXPECT_EQ(storedAtQuestion, QStringLiteral("56|100.0"));
    EXPECT_EQ(boxes.texts(), QStringList{QStringLiteral("다음 레슨을 학습하시겠습니까?")});
}
