// The tables that are answered by picking: frmQuiz, two choices a row, and frmQuiz11 and frmQuiz12, one pool.

#include "tests/quizzes/quiz_desk.h"

using platform::BoxMark;
namespace colour = platform::colour;

namespace {

/// Rows whose right choice is the first; the answers are word1, word2, ...
std::vector<QuizDesk::Question> rows(int count) {
    std::vector<QuizDesk::Question> made;
    for (int i = 1; i <= count; ++i) {
        const std::string word = "word" + std::to_string(i);
        made.push_back({{"q1", "Q" + std::to_string(i)}, {"q2", word}, {"q3", "other"}, {"a1", word}});
    }
    return made;
}

/// Both orders of a pool as stored.
void layPool(QuizDesk& desk, int count) {
    desk.layStep(2, rows(count));
    desk.queueStoredOrder(count);
}

void pressAll(core::Screen* screen, const char* array, int count) {
    for (int i = 0; i < count; ++i)
        press(screen, qPrintable(QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(i)));
}

const QString wrongMessage =
    QStringLiteral("틀린 답을 선택하였습니다.\n\n다시 <Begin>을 클릭하여 올바른 정답을 선택하십시오.");
const QString endMessage =
    QStringLiteral("퀴즈가 종료되었습니다.\n\n다음 레슨을 학습하려면 <Next>를 클릭하세요.");
const QString completed = QStringLiteral("Good Job! Grammar Final Quiz Completed!");

/// What had happened by the time a message came.
struct AtMessage {
    QStringList scores;
    QStringList sounds;
    bool begin = false;
};

AtMessage passAndLook(QuizDesk& desk, core::Screen* screen) {
    AtMessage seen;
    desk.boxes.onShow = [&](const platform::Message&) {
        seen = {desk.scores(), desk.sound.names(), visible(screen, "picBegin")};
    };
    press(screen, "picQuiz");
    return seen;
}

}  // namespace

TEST(RowChoice, APickTurnsRedStandsInTheAnswerColumnAndMayBeChanged) {
    QuizDesk desk;
    desk.layStep(2, rows(2));
    core::Screen* screen = desk.run("frmQuiz");
    press(screen, "lblWord3(1)");
    EXPECT_EQ(caption(screen, "lblWord4(1)"), QStringLiteral("other"));
    EXPECT_EQ(label(screen, "lblWord3(1)").foreColor(), colour::red);
    press(screen, "lblWord2(1)");
    EXPECT_EQ(caption(screen, "lblWord4(1)"), QStringLiteral("word2"));
    EXPECT_EQ(label(screen, "lblWord2(1)").foreColor(), colour::red);
    EXPECT_EQ(label(screen, "lblWord3(1)").foreColor(), colour::black);
    EXPECT_EQ(caption(screen, "lblWord4(0)"), QString());
}

TEST(RowChoice, AFailedCheckShowsTheAnswersAndLeavesTheRightRowsAsTheyAreUntilBegin) {
    QuizDesk desk;
    desk.layStep(2, rows(3));
    core::Screen* screen = desk.run("frmQuiz");
    press(screen, "lblWord2(0)");
    press(screen, "lblWord3(1)");
    press(screen, "picQuiz");
    EXPECT_EQ(desk.boxes.texts(), QStringList{wrongMessage});
    EXPECT_TRUE(desk.sound.names().isEmpty());
    EXPECT_EQ(label(screen, "lblWord2(0)").foreColor(), colour::red);
    EXPECT_EQ(label(screen, "lblWord4(0)").foreColor(), colour::black);
    EXPECT_EQ(label(screen, "lblWord4(0)").mark(), BoxMark::Right);
    for (const char* wrong : {"lblWord4(1)", "lblWord4(2)"}) {
        EXPECT_EQ(label(screen, wrong).foreColor(), colour::red);
        EXPECT_EQ(label(screen, wrong).mark(), BoxMark::Wrong);
    }
    EXPECT_EQ(caption(screen, "lblWord4(1)"), QStringLiteral("word2"));
    EXPECT_EQ(label(screen, "lblWord3(1)").foreColor(), colour::black);
    EXPECT_FALSE(visible(screen, "picQuiz"));
    EXPECT_FALSE(visible(screen, "lblQuiz"));
    EXPECT_TRUE(visible(screen, "picBegin"));
    EXPECT_TRUE(desk.scores().isEmpty());
    EXPECT_EQ(desk.column("correct"), (QStringList{"NULL", "NULL", "NULL"}));
}

TEST(RowChoice, BeginWipesEveryAnswerAndBringsANewOrder) {
    QuizDesk desk;
    desk.layStep(2, rows(2));
    core::Screen* screen = desk.run("frmQuiz");
    const int items = desk.session.finalItemNo;
    press(screen, "lblWord2(0)");
    press(screen, "picQuiz");
    desk.queueOrder({2, 1});
    press(screen, "picBegin");
    EXPECT_EQ(caption(screen, "lblWord(0)"), QStringLiteral("Q2"));
    for (const char* cell : {"lblWord4(0)", "lblWord4(1)"}) {
        EXPECT_EQ(caption(screen, cell), QString());
        EXPECT_EQ(label(screen, cell).foreColor(), colour::black);
        EXPECT_EQ(label(screen, cell).mark(), BoxMark::None);
    }
    EXPECT_EQ(label(screen, "lblWord2(0)").foreColor(), colour::black);
    EXPECT_TRUE(visible(screen, "picQuiz"));
    EXPECT_FALSE(visible(screen, "picBegin"));
    EXPECT_EQ(static_cast<int>(desk.session.finalItemNo), items);
}

TEST(RowChoice, ThePassSoundsStoresAndIsToldBeforeBeginComes) {
    QuizDesk desk;
    desk.layStep(2, rows(2));
    core::Screen* screen = desk.run("frmQuiz");
    pressAll(screen, "lblWord2", 2);
    const AtMessage seen = passAndLook(desk, screen);
    EXPECT_EQ(seen.scores, QStringList{"2|100"});
    EXPECT_EQ(seen.sounds, QStringList{"contestbegin.wav"});
    EXPECT_FALSE(seen.begin);
    EXPECT_TRUE(visible(screen, "picBegin"));
    EXPECT_FALSE(visible(screen, "picQuiz"));
    EXPECT_EQ(desk.boxes.texts(), QStringList{endMessage});
}

TEST(RowChoice, DigitsPickInTheRowThatHasTheKeyboard) {
    QuizDesk desk;
    desk.layStep(2, rows(2));
    core::Screen* screen = desk.run("frmQuiz");
    EXPECT_EQ(support::focusName(screen), QStringLiteral("lblWord2(0)"));
    QTest::keyClick(&part(screen, "lblWord2(0)"), Qt::Key_2);
    EXPECT_EQ(caption(screen, "lblWord4(0)"), QStringLiteral("other"));
    part(screen, "lblWord3(1)").setFocus();
    QTest::keyClick(&part(screen, "lblWord3(1)"), Qt::Key_1);
    EXPECT_EQ(caption(screen, "lblWord4(1)"), QStringLiteral("word2"));
}

TEST(RowChoice, FifteenRowsFitAndTheSixteenthStopsTheFirstTick) {
    QuizDesk desk;
    desk.layStep(2, rows(15));
    core::Screen* screen = desk.run("frmQuiz");
    ASSERT_NE(screen, nullptr);
    EXPECT_TRUE(visible(screen, "lblWord(14)"));
    EXPECT_TRUE(screen->rect().contains(part(screen, "lblWord(14)").geometry()));
    screen->unload();
    for (const char* form : {"frmQuiz", "frmQuiz2", "frmQuiz9", "frmQuiz11", "frmQuiz12"}) {
        QuizDesk other;
        other.layStep(2, rows(16));
        EXPECT_EQ(other.run(form), nullptr);
        EXPECT_TRUE(other.failure().contains(
            QStringLiteral("Step 2 (%1): it has 16 questions, and the screen has room for 15")
                .arg(QLatin1String(form))))
            << other.failure().toStdString();
    }
}

TEST(RowChoice, AChoiceThatDiffersInCapitalsAloneIsWrong) {
    QuizDesk desk;
    desk.layStep(2, {{{"q1", "Q"}, {"q2", "May"}, {"q3", "may"}, {"a1", "May"}}});
    core::Screen* screen = desk.run("frmQuiz");
    press(screen, "lblWord3(0)");
    press(screen, "picQuiz");
    EXPECT_EQ(label(screen, "lblWord4(0)").mark(), BoxMark::Wrong);
    EXPECT_EQ(desk.boxes.texts(), QStringList{wrongMessage});
}

TEST(Pool, QuestionsAndAnswersStandInTwoOrders) {
    for (const char* form : {"frmQuiz11", "frmQuiz12"}) {
        QuizDesk desk;
        desk.layStep(2, rows(3));
        desk.random.draws.clear();
        desk.queueOrder({3, 1, 2});
        desk.queueOrder({2, 3, 1});
        core::Screen* screen = desk.run(form);
        EXPECT_EQ(desk.column("orderno"), (QStringList{"3", "1", "2"}));
        EXPECT_EQ(desk.column("orderno2"), (QStringList{"2", "3", "1"}));
        EXPECT_EQ(caption(screen, "lblWord(0)"), QStringLiteral("Q2"));
        EXPECT_EQ(caption(screen, "lblWord3(0)"), QStringLiteral("word3"));
        EXPECT_EQ(caption(screen, "lblWord2(0)"), QString());
    }
}

TEST(Pool, TwoPicksOfOneWordFillTwoSlotsAndTheCheckMarksTheWrongOne) {
    QuizDesk desk;
    layPool(desk, 2);
    core::Screen* screen = desk.run("frmQuiz11");
    press(screen, "lblWord3(0)");
    press(screen, "lblWord3(0)");
    EXPECT_EQ(caption(screen, "lblWord2(1)"), QStringLiteral("word1"));
    press(screen, "picQuiz");
    EXPECT_EQ(label(screen, "lblWord2(0)").mark(), BoxMark::Right);
    EXPECT_EQ(label(screen, "lblWord2(0)").foreColor(), colour::black);
    EXPECT_EQ(label(screen, "lblWord2(1)").mark(), BoxMark::Wrong);
    EXPECT_EQ(label(screen, "lblWord2(1)").foreColor(), colour::red);
    EXPECT_EQ(caption(screen, "lblWord2(1)"), QStringLiteral("word2"));
    EXPECT_EQ(desk.boxes.texts(), QStringList{wrongMessage});
}

TEST(Pool, AnAnswerThatDiffersInCapitalsAloneIsWrong) {
    QuizDesk desk;
    auto made = rows(2);
    made[0]["a1"] = "May";
    made[1]["a1"] = "may";
    desk.layStep(2, made);
    desk.queueStoredOrder(2);
    core::Screen* screen = desk.run("frmQuiz11");
    press(screen, "lblWord3(1)");
    press(screen, "lblWord3(0)");
    press(screen, "picQuiz");
    EXPECT_EQ(label(screen, "lblWord2(0)").mark(), BoxMark::Wrong);
    EXPECT_EQ(label(screen, "lblWord2(1)").mark(), BoxMark::Wrong);
}

TEST(Pool, ReSetAfterAFailedCheckEmptiesTheSlotsYetThePoolStaysDeadUntilBegin) {
    QuizDesk desk;
    layPool(desk, 2);
    core::Screen* screen = desk.run("frmQuiz11");
    press(screen, "lblWord3(1)");
    press(screen, "picQuiz");
    press(screen, "cmdReset");
    EXPECT_EQ(caption(screen, "lblWord2(0)"), QString());
    EXPECT_EQ(label(screen, "lblWord2(0)").foreColor(), colour::red);
    press(screen, "lblWord3(0)");
    EXPECT_EQ(caption(screen, "lblWord2(0)"), QString());
    desk.queueOrder({2, 1});
    press(screen, "picBegin");
    EXPECT_EQ(caption(screen, "lblWord(0)"), QStringLiteral("Q2"));
    EXPECT_EQ(caption(screen, "lblWord3(0)"), QStringLiteral("word1"));
    press(screen, "lblWord3(0)");
    EXPECT_EQ(caption(screen, "lblWord2(0)"), QStringLiteral("word1"));
    EXPECT_EQ(label(screen, "lblWord2(0)").foreColor(), colour::black);
}

TEST(Pool, TheSecondPoolStaysAliveAfterAFailedCheckAndMarksItsRows) {
    QuizDesk desk;
    layPool(desk, 2);
    core::Screen* screen = desk.run("frmQuiz12");
    press(screen, "lblWord3(0)");
    press(screen, "picQuiz");
    EXPECT_EQ(desk.column("correct"), (QStringList{"NULL", "NO"}));
    press(screen, "cmdReset");
    press(screen, "lblWord3(0)");
    EXPECT_EQ(caption(screen, "lblWord2(0)"), QStringLiteral("word1"));
}

TEST(Pool, TheFirstPoolMarksNoRows) {
    QuizDesk desk;
    layPool(desk, 2);
    core::Screen* screen = desk.run("frmQuiz11");
    press(screen, "picQuiz");
    EXPECT_EQ(desk.column("correct"), (QStringList{"NULL", "NULL"}));
}

TEST(Pool, AClickOnASlotTurnsItRedAndItsPoolWordBlack) {
    QuizDesk desk;
    layPool(desk, 2);
    core::Screen* screen = desk.run("frmQuiz11");
    press(screen, "lblWord2(1)");
    EXPECT_EQ(label(screen, "lblWord2(1)").foreColor(), colour::red);
    EXPECT_EQ(label(screen, "lblWord3(1)").foreColor(), colour::black);
    EXPECT_EQ(caption(screen, "lblWord2(1)"), QString());
}

TEST(Pool, PicksBeyondTheRowsAreNotLookedAtAndTheSixteenthStopsTheScreen) {
    QuizDesk desk;
    layPool(desk, 2);
    core::Screen* screen = desk.run("frmQuiz12");
    press(screen, "lblWord3(0)");
    for (int i = 0; i < 14; ++i)
        press(screen, "lblWord3(1)");
    press(screen, "picQuiz");
    EXPECT_EQ(desk.scores(), QStringList{"2|100"});
    EXPECT_EQ(desk.failure(), QString());
    press(screen, "lblWord3(1)");
    EXPECT_TRUE(desk.failure().contains(QStringLiteral("lblWord2(15)"))) << desk.failure().toStdString();
}

TEST(Pool, DigitsPickTheWordsOfTheFirstRowsThatStand) {
    QuizDesk desk;
    layPool(desk, 2);
    core::Screen* screen = desk.run("frmQuiz11");
    for (const Qt::Key key : {Qt::Key_2, Qt::Key_3, Qt::Key_1})
        QTest::keyClick(screen, key);
    EXPECT_EQ(caption(screen, "lblWord2(0)"), QStringLiteral("word2"));
    EXPECT_EQ(caption(screen, "lblWord2(1)"), QStringLiteral("word1"));
}

TEST(Pool, ThePassOfTheFirstPoolStoresThenSounds) {
    QuizDesk desk;
    layPool(desk, 2);
    core::Screen* screen = desk.run("frmQuiz11");
    pressAll(screen, "lblWord3", 2);
    const AtMessage seen = passAndLook(desk, screen);
    EXPECT_EQ(seen.scores, QStringList{"2|100"});
    EXPECT_EQ(seen.sounds, QStringList{"contestbegin.wav"});
    EXPECT_FALSE(seen.begin);
    EXPECT_TRUE(visible(screen, "picBegin"));
    press(screen, "lblWord3(0)");
    EXPECT_EQ(caption(screen, "lblWord2(2)"), QStringLiteral("word1"));
}

TEST(Pool, ThePassOfTheSecondPoolIsSilent) {
    QuizDesk desk;
    layPool(desk, 2);
    core::Screen* screen = desk.run("frmQuiz12");
    pressAll(screen, "lblWord3", 2);
    const AtMessage seen = passAndLook(desk, screen);
    EXPECT_EQ(seen.scores, QStringList{"2|100"});
    EXPECT_TRUE(desk.sound.names().isEmpty());
    EXPECT_EQ(desk.boxes.texts(), QStringList{endMessage});
    EXPECT_TRUE(visible(screen, "picBegin"));
}

TEST(Pool, TheAnswerLineTellsTheFirstRowAndFollowsBegin) {
    QuizDesk desk;
    layPool(desk, 2);
    desk.session.teacherMode = QStringLiteral("Teacher");
    core::Screen* screen = desk.run("frmQuiz12");
    EXPECT_EQ(caption(screen, "lblAnswer"), QStringLiteral("Answer: word1 / "));
    press(screen, "picQuiz");
    desk.queueOrder({2, 1});
    press(screen, "picBegin");
    EXPECT_EQ(caption(screen, "lblAnswer"), QStringLiteral("Answer: word2 / "));
}

TEST(PickedTables, CountersInAFinalQuizStandAsEachScreenLeavesThem) {
    struct Case {
        const char* form;
        const char* current;
    };
    for (const Case& one : {Case{"frmQuiz", "6"}, Case{"frmQuiz11", "7"}, Case{"frmQuiz12", "6"}}) {
        QuizDesk desk;
        layPool(desk, 3);
        desk.enterFinal(1, 2);
        desk.session.finalItemNo = 4;
        core::Screen* screen = desk.run(one.form);
        EXPECT_EQ(caption(screen, "lblCurrent"), QLatin1String(one.current)) << one.form;
        EXPECT_EQ(caption(screen, "lblTotal"), QStringLiteral("10"));
        EXPECT_EQ(static_cast<int>(desk.session.finalItemNo), 7) << one.form;
    }
}

TEST(PickedTables, InAnOrdinaryStepTheItemNumberGrowsUnseen) {
    QuizDesk desk;
    desk.layStep(2, rows(3));
    core::Screen* screen = desk.run("frmQuiz");
    EXPECT_EQ(static_cast<int>(desk.session.finalItemNo), 3);
    EXPECT_FALSE(visible(screen, "lblCurrent"));
}

TEST(PickedTables, TheLastStepOfAFinalQuizIsToldWithEachScreensOwnIconAndThenStored) {
    for (const char* form : {"frmQuiz", "frmQuiz11", "frmQuiz12"}) {
        QuizDesk desk;
        layPool(desk, 2);
        desk.layTable();
        desk.enterFinal(2, 2);
        desk.session.finalStepScores[0] = 50;
        core::Screen* screen = desk.run(form);
        const bool picks = QLatin1String(form) == QLatin1String("frmQuiz");
        pressAll(screen, picks ? "lblWord2" : "lblWord3", 2);
        desk.boxes.onShow = [&](const platform::Message&) { EXPECT_TRUE(desk.scores().isEmpty()); };
        press(screen, "picQuiz");
        EXPECT_NE(desk.awaitScreen(QStringLiteral("frmTable")), nullptr) << desk.failure().toStdString();
        EXPECT_EQ(desk.boxes.texts(), QStringList{completed});
        EXPECT_EQ(desk.boxes.shown[0].icon, picks ? platform::BoxIcon::Information : platform::BoxIcon::None);
        EXPECT_EQ(desk.scores(), QStringList{"20|75"});
        EXPECT_EQ(desk.sound.names(), QStringList{"contestbegin.wav"});
    }
}
