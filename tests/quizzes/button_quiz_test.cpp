#include "tests/quizzes/quiz_desk.h"

namespace {

QuizDesk::Question gap(const char* a1) {
    return {{"q1", "I have ____ dog."}, {"a1", a1}};
}

const QString pickedWrong = QStringLiteral("틀린 답을 선택하였습니다.\n\n");

QString buttonText(core::Screen* screen, int index) {
    return support::find<QPushButton>(screen, QStringLiteral("cmdOne(%1)").arg(index)).text();
}

}  // namespace

TEST(ButtonQuiz, TheButtonsOfAStepStandAndTheOthersAreHidden) {
    struct Case {
        int step;
        int count;
        const char* first;
    };
    for (const Case& one : {Case{22, 4, "<a>"}, Case{110, 5, "1"}, Case{138, 4, "is"}, Case{155, 3, "and"},
                            Case{161, 4, "<a>"}}) {
        QuizDesk desk;
        desk.layStep(one.step, {gap("a")});
        core::Screen* screen = desk.run("frmQuiz5");
        for (int i = 0; i < 5; ++i)
            EXPECT_EQ(visible(screen, qPrintable(QStringLiteral("cmdOne(%1)").arg(i))), i < one.count)
                << one.step;
        EXPECT_EQ(buttonText(screen, 0), QLatin1String(one.first));
        EXPECT_EQ(screen->findChild<QWidget*>(QStringLiteral("picQuiz")), nullptr);
    }
}

TEST(ButtonQuiz, AWrongArticleSoundsAndAWrongNumberVerbOrConjunctionIsSilent) {
    for (const int step : {22, 110, 138, 155}) {
        QuizDesk desk;
        desk.layStep(step, {gap("the")});
        core::Screen* screen = desk.run("frmQuiz5");
        press(screen, "cmdOne(0)");
        EXPECT_EQ(desk.sound.names(), step == 22 ? QStringList{"wrongit.wav"} : QStringList{});
        EXPECT_EQ(desk.boxes.shown[0].text, pickedWrong + QStringLiteral("정답은 the"));
        EXPECT_EQ(desk.column("correct"), QStringList{"NO"});
    }
}

TEST(ButtonQuiz, ARightPressSoundsEverywhere) {
    QuizDesk desk;
    desk.layStep(110, {gap("3")});
    core::Screen* screen = desk.run("frmQuiz5");
    press(screen, "cmdOne(2)");
    EXPECT_EQ(desk.sound.names(), QStringList{"correct.wav"});
    EXPECT_EQ(desk.scores(), QStringList{"110|100"});
}

TEST(ButtonQuiz, AnArticleThatIsNotNeededIsToldInWords) {
    QuizDesk desk;
    desk.layStep(22, {gap("Blank"), gap("Blank")});
    core::Screen* screen = desk.run("frmQuiz5");
    press(screen, "cmdOne(1)");
    EXPECT_EQ(desk.boxes.shown[0].text, pickedWrong + QStringLiteral("관사가 필요없는 문장입니다."));
    press(screen, "cmdOne(3)");
    EXPECT_EQ(desk.scores(), QStringList{"22|50"});
}

TEST(ButtonQuiz, AfterTheLastQuestionTheButtonsDoNothingUntilBegin) {
    QuizDesk desk;
    desk.layStep(22, {gap("a")});
    core::Screen* screen = desk.run("frmQuiz5");
    press(screen, "cmdOne(0)");
    press(screen, "cmdOne(1)");
    QTest::keyClick(screen, Qt::Key_1);
    EXPECT_EQ(desk.sound.names(), QStringList{"correct.wav"});
    press(screen, "picBegin");
    press(screen, "cmdOne(0)");
    EXPECT_EQ(desk.sound.names(), (QStringList{"correct.wav", "correct.wav"}));
}

TEST(ButtonQuiz, DigitsPressTheButtonsThatStand) {
    QuizDesk desk;
    desk.layStep(110, {gap("5"), gap("5")});
    core::Screen* screen = desk.run("frmQuiz5");
    QTest::keyClick(screen, Qt::Key_5);
    EXPECT_EQ(desk.sound.names(), QStringList{"correct.wav"});
    screen->unload();
    desk.random.draws.clear();
    desk.layStep(22, {gap("a")});
    core::Screen* articles = desk.run("frmQuiz5");
    QTest::keyClick(articles, Qt::Key_5);
    EXPECT_EQ(caption(articles, "lblCurrent"), QStringLiteral("1"));
}
