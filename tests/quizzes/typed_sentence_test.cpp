// The quizzes that are answered by typing: frmQuiz6, a whole sentence, and frmQuiz10, words in boxes.

#include "tests/quizzes/quiz_desk.h"

namespace {

QuizDesk::Question sentence(const char* a1 = "I am here.") {
    return {{"q1", "here / am / I"}, {"q2", "나는 여기 있다."}, {"a1", a1}};
}

QuizDesk::Question words(const char* q3, const char* a1, const char* q2 = "우리말") {
    return {{"q1", "It is ____."}, {"q2", q2}, {"q3", q3}, {"a1", a1}};
}

void fill(core::Screen* screen, const QStringList& texts) {
    for (qsizetype i = 0; i < texts.size(); ++i)
        box(screen, qPrintable(QStringLiteral("txtWord(%1)").arg(i))).setText(texts[i]);
}

const QString typedWrong = QStringLiteral("틀린 답을 입력하였습니다.\n\n올바른 문장은 ");

}  // namespace

TEST(TypedSentence, FurtherWordsAreRightAndAnyDifferenceBeforeThemIsWrong) {
    struct Case {
        const char* typed;
        const char* score;
    };
    for (const Case& one : {Case{"I am here.", "100"}, Case{"I am here. Are you", "100"},
                            Case{"i am here.", "0"}, Case{" I am here.", "0"}, Case{"I am here", "0"}}) {
        QuizDesk desk;
        desk.layStep(122, {sentence()});
        core::Screen* screen = desk.run("frmQuiz6");
        support::type(box(screen, "txtWord"), QLatin1String(one.typed));
        pressEnter(screen, "txtWord");
        EXPECT_EQ(desk.scores(), QStringList{QStringLiteral("122|%1").arg(QLatin1String(one.score))})
            << one.typed;
    }
}

TEST(TypedSentence, AnAnswerThatEndsInABlankNeedsTheBlank) {
    QuizDesk desk;
    desk.layStep(122, {sentence("Go. "), sentence("Go. ")});
    core::Screen* screen = desk.run("frmQuiz6");
    support::type(box(screen, "txtWord"), "Go.");
    press(screen, "picQuiz");
    EXPECT_EQ(desk.boxes.shown[0].text, typedWrong + QStringLiteral("Go. "));
    support::type(box(screen, "txtWord"), "Go. ");
    press(screen, "picQuiz");
    EXPECT_EQ(desk.scores(), QStringList{"122|50"});
}

TEST(TypedSentence, TheLabelsTakeTheirTextsByTheStep) {
    struct Case {
        int step;
        const char* word;
        const char* korean;
    };
    for (const Case& one :
         {Case{122, "here / am / I", "나는 여기 있다."}, Case{135, "here / am / I", "나는 여기 있다."},
          Case{129, "", "here / am / I"}, Case{148, "", "here / am / I"}, Case{300, "here / am / I", ""}}) {
        QuizDesk desk;
        desk.layStep(one.step, {sentence()});
        core::Screen* screen = desk.run("frmQuiz6");
        EXPECT_EQ(caption(screen, "lblWord"), QString::fromUtf8(one.word));
        EXPECT_EQ(caption(screen, "lblKorean"), QString::fromUtf8(one.korean));
    }
}

TEST(TypedSentence, AnEmptyBoxIsRefused) {
    QuizDesk desk;
    desk.layStep(122, {sentence()});
    core::Screen* screen = desk.run("frmQuiz6");
    EXPECT_EQ(support::focusName(screen), QStringLiteral("txtWord"));
    press(screen, "picQuiz");
    pressEnter(screen, "txtWord");
    EXPECT_EQ(desk.boxes.texts(),
              (QStringList{QStringLiteral("답을 입력하십시오."), QStringLiteral("답을 입력하십시오.")}));
    EXPECT_TRUE(desk.sound.names().isEmpty());
}

TEST(TypedSentence, OnEnterTheBoxIsEmptyBeforeTheEndIsTold) {
    for (const bool byEnter : {true, false}) {
        QuizDesk desk;
        desk.layStep(122, {sentence("Go.")});
        core::Screen* screen = desk.run("frmQuiz6");
        QString boxAtTheEnd;
        desk.boxes.onShow = [&](const platform::Message&) { boxAtTheEnd = box(screen, "txtWord").text(); };
        support::type(box(screen, "txtWord"), "Go.");
        if (byEnter)
            pressEnter(screen, "txtWord");
        else
            press(screen, "picQuiz");
        EXPECT_EQ(boxAtTheEnd, byEnter ? QString() : QStringLiteral("Go."));
        EXPECT_EQ(desk.boxes.lastText(),
                  QStringLiteral("Grammar Quiz Completed.\n\n점수는 100 입니다\n\n다시 문제를 풀려면 "
                                 "<Begin>을 클릭하십시오."));
    }
}

TEST(TypedSentence, TheTeachersBoxHoldsTheAnswerOfEachQuestion) {
    QuizDesk desk;
    desk.layStep(122, {sentence("One."), sentence("Two.")});
    desk.session.teacherMode = QStringLiteral("Teacher");
    core::Screen* screen = desk.run("frmQuiz6");
    EXPECT_EQ(box(screen, "txtWord").text(), QStringLiteral("One."));
    press(screen, "picQuiz");
    EXPECT_EQ(box(screen, "txtWord").text(), QStringLiteral("Two."));
}

TEST(WordBoxes, AsManyBoxesStandAsTheQuestionAsks) {
    for (int count = 0; count <= 4; ++count) {
        QuizDesk desk;
        desk.layStep(2, {words(std::to_string(count).c_str(), "a")});
        core::Screen* screen = desk.run("frmQuiz10");
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(visible(screen, qPrintable(QStringLiteral("txtWord(%1)").arg(i))), i < count);
    }
}

TEST(WordBoxes, FiveBoxesStopTheScreenWithTheQuestion) {
    QuizDesk desk;
    desk.layStep(2, {words("5", "a b c d e")});
    EXPECT_EQ(desk.run("frmQuiz10"), nullptr);
    EXPECT_TRUE(desk.failure().contains(
        QStringLiteral("Step 2 (frmQuiz10): the question \"It is ____.\" asks for 5 boxes")))
        << desk.failure().toStdString();
}

TEST(WordBoxes, ANumberOfBoxesThatIsNoNumberStopsTheScreenWithTheQuestion) {
    QuizDesk desk;
    desk.layStep(2, {words("two", "a b")});
    EXPECT_EQ(desk.run("frmQuiz10"), nullptr);
    EXPECT_TRUE(desk.failure().contains(
        QStringLiteral("Step 2 (frmQuiz10): the question \"It is ____.\" asks for two boxes")))
        << desk.failure().toStdString();
}

TEST(WordBoxes, AnAnswerOfFiveWordsStopsTheScreenAtTheJudge) {
    QuizDesk desk;
    desk.layStep(2, {words("1", "a b c d e")});
    core::Screen* screen = desk.run("frmQuiz10");
    fill(screen, {"a"});
    press(screen, "picQuiz");
    EXPECT_TRUE(desk.failure().contains(QStringLiteral("the answer \"a b c d e\" has 5 words")))
        << desk.failure().toStdString();
}

TEST(WordBoxes, ASingleWordKeepsItsApostropheAndSeveralLoseIt) {
    struct Case {
        const char* a1;
        QStringList typed;
        const char* score;
    };
    for (const Case& one : {Case{"Don't", {"don't"}, "100"}, Case{"don't go", {"don't", "go"}, "0"},
                            Case{"don't go", {"Dont ", "go"}, "100"}}) {
        QuizDesk desk;
        desk.layStep(2, {words(std::to_string(one.typed.size()).c_str(), one.a1)});
        core::Screen* screen = desk.run("frmQuiz10");
        fill(screen, one.typed);
        press(screen, "picQuiz");
        EXPECT_EQ(desk.scores(), QStringList{QStringLiteral("2|%1").arg(QLatin1String(one.score))}) << one.a1;
    }
}

TEST(WordBoxes, NoBoxAtAllCountsAsRight) {
    QuizDesk desk;
    desk.layStep(2, {words("0", "a")});
    core::Screen* screen = desk.run("frmQuiz10");
    press(screen, "picQuiz");
    EXPECT_EQ(desk.scores(), QStringList{"2|100"});
}

TEST(WordBoxes, BlankLeavesTheOldLineOnTheScreen) {
    QuizDesk desk;
    desk.layStep(2, {words("1", "a", "첫 줄"), words("1", "b", "Blank")});
    core::Screen* screen = desk.run("frmQuiz10");
    fill(screen, {"a"});
    press(screen, "picQuiz");
    EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("2"));
    EXPECT_EQ(caption(screen, "lblKorean"), QStringLiteral("첫 줄"));
}

TEST(WordBoxes, EnterWalksTheBoxesAndJudgesInTheLast) {
    QuizDesk desk;
    desk.layStep(2, {words("2", "more tall")});
    core::Screen* screen = desk.run("frmQuiz10");
    EXPECT_EQ(support::focusName(screen), QStringLiteral("txtWord(0)"));
    support::type(box(screen, "txtWord(0)"), "more");
    pressEnter(screen, "txtWord(0)");
    EXPECT_EQ(support::focusName(screen), QStringLiteral("txtWord(1)"));
    pressEnter(screen, "txtWord(1)");
    EXPECT_EQ(desk.boxes.texts(), QStringList{QStringLiteral("단어를 입력하십시오.")});
    support::type(box(screen, "txtWord(1)"), "tall");
    pressEnter(screen, "txtWord(1)");
    EXPECT_EQ(desk.scores(), QStringList{"2|100"});
}

TEST(WordBoxes, BackspaceAndTheLeftArrowGoBackABoxWithItsTextSelected) {
    for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_Left}) {
        QuizDesk desk;
        desk.layStep(2, {words("2", "more tall")});
        core::Screen* screen = desk.run("frmQuiz10");
        fill(screen, {"more"});
        box(screen, "txtWord(1)").setFocus();
        QTest::keyClick(&box(screen, "txtWord(1)"), key);
        EXPECT_EQ(support::focusName(screen), QStringLiteral("txtWord(0)"));
        EXPECT_EQ(box(screen, "txtWord(0)").selectedText(), QStringLiteral("more"));
    }
}

TEST(WordBoxes, ATeacherPassesByTheButtonAndIsJudgedOnEnter) {
    QuizDesk desk;
    desk.layStep(2, {words("1", "a b c d e"), words("1", "right")});
    desk.session.teacherMode = QStringLiteral("Teacher");
    core::Screen* screen = desk.run("frmQuiz10");
    press(screen, "picQuiz");
    EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("2"));
    fill(screen, {"wrong"});
    pressEnter(screen, "txtWord(0)");
    EXPECT_EQ(desk.boxes.shown[0].text, typedWrong + QStringLiteral("right"));
    EXPECT_EQ(desk.scores(), QStringList{"2|50"});
}

TEST(WordBoxes, TheScoreIsStoredBeforeTheEndIsTold) {
    QuizDesk desk;
    desk.layStep(2, {words("1", "a")});
    core::Screen* screen = desk.run("frmQuiz10");
    fill(screen, {"a"});
    QStringList stored;
    desk.boxes.onShow = [&](const platform::Message&) { stored = desk.scores(); };
    press(screen, "picQuiz");
    EXPECT_EQ(stored, QStringList{"2|100"});
    EXPECT_FALSE(visible(screen, "picQuiz"));
    EXPECT_TRUE(visible(screen, "picBegin"));
    fill(screen, {"b"});
    pressEnter(screen, "txtWord(0)");
    EXPECT_EQ(desk.boxes.shown.size(), 1U);
}
