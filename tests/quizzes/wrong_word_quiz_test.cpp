#include "tests/quizzes/quiz_desk.h"

namespace {

QuizDesk::Question sentence(const char* q1 = "She go home.", const char* a1 = "goes", const char* a2 = "") {
    return {{"q1", q1}, {"a1", a1}, {"a2", a2}};
}

void correct(core::Screen* screen, const char* typed, const char* word = "lblWord2(1)") {
    press(screen, word);
    box(screen, "txtWord").setText(QString());
    support::type(box(screen, "txtWord"), QLatin1String(typed));
}

const QString typedWrong = QStringLiteral("틀린 답을 입력하였습니다.\n\n올바른 단어는 ");

}  // namespace

TEST(WrongWord, AStepOutsideTheRulesCountsAgainstTheScoreInSilence) {
    QuizDesk desk;
    desk.layStep(17, {sentence()});
    core::Screen* screen = desk.run("frmQuiz4");
    correct(screen, "goes");
    press(screen, "picQuiz");
    EXPECT_EQ(desk.scores(), QStringList{"17|0"});
    EXPECT_TRUE(desk.sound.names().isEmpty());
    EXPECT_EQ(desk.boxes.shown.size(), 1U);
    EXPECT_EQ(desk.column("correct"), QStringList{"NULL"});
}

TEST(WrongWord, ClickingAnyWordOpensTheJudge) {
    QuizDesk desk;
    desk.layStep(34, {sentence()});
    core::Screen* screen = desk.run("frmQuiz4");
    correct(screen, "goes", "lblWord2(0)");
    EXPECT_EQ(caption(screen, "lblWord3"), QStringLiteral("She"));
    EXPECT_EQ(support::focusName(screen), QStringLiteral("txtWord"));
    pressEnter(screen, "txtWord");
    EXPECT_EQ(desk.scores(), QStringList{"34|100"});
}

TEST(WrongWord, WithoutAWordOrWithoutATextNothingIsJudged) {
    QuizDesk desk;
    desk.layStep(34, {sentence()});
    core::Screen* screen = desk.run("frmQuiz4");
    press(screen, "picQuiz");
    pressEnter(screen, "txtWord");
    EXPECT_EQ(desk.boxes.texts(), (QStringList{QStringLiteral("문장에서 틀린 단어를 선택하십시오."),
                                               QStringLiteral("문장에서 틀린 단어를 선택하십시오.")}));
    press(screen, "lblWord2(1)");
    part(screen, "lblWord2(0)").setFocus();
    press(screen, "picQuiz");
    EXPECT_EQ(desk.boxes.lastText(), QStringLiteral("답을 입력하십시오."));
    EXPECT_EQ(support::focusName(screen), QStringLiteral("txtWord"));
    part(screen, "lblWord2(0)").setFocus();
    pressEnter(screen, "txtWord");
    EXPECT_EQ(desk.boxes.lastText(), QStringLiteral("답을 입력하십시오."));
    EXPECT_EQ(support::focusName(screen), QStringLiteral("lblWord2(0)"));
    EXPECT_TRUE(desk.sound.names().isEmpty());
}

TEST(WrongWord, ASentenceOfOneWordShowsNoWordsSoThatNoAnswerCanBeGiven) {
    QuizDesk desk;
    desk.layStep(34, {sentence("Go.")});
    core::Screen* screen = desk.run("frmQuiz4");
    EXPECT_FALSE(visible(screen, "lblWord2(0)"));
    support::type(box(screen, "txtWord"), "goes");
    press(screen, "picQuiz");
    EXPECT_EQ(desk.boxes.lastText(), QStringLiteral("문장에서 틀린 단어를 선택하십시오."));
}

TEST(WrongWord, FourteenWordsFitAndFifteenStopTheScreenWithTheSentence) {
    QuizDesk desk;
    desk.layStep(34, {sentence("a b c d e f g h i j k l m n")});
    core::Screen* screen = desk.run("frmQuiz4");
    ASSERT_NE(screen, nullptr);
    EXPECT_TRUE(visible(screen, "lblWord2(13)"));
    screen->unload();
    desk.random.draws.clear();
    desk.layStep(34, {sentence("a b c d e f g h i j k l m n o")});
    EXPECT_EQ(desk.run("frmQuiz4"), nullptr);
    EXPECT_TRUE(desk.failure().contains(
        QStringLiteral("Step 34 (frmQuiz4): the sentence \"a b c d e f g h i j k l m n o\" has 15 words")))
        << desk.failure().toStdString();
}

TEST(WrongWord, OnlyTheFirstWordKeepsItsCapitalAndItsMarks) {
    QuizDesk desk;
    desk.layStep(34, {sentence("Yes, Tom's Dog, runs!")});
    core::Screen* screen = desk.run("frmQuiz4");
    EXPECT_EQ(caption(screen, "lblWord2(0)"), QStringLiteral("Yes,"));
    EXPECT_EQ(caption(screen, "lblWord2(1)"), QStringLiteral("tom's"));
    EXPECT_EQ(caption(screen, "lblWord2(2)"), QStringLiteral("dog"));
    EXPECT_EQ(caption(screen, "lblWord2(3)"), QStringLiteral("runs"));
    EXPECT_FALSE(visible(screen, "lblWord2(4)"));
    EXPECT_EQ(caption(screen, "lblWord"), QStringLiteral("Yes, Tom's Dog, runs!"));
}

TEST(WrongWord, TheFirstSentenceIsCutAsStoredAndTheLaterOnesTrimmed) {
    QuizDesk desk;
    desk.layStep(34, {sentence(" He go."), sentence(" He go.")});
    core::Screen* screen = desk.run("frmQuiz4");
    EXPECT_EQ(caption(screen, "lblWord2(0)"), QString());
    EXPECT_EQ(caption(screen, "lblWord2(1)"), QStringLiteral("he"));
    correct(screen, "goes", "lblWord2(2)");
    press(screen, "picQuiz");
    EXPECT_EQ(caption(screen, "lblWord2(0)"), QStringLiteral("He"));
    EXPECT_EQ(caption(screen, "lblWord2(1)"), QStringLiteral("go"));
    EXPECT_EQ(caption(screen, "lblWord3"), QString());
}

TEST(WrongWord, Step250TakesEitherAnswerInAnyCaseWithBlanksAround) {
    for (const char* typed : {" SEEN ", "saw"}) {
        QuizDesk desk;
        desk.layStep(250, {sentence("I see it.", "seen", "Saw")});
        core::Screen* screen = desk.run("frmQuiz4");
        correct(screen, typed);
        press(screen, "picQuiz");
        EXPECT_EQ(desk.scores(), QStringList{"250|100"});
    }
}

TEST(WrongWord, AWrongWordIsToldAndItsRowMarked) {
    QuizDesk desk;
    desk.layStep(18, {sentence("She go home.", "x", "goes")});
    core::Screen* screen = desk.run("frmQuiz4");
    correct(screen, "going");
    press(screen, "picQuiz");
    EXPECT_EQ(desk.boxes.shown[0].text, typedWrong + QStringLiteral("goes"));
    EXPECT_EQ(desk.sound.names(), QStringList{"wrongit.wav"});
    EXPECT_EQ(desk.column("correct"), QStringList{"NO"});
}

TEST(WrongWord, FromEnterStep72WritesNoMarkAndFromTheButtonItDoes) {
    for (const bool byEnter : {true, false}) {
        QuizDesk desk;
        desk.layStep(72, {sentence()});
        core::Screen* screen = desk.run("frmQuiz4");
        correct(screen, "x");
        if (byEnter)
            pressEnter(screen, "txtWord");
        else
            press(screen, "picQuiz");
        EXPECT_EQ(desk.column("correct"), QStringList{byEnter ? "NULL" : "NO"});
    }
}

TEST(WrongWord, EnterEmptiesTheBoxAtTheEndAndTheButtonLeavesIt) {
    for (const bool byEnter : {true, false}) {
        QuizDesk desk;
        desk.layStep(34, {sentence()});
        core::Screen* screen = desk.run("frmQuiz4");
        correct(screen, "goes");
        if (byEnter)
            pressEnter(screen, "txtWord");
        else
            press(screen, "picQuiz");
        EXPECT_EQ(box(screen, "txtWord").text(), byEnter ? QString() : QStringLiteral("goes"));
    }
}

TEST(WrongWord, TheEndIsToldWithTheScoreBeforeItIsStored) {
    QuizDesk desk;
    desk.layStep(34, {sentence()});
    core::Screen* screen = desk.run("frmQuiz4");
    correct(screen, "goes");
    desk.boxes.onShow = [&](const platform::Message&) {
        EXPECT_TRUE(desk.scores().isEmpty());
        EXPECT_FALSE(visible(screen, "picBegin"));
    };
    press(screen, "picQuiz");
    EXPECT_EQ(
        desk.boxes.lastText(),
        QStringLiteral(
            "Grammar Quiz Completed.\n\n점수는 100 입니다\n\n다시 문제를 풀려면 <Begin>을 클릭하십시오."));
    EXPECT_EQ(desk.scores(), QStringList{"34|100"});
    EXPECT_TRUE(visible(screen, "picBegin"));
    EXPECT_FALSE(visible(screen, "picQuiz"));
    press(screen, "picQuiz");
    pressEnter(screen, "txtWord");
    EXPECT_EQ(desk.boxes.shown.size(), 1U);
}

TEST(WrongWord, TheTeachersBoxHoldsTheFirstAnswer) {
    QuizDesk desk;
    desk.layStep(18, {sentence("She go.", "first", "goes")});
    desk.session.teacherMode = QStringLiteral("Teacher");
    core::Screen* screen = desk.run("frmQuiz4");
    EXPECT_EQ(box(screen, "txtWord").text(), QStringLiteral("first"));
}

TEST(WrongWord, DigitsInTheBoxStayTyping) {
    QuizDesk desk;
    desk.layStep(34, {sentence()});
    core::Screen* screen = desk.run("frmQuiz4");
    support::type(box(screen, "txtWord"), "12345");
    EXPECT_EQ(box(screen, "txtWord").text(), QStringLiteral("12345"));
    EXPECT_EQ(caption(screen, "lblWord3"), QString());
}

TEST(WrongWord, ADigitOutsideTheBoxPicksTheWordOfItsPlace) {
    QuizDesk desk;
    desk.layStep(34, {sentence()});
    core::Screen* screen = desk.run("frmQuiz4");
    part(screen, "picTable").setFocus();
    QTest::keyClick(&part(screen, "picTable"), Qt::Key_4);
    EXPECT_EQ(caption(screen, "lblWord3"), QString());
    QTest::keyClick(&part(screen, "picTable"), Qt::Key_2);
    EXPECT_EQ(caption(screen, "lblWord3"), QStringLiteral("go"));
    EXPECT_EQ(support::focusName(screen), QStringLiteral("txtWord"));
}
