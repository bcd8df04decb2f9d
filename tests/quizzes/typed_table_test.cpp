// The tables that are answered by typing: frmQuiz2 with one box a row, frmQuiz9 with two.

#include "tests/quizzes/quiz_desk.h"

using platform::BoxMark;
using support::courseStore;
namespace colour = platform::colour;

namespace {

/// Rows with the answers a1 "one1", "one2", … and a2 "two1", ….
std::vector<QuizDesk::Question> rows(int count) {
    std::vector<QuizDesk::Question> made;
    for (int i = 1; i <= count; ++i) {
        const std::string number = std::to_string(i);
        made.push_back({{"q1", "Word " + number}, {"a1", "one" + number}, {"a2", "two" + number}});
    }
    return made;
}

QString cell(const char* array, int row) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(row);
}

/// Types the right answers of a column, but for the rows told.
void fill(core::Screen* screen, const char* array, const char* answer, int count,
          const std::vector<int>& wrong = {}) {
    for (int row = 0; row < count; ++row) {
        const bool isWrong = std::find(wrong.begin(), wrong.end(), row) != wrong.end();
        box(screen, qPrintable(cell(array, row)))
            .setText(isWrong ? QStringLiteral("wrong")
                             : QStringLiteral("%1%2").arg(QLatin1String(answer)).arg(row + 1));
    }
}

QString focus(core::Screen* screen) {
    return support::focusName(screen);
}

const QString head = QStringLiteral("틀린 정답들을 입력하였습니다.\n\n다시 ");
const QString wrongByButton = head + QStringLiteral("<Begin>를 클릭하여 올바른 정답을 입력하십시오.");
const QString wrongByEnter = head + QStringLiteral("<Begin>을 클릭하여 올바른 정답을 입력하십시오.");
const QString endMessage =
    QStringLiteral("퀴즈가 종료되었습니다.\n\n다음 레슨을 학습하려면 <Next>를 클릭하세요.");
const QString completed = QStringLiteral("Good Job! Grammar Final Quiz Completed!");

}  // namespace

TEST(TypedColumn, ScratchFieldAndListOfWrongBoxesAreEmptyAtTheStart) {
    QuizDesk desk;
    desk.layStep(2, rows(2));
    desk.exec(courseStore, "Insert into blankno (orderno, blankno) values (0, 5)");
    ASSERT_NE(desk.run("frmQuiz2"), nullptr);
    EXPECT_EQ(desk.column("a2"), (QStringList{"", ""}));
    EXPECT_TRUE(desk.rows(courseStore, "Select * from blankno").isEmpty());
}

TEST(TypedTables, CapitalsAndBlanksAroundAreRight) {
    for (const char* form : {"frmQuiz2", "frmQuiz9"}) {
        QuizDesk desk;
        desk.layStep(2, rows(1));
        core::Screen* screen = desk.run(form);
        support::type(box(screen, "txtWord(0)"), "  ONE1 ");
        if (screen->findChild<QWidget*>(QStringLiteral("txtWord2(0)")) != nullptr)
            support::type(box(screen, "txtWord2(0)"), " Two1  ");
        press(screen, "picQuiz");
        EXPECT_EQ(desk.scores(), QStringList{"2|100"}) << form;
    }
}

TEST(TypedTables, WhatWasTypedStaysInTheTableWhenTheScreenCloses) {
    for (const bool two : {false, true}) {
        QuizDesk desk;
        desk.layStep(2, rows(1));
        desk.layTable();
        core::Screen* screen = desk.run(two ? "frmQuiz9" : "frmQuiz2");
        box(screen, "txtWord(0)").setText(QStringLiteral(" One "));
        press(screen, "picQuiz");
        press(screen, "picTable");
        EXPECT_NE(desk.awaitScreen(QStringLiteral("frmTable")), nullptr) << desk.failure().toStdString();
        EXPECT_EQ(desk.column(two ? "q2" : "a2"), QStringList{"One"});
        EXPECT_EQ(desk.column("orderno"), QStringList{"1"});
    }
}

TEST(TypedTables, AnEmptyBoxIsAWrongAnswerAndNothingAsksForATextFirst) {
    for (const char* form : {"frmQuiz2", "frmQuiz9"}) {
        QuizDesk desk;
        desk.layStep(2, rows(1));
        press(desk.run(form), "picQuiz");
        EXPECT_EQ(desk.boxes.texts(), QStringList{wrongByButton}) << form;
    }
}

TEST(TypedColumn, AFailedCheckLocksTheWrongBoxesAndListsThem) {
    QuizDesk desk;
    desk.layStep(2, rows(4));
    core::Screen* screen = desk.run("frmQuiz2");
    fill(screen, "txtWord", "one", 4, {1, 3});
    press(screen, "picQuiz");
    EXPECT_EQ(desk.rows(courseStore, "Select orderno, blankno from blankno"), (QStringList{"0|1", "1|3"}));
    EXPECT_EQ(box(screen, "txtWord(1)").text(), QStringLiteral("one2"));
    EXPECT_EQ(box(screen, "txtWord(1)").foreColor(), colour::red);
    EXPECT_TRUE(box(screen, "txtWord(1)").locked());
    EXPECT_EQ(box(screen, "txtWord(1)").mark(), BoxMark::Wrong);
    EXPECT_FALSE(box(screen, "txtWord(0)").locked());
    EXPECT_EQ(box(screen, "txtWord(0)").mark(), BoxMark::Right);
    EXPECT_FALSE(visible(screen, "picQuiz"));
    EXPECT_TRUE(visible(screen, "picBegin"));
    EXPECT_TRUE(desk.sound.names().isEmpty());
}

TEST(TypedColumn, BeginEmptiesTheWrongBoxesAloneAndEnterWalksThem) {
    QuizDesk desk;
    desk.layStep(2, rows(5));
    core::Screen* screen = desk.run("frmQuiz2");
    fill(screen, "txtWord", "one", 5, {1, 4});
    press(screen, "picQuiz");
    const QStringList order = desk.column("orderno");
    press(screen, "picBegin");
    EXPECT_EQ(desk.column("orderno"), order);
    EXPECT_EQ(box(screen, "txtWord(0)").text(), QStringLiteral("one1"));
    EXPECT_EQ(box(screen, "txtWord(1)").text(), QString());
    EXPECT_EQ(box(screen, "txtWord(1)").foreColor(), colour::black);
    EXPECT_FALSE(box(screen, "txtWord(1)").locked());
    EXPECT_EQ(focus(screen), QStringLiteral("txtWord(1)"));
    pressEnter(screen, "txtWord(1)");
    EXPECT_EQ(focus(screen), QStringLiteral("txtWord(4)"));
    pressEnter(screen, "txtWord(4)");
    EXPECT_EQ(focus(screen), QStringLiteral("txtWord(4)"));
    pressEnter(screen, "txtWord(2)");
    EXPECT_EQ(focus(screen), QStringLiteral("txtWord(4)"));
    EXPECT_TRUE(visible(screen, "picQuiz"));
    EXPECT_FALSE(visible(screen, "picBegin"));
}

TEST(TypedColumn, ABoxThatWasRightIsJudgedAnewAtTheRetry) {
    QuizDesk desk;
    desk.layStep(2, rows(2));
    core::Screen* screen = desk.run("frmQuiz2");
    fill(screen, "txtWord", "one", 2, {1});
    press(screen, "picQuiz");
    press(screen, "picBegin");
    fill(screen, "txtWord", "one", 2, {0});
    press(screen, "picQuiz");
    EXPECT_EQ(desk.rows(courseStore, "Select orderno, blankno from blankno"), QStringList{"0|0"});
    EXPECT_EQ(desk.boxes.shown.size(), 2U);
}

TEST(TypedColumn, EnterGoesDownTheFirstPassAndStopsAtTheLastBox) {
    QuizDesk desk;
    desk.layStep(2, rows(2));
    core::Screen* screen = desk.run("frmQuiz2");
    EXPECT_EQ(focus(screen), QStringLiteral("txtWord(0)"));
    pressEnter(screen, "txtWord(0)");
    EXPECT_EQ(focus(screen), QStringLiteral("txtWord(1)"));
    pressEnter(screen, "txtWord(1)");
    EXPECT_EQ(focus(screen), QStringLiteral("txtWord(1)"));
    EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(TypedColumn, APassIsSilentAndOffersNoRepeat) {
    QuizDesk desk;
    desk.layStep(2, rows(2));
    core::Screen* screen = desk.run("frmQuiz2");
    fill(screen, "txtWord", "one", 2);
    desk.boxes.onShow = [&](const platform::Message&) { EXPECT_EQ(desk.scores(), QStringList{"2|100"}); };
    press(screen, "picQuiz");
    EXPECT_EQ(desk.boxes.texts(), QStringList{endMessage});
    EXPECT_TRUE(desk.sound.names().isEmpty());
    EXPECT_FALSE(visible(screen, "picBegin"));
    EXPECT_FALSE(visible(screen, "picQuiz"));
    EXPECT_TRUE(visible(screen, "picNext"));
}

TEST(TypedColumn, TheTeachersBoxesHoldTheAnswers) {
    QuizDesk desk;
    desk.layStep(2, rows(2));
    desk.session.teacherMode = QStringLiteral("Teacher");
    core::Screen* screen = desk.run("frmQuiz2");
    EXPECT_EQ(box(screen, "txtWord(1)").text(), QStringLiteral("one2"));
}

TEST(TypedColumn, TheCounterShowsTheItemBeforeARiseOfOne) {
    QuizDesk desk;
    desk.layStep(2, rows(3));
    desk.enterFinal(1, 2);
    desk.session.finalItemNo = 4;
    core::Screen* screen = desk.run("frmQuiz2");
    EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("4"));
    EXPECT_EQ(static_cast<int>(desk.session.finalItemNo), 5);
}

TEST(TypedColumn, TheEndOfAFinalQuizHasNoIconAndIsStoredAfterwards) {
    QuizDesk desk;
    desk.layStep(2, rows(1));
    desk.layTable();
    desk.enterFinal(2, 2);
    desk.session.finalStepScores[0] = 50;
    core::Screen* screen = desk.run("frmQuiz2");
    fill(screen, "txtWord", "one", 1);
    desk.boxes.onShow = [&](const platform::Message&) { EXPECT_TRUE(desk.scores().isEmpty()); };
    press(screen, "picQuiz");
    EXPECT_NE(desk.awaitScreen(QStringLiteral("frmTable")), nullptr) << desk.failure().toStdString();
    EXPECT_EQ(desk.boxes.texts(), QStringList{completed});
    EXPECT_EQ(desk.boxes.shown[0].icon, platform::BoxIcon::None);
    EXPECT_EQ(desk.scores(), QStringList{"20|75"});
}

TEST(TypedColumn, DigitsInABoxStayTyping) {
    QuizDesk desk;
    desk.layStep(2, rows(1));
    core::Screen* screen = desk.run("frmQuiz2");
    support::type(box(screen, "txtWord(0)"), "1234");
    EXPECT_EQ(box(screen, "txtWord(0)").text(), QStringLiteral("1234"));
}

TEST(TwoTypedColumns, QuestionsStandInLowerCaseAndTheTeacherGetsNoHelp) {
    QuizDesk desk;
    desk.layStep(2, rows(1));
    desk.session.teacherMode = QStringLiteral("Teacher");
    core::Screen* screen = desk.run("frmQuiz9");
    EXPECT_EQ(caption(screen, "lblWord(0)"), QStringLiteral("word 1"));
    EXPECT_EQ(box(screen, "txtWord(0)").text(), QString());
}

TEST(TwoTypedColumns, WhatWasTypedBeforeIsNotClearedAtTheStart) {
    QuizDesk desk;
    auto made = rows(1);
    made[0]["q2"] = "old";
    made[0]["q3"] = "older";
    desk.layStep(2, made);
    core::Screen* screen = desk.run("frmQuiz9");
    EXPECT_EQ(desk.column("q2 || '/' || q3"), QStringList{"old/older"});
    EXPECT_EQ(box(screen, "txtWord(0)").text(), QString());
}

TEST(TwoTypedColumns, EachColumnHasItsOwnListOfWrongBoxes) {
    QuizDesk desk;
    desk.layStep(2, rows(3));
    core::Screen* screen = desk.run("frmQuiz9");
    fill(screen, "txtWord", "one", 3, {0, 2});
    fill(screen, "txtWord2", "two", 3, {1});
    press(screen, "picQuiz");
    EXPECT_EQ(desk.rows(courseStore, "Select orderno, blankno from blankno"), (QStringList{"0|0", "1|2"}));
    EXPECT_EQ(desk.rows(courseStore, "Select orderno, blankno from blankno2"), QStringList{"0|1"});
    EXPECT_EQ(desk.column("q2 || '/' || q3"), (QStringList{"wrong/two1", "one2/wrong", "wrong/two3"}));
    press(screen, "picBegin");
    EXPECT_EQ(focus(screen), QStringLiteral("txtWord(0)"));
    EXPECT_EQ(box(screen, "txtWord2(1)").text(), QString());
    EXPECT_FALSE(box(screen, "txtWord2(1)").locked());
    EXPECT_EQ(box(screen, "txtWord2(0)").text(), QStringLiteral("two1"));
}

TEST(TwoTypedColumns, EnterKeepsItsFirstPassThroughARetry) {
    QuizDesk desk;
    desk.layStep(2, rows(3));
    core::Screen* screen = desk.run("frmQuiz9");
    fill(screen, "txtWord", "one", 3, {0, 2});
    fill(screen, "txtWord2", "two", 3);
    press(screen, "picQuiz");
    press(screen, "picBegin");
    pressEnter(screen, "txtWord(0)");
    EXPECT_EQ(focus(screen), QStringLiteral("txtWord2(0)"));
    pressEnter(screen, "txtWord2(0)");
    EXPECT_EQ(focus(screen), QStringLiteral("txtWord(1)"));
}

TEST(TwoTypedColumns, EnterOnTheLastBoxJudgesWithItsOwnWording) {
    QuizDesk desk;
    desk.layStep(2, rows(2));
    core::Screen* screen = desk.run("frmQuiz9");
    fill(screen, "txtWord", "one", 2, {0});
    fill(screen, "txtWord2", "two", 2);
    pressEnter(screen, "txtWord2(1)");
    EXPECT_EQ(desk.boxes.texts(), QStringList{wrongByEnter});
    press(screen, "picBegin");
    press(screen, "picQuiz");
    EXPECT_EQ(desk.boxes.lastText(), wrongByButton);
}

TEST(TwoTypedColumns, APassByTheButtonIsSilentAndByEnterItSounds) {
    for (const bool byEnter : {false, true}) {
        QuizDesk desk;
        desk.layStep(2, rows(1));
        core::Screen* screen = desk.run("frmQuiz9");
        fill(screen, "txtWord", "one", 1);
        fill(screen, "txtWord2", "two", 1);
        desk.boxes.onShow = [&](const platform::Message&) {
            EXPECT_EQ(desk.scores(), QStringList{"2|100"});
            EXPECT_TRUE(visible(screen, "picBegin"));
        };
        if (byEnter)
            pressEnter(screen, "txtWord2(0)");
        else
            press(screen, "picQuiz");
        EXPECT_EQ(desk.boxes.lastText(),
                  byEnter ? QStringLiteral("Good Job!  다음 레슨을 학습하려면 <Next> 버튼을 클릭하십시오.")
                          : endMessage);
        EXPECT_EQ(desk.boxes.shown[0].icon, platform::BoxIcon::Information);
        EXPECT_EQ(desk.sound.names(), byEnter ? QStringList{"contestbegin.wav"} : QStringList{});
        EXPECT_TRUE(visible(screen, "picBegin"));
        EXPECT_FALSE(visible(screen, "picQuiz"));
        // The walk is on now, and there is nothing to walk to.
        pressEnter(screen, "txtWord(0)");
        EXPECT_NE(focus(screen), QStringLiteral("txtWord2(0)"));
    }
}

TEST(TwoTypedColumns, BeginStopsTheScreenWhenOnlyTheSecondColumnWasWrong) {
    QuizDesk desk;
    desk.layStep(2, rows(1));
    core::Screen* screen = desk.run("frmQuiz9");
    fill(screen, "txtWord", "one", 1);
    press(screen, "picQuiz");
    press(screen, "picBegin");
    EXPECT_TRUE(desk.failure().contains(QStringLiteral("blankno"))) << desk.failure().toStdString();
}

TEST(TwoTypedColumns, BeginStopsTheScreenAfterAPass) {
    QuizDesk desk;
    desk.layStep(2, rows(1));
    core::Screen* screen = desk.run("frmQuiz9");
    fill(screen, "txtWord", "one", 1);
    fill(screen, "txtWord2", "two", 1);
    press(screen, "picQuiz");
    press(screen, "picBegin");
    EXPECT_FALSE(desk.failure().isEmpty());
}

TEST(TwoTypedColumns, CountersAppearWithTheLastItemAndBeginRefreshesThem) {
    QuizDesk desk;
    desk.layStep(2, rows(3));
    desk.enterFinal(1, 2);
    desk.session.finalItemNo = 4;
    core::Screen* screen = desk.run("frmQuiz9");
    EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("7"));
    EXPECT_EQ(static_cast<int>(desk.session.finalItemNo), 7);
    press(screen, "picQuiz");
    desk.session.finalItemNo = 9;
    press(screen, "picBegin");
    EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("9"));
}

TEST(TwoTypedColumns, AFinalQuizThatEndsByEnterStores100WhateverCameBefore) {
    for (const bool byEnter : {false, true}) {
        QuizDesk desk;
        desk.layStep(2, rows(1));
        desk.layTable();
        desk.enterFinal(2, 2);
        desk.session.finalStepScores[0] = 0;
        core::Screen* screen = desk.run("frmQuiz9");
        fill(screen, "txtWord", "one", 1);
        fill(screen, "txtWord2", "two", 1);
        if (byEnter)
            pressEnter(screen, "txtWord2(0)");
        else
            press(screen, "picQuiz");
        EXPECT_NE(desk.awaitScreen(QStringLiteral("frmTable")), nullptr) << desk.failure().toStdString();
        EXPECT_EQ(desk.boxes.texts(), QStringList{completed});
        EXPECT_EQ(desk.boxes.shown[0].icon, platform::BoxIcon::None);
        EXPECT_EQ(desk.scores(), QStringList{byEnter ? "20|100" : "20|50"});
        EXPECT_EQ(static_cast<int>(desk.session.finalStepScores[1]), byEnter ? 0 : 100);
    }
}

TEST(TwoTypedColumns, AStepOfAFinalQuizPassedByEnterKeepsNoScoreAndBringsUpTheNext) {
    QuizDesk desk;
    desk.layStep(2, rows(1));
    desk.exec(courseStore,
              "Insert into quiz_data_New3 (topicno, recordno, q1, q2, q3, a1, a2) values "
              "(1, 3, 't', 'x', 'y', 'x', '');"
              "Insert into tablework_Final (recordno, topicno, pageno, Title, useform) values "
              "(2, 1, 2, 'a', 'frmQuiz9'), (3, 1, 3, 'b', 'frmQuiz7')");
    desk.enterFinal(1, 2);
    desk.session.finalStepScores[0] = 7;
    core::Screen* screen = desk.run("frmQuiz9");
    fill(screen, "txtWord", "one", 1);
    fill(screen, "txtWord2", "two", 1);
    pressEnter(screen, "txtWord2(0)");
    EXPECT_NE(desk.awaitScreen(QStringLiteral("frmQuiz7")), nullptr) << desk.failure().toStdString();
    EXPECT_EQ(static_cast<int>(desk.session.finalStepScores[0]), 7);
    EXPECT_EQ(static_cast<int>(desk.session.finalStepNo), 2);
    EXPECT_TRUE(desk.boxes.shown.empty());
    EXPECT_TRUE(desk.scores().isEmpty());
}
