// The quizzes that are answered by clicking choices: frmQuiz8 and frmQuiz3, and what tells them from
// frmQuiz7.

#include "tests/quizzes/quiz_desk.h"

namespace {

QuizDesk::Question fourWay(const char* a1, const char* a2 = "") {
    return {{"q1", "I ____."}, {"q2", "Go"}, {"q3", "go"}, {"q4", "went"},
            {"q5", "gone"},    {"a1", a1},   {"a2", a2}};
}

QuizDesk::Question pairs(const char* a1 = "I", const char* a2 = "my") {
    return {{"q1", "(1) (2)"}, {"q2", "나는"}, {"q3", "."}, {"q4", "I"}, {"q5", "i"},
            {"q6", "my"},      {"q7", "me"},   {"a1", a1},  {"a2", a2}};
}

const platform::Message& last(const QuizDesk& desk) {
    return desk.boxes.shown.back();
}

}  // namespace

TEST(TwoChoices, ACapitalInAChoiceDoesNotMatterButABlankDoes) {
    for (const char* form : {"frmQuiz7", "frmQuiz8"}) {
        QuizDesk desk;
        desk.layStep(2, {{{"q1", "s"}, {"q2", "GO"}, {"q3", "no"}, {"a1", "go"}},
                         {{"q1", "s"}, {"q2", "go "}, {"q3", "no"}, {"a1", "go"}}});
        core::Screen* screen = desk.run(form);
        press(screen, "lblWord2(0)");
        press(screen, "lblWord2(0)");
        EXPECT_EQ(desk.scores(), QStringList{"2|50"}) << form;
    }
}

TEST(TwoChoices, AClickAfterTheLastQuestionDoesNothingUntilBegin) {
    for (const char* form : {"frmQuiz7", "frmQuiz8"}) {
        QuizDesk desk;
        desk.layStep(2, {fourWay("go")});
        core::Screen* screen = desk.run(form);
        press(screen, "lblWord2(0)");
        const std::size_t told = desk.boxes.shown.size();
        press(screen, "lblWord2(1)");
        QTest::keyClick(screen, Qt::Key_2);
        EXPECT_EQ(desk.boxes.shown.size(), told);
        EXPECT_EQ(desk.sound.names(), QStringList{"correct.wav"});
        press(screen, "picBegin");
        press(screen, "lblWord2(1)");
        EXPECT_EQ(desk.sound.names(), (QStringList{"correct.wav", "correct.wav"})) << form;
    }
}

TEST(TwoChoices, NeitherScreenHasAButtonToCheck) {
    for (const char* form : {"frmQuiz7", "frmQuiz8"}) {
        QuizDesk desk;
        desk.layStep(2, {fourWay("go")});
        EXPECT_EQ(desk.run(form)->findChild<QWidget*>(QStringLiteral("picQuiz")), nullptr);
    }
}

TEST(TwoChoices, MovingOverAChoiceChangesNothing) {
    QuizDesk desk;
    desk.layStep(2, {fourWay("go")});
    core::Screen* screen = desk.run("frmQuiz7");
    support::hover(*screen);
    support::hover(part(screen, "lblWord2(0)"));
    EXPECT_EQ(label(screen, "lblWord2(0)").foreColor(), platform::colour::black);
}

TEST(FourChoices, EmptyThirdAndFourthChoicesLeaveATwoWayChoice) {
    for (const char* missing : {"", "NULL"}) {
        QuizDesk desk;
        auto question = fourWay("go");
        question["q4"] = missing;
        question["q5"] = missing;
        desk.layStep(2, {question});
        core::Screen* screen = desk.run("frmQuiz8");
        EXPECT_TRUE(visible(screen, "lblWord2(1)"));
        EXPECT_FALSE(visible(screen, "lblWord2(2)"));
        EXPECT_FALSE(visible(screen, "lblWord2(3)"));
        QTest::keyClick(screen, Qt::Key_3);
        EXPECT_TRUE(desk.boxes.shown.empty());
    }
}

TEST(FourChoices, AChoiceThatWasHiddenComesBackWithTheNextQuestion) {
    QuizDesk desk;
    auto first = fourWay("go");
    first["q5"] = "";
    desk.layStep(2, {first, fourWay("gone")});
    core::Screen* screen = desk.run("frmQuiz8");
    EXPECT_FALSE(visible(screen, "lblWord2(3)"));
    press(screen, "lblWord2(0)");
    EXPECT_TRUE(visible(screen, "lblWord2(3)"));
    QTest::keyClick(screen, Qt::Key_4);
    EXPECT_EQ(desk.scores(), QStringList{"2|100"});
}

TEST(FourChoices, TheSecondAnswerCountsFromStep245To249Alone) {
    for (const int step : {244, 245, 249, 250}) {
        QuizDesk desk;
        desk.layStep(step, {fourWay("went", "GONE")});
        core::Screen* screen = desk.run("frmQuiz8");
        press(screen, "lblWord2(3)");
        const bool taken = step >= 245 && step <= 249;
        EXPECT_EQ(desk.scores(), QStringList{QStringLiteral("%1|%2").arg(step).arg(taken ? 100 : 0)});
        if (!taken) {
            EXPECT_EQ(desk.boxes.shown[0].text,
                      QStringLiteral("틀린 답을 선택하였습니다.\n\n올바른 문장은 went"));
        }
    }
}

TEST(FourChoices, TheMessageOfAWrongChoiceNamesTheFirstAnswerAlone) {
    QuizDesk desk;
    desk.layStep(246, {fourWay("went", "gone")});
    core::Screen* screen = desk.run("frmQuiz8");
    press(screen, "lblWord2(0)");
    EXPECT_EQ(desk.boxes.shown[0].text, QStringLiteral("틀린 답을 선택하였습니다.\n\n올바른 문장은 went"));
    EXPECT_EQ(desk.column("correct"), QStringList{"NO"});
}

TEST(FourChoices, AChoiceUnderTheMouseTurnsRedAndAllTurnBlackOverTheForm) {
    QuizDesk desk;
    desk.layStep(2, {fourWay("go")});
    core::Screen* screen = desk.run("frmQuiz8");
    const auto colour = [&](const char* name) { return label(screen, name).foreColor(); };
    support::hover(*screen);
    support::hover(part(screen, "lblWord2(0)"));
    support::hover(part(screen, "lblWord2(1)"));
    EXPECT_EQ(colour("lblWord2(0)"), platform::colour::red);
    EXPECT_EQ(colour("lblWord2(1)"), platform::colour::red);
    support::hover(*screen);
    EXPECT_EQ(colour("lblWord2(0)"), platform::colour::black);
    EXPECT_EQ(colour("lblWord2(1)"), platform::colour::black);
    EXPECT_TRUE(desk.sound.names().isEmpty());
}

TEST(FourChoices, WhileAButtonIsLitNoChoiceTurnsRed) {
    QuizDesk desk;
    desk.layStep(2, {fourWay("go")});
    core::Screen* screen = desk.run("frmQuiz8");
    support::hover(*screen);
    support::hover(part(screen, "lblWord2(0)"));
    support::hover(part(screen, "picNext"));
    EXPECT_EQ(desk.sound.names(), QStringList{"touchit.wav"}) << "a choice does not spend the hover state";
    support::hover(part(screen, "lblWord2(1)"));
    EXPECT_EQ(label(screen, "lblWord2(1)").foreColor(), platform::colour::black);
    support::hover(*screen);
    support::hover(part(screen, "lblWord2(1)"));
    EXPECT_EQ(label(screen, "lblWord2(1)").foreColor(), platform::colour::red);
}

TEST(TwoPicks, AnIncompletePickIsRefusedWithoutASound) {
    QuizDesk desk;
    desk.layStep(2, {pairs()});
    core::Screen* screen = desk.run("frmQuiz3");
    for (const char* first : {"", "lblWord4"}) {
        if (*first != '\0')
            press(screen, first);
        press(screen, "picQuiz");
        EXPECT_EQ(last(desk).text, QStringLiteral("답을 선택하십시오."));
        EXPECT_EQ(last(desk).icon, platform::BoxIcon::Information);
    }
    EXPECT_TRUE(desk.sound.names().isEmpty());
    EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("1"));
}

TEST(TwoPicks, APickMayBeChangedUntilItIsJudged) {
    QuizDesk desk;
    desk.layStep(2, {pairs(), pairs()});
    core::Screen* screen = desk.run("frmQuiz3");
    for (const char* pick : {"lblWord5", "lblWord4", "lblWord7", "lblWord6"})
        press(screen, pick);
    EXPECT_EQ(caption(screen, "lblWord8"), QStringLiteral("I"));
    EXPECT_EQ(caption(screen, "lblWord9"), QStringLiteral("my"));
    press(screen, "picQuiz");
    EXPECT_EQ(desk.sound.names(), QStringList{"correct.wav"});
    EXPECT_EQ(caption(screen, "lblWord8"), QString());
    EXPECT_EQ(caption(screen, "lblWord9"), QString());
}

TEST(TwoPicks, ACapitalMatters) {
    QuizDesk desk;
    desk.layStep(2, {pairs()});
    core::Screen* screen = desk.run("frmQuiz3");
    press(screen, "lblWord5");
    press(screen, "lblWord6");
    press(screen, "picQuiz");
    EXPECT_EQ(desk.boxes.shown[0].text, QStringLiteral("올바른 답은 I / my"));
    EXPECT_EQ(desk.sound.names(), QStringList{"wrongit.wav"});
    EXPECT_EQ(desk.column("correct"), QStringList{"NO"});
}

TEST(TwoPicks, TheEndTakesTheCheckAwayAndBeginBringsItBack) {
    QuizDesk desk;
    desk.layStep(2, {pairs()});
    core::Screen* screen = desk.run("frmQuiz3");
    for (const Qt::Key key : {Qt::Key_1, Qt::Key_3})
        QTest::keyClick(screen, key);
    press(screen, "picQuiz");
    EXPECT_EQ(desk.scores(), QStringList{"2|100"});
    EXPECT_FALSE(visible(screen, "picQuiz"));
    EXPECT_FALSE(visible(screen, "lblQuiz"));
    EXPECT_TRUE(visible(screen, "picBegin"));
    press(screen, "picBegin");
    EXPECT_TRUE(visible(screen, "picQuiz"));
    EXPECT_TRUE(visible(screen, "lblQuiz"));
    EXPECT_FALSE(visible(screen, "picBegin"));
    EXPECT_EQ(caption(screen, "lblWord8"), QString());
}
