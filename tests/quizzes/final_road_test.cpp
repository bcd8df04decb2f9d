#include "quizzes/final_road.h"

#include "course/walk.h"
#include "platform/error.h"
#include "tests/quizzes/quiz_desk.h"

using support::courseStore;
using support::masterStore;

namespace {

const QString completed = QStringLiteral("Good Job! Grammar Final Quiz Completed!");

core::Session session(int stepNo, int stepCount) {
    core::Session made;
    made.finalStepNo = stepNo;
    made.finalStepCount = stepCount;
    return made;
}

}  // namespace

TEST(FinalRoad, ThreeStepsOf100And50And75RunThroughTheirAverages) {
    core::Session made = session(1, 3);
    quizzes::keepStepScore(made, 100);
    EXPECT_EQ(static_cast<int>(made.scoreValue), 100);
    EXPECT_TRUE(quizzes::hasFurtherStep(made));
    quizzes::keepStepScore(made, 50);
    EXPECT_EQ(static_cast<int>(made.scoreValue), 75);
    quizzes::keepStepScore(made, 75);
    EXPECT_EQ(static_cast<int>(made.scoreValue), 75);
    EXPECT_FALSE(quizzes::hasFurtherStep(made));
}

TEST(FinalRoad, TheAverageRoundsHalvesToTheEvenNumber) {
    core::Session made = session(1, 2);
    quizzes::keepStepScore(made, 100);
    quizzes::keepStepScore(made, 25);
    EXPECT_EQ(static_cast<int>(made.scoreValue), 62);
}

TEST(FinalRoad, TheTwentyFirstStepHasNoPlaceForItsScore) {
    core::Session made = session(20, 21);
    quizzes::keepStepScore(made, 100);
    try {
        quizzes::keepStepScore(made, 100);
        FAIL();
    } catch (const platform::RuntimeError& error) {
        EXPECT_EQ(error.code(), platform::ErrorCode::SubscriptOutOfRange);
        EXPECT_TRUE(error.sentence().contains(QStringLiteral("21")));
    }
}

TEST(FinalRoad, AListOf21StepsFailsAtTheEndOfStep21) {
    QuizDesk desk;
    desk.layStep(2, {{{"q1", "s"}, {"q2", "yes"}, {"q3", "no"}, {"a1", "yes"}}});
    desk.enterFinal(21, 21);
    core::Screen* screen = desk.run("frmQuiz7");
    press(screen, "lblWord2(0)");
    EXPECT_TRUE(desk.failure().contains(QStringLiteral("21"))) << desk.failure().toStdString();
    EXPECT_TRUE(desk.scores().isEmpty());
}

TEST(FinalRoad, AStepThatIsNotTheLastStoresNothingAndBringsUpTheNext) {
    QuizDesk desk;
    desk.layStep(2, {{{"q1", "s"}, {"q2", "yes"}, {"q3", "no"}, {"a1", "yes"}}});
    desk.exec(courseStore,
              "Insert into quiz_data_New3 (topicno, recordno, q1, q2, q3, a1, a2) values (1, 3, 't', 'x', "
              "'y', 'x', '');"
              "Insert into tablework_Final (recordno, topicno, pageno, Title, useform) values "
              "(2, 1, 2, 'a', 'frmQuiz7'), (3, 1, 3, 'b', 'frmQuiz8')");
    desk.enterFinal(1, 2);
    core::Screen* screen = desk.run("frmQuiz7");
    EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("1"));
    press(screen, "lblWord2(0)");
    core::Screen* next = desk.awaitScreen(QStringLiteral("frmQuiz8"));
    ASSERT_NE(next, nullptr) << desk.failure().toStdString();
    EXPECT_EQ(caption(next, "lblCurrent"), QStringLiteral("2"));
    EXPECT_EQ(caption(next, "lblTopic"), QStringLiteral("b 3"));
    EXPECT_TRUE(desk.scores().isEmpty());
    EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(FinalRoad, TheLastStepTellsTheAverageThenStoresItOnTheStepThatLaunchedIt) {
    QuizDesk desk;
    desk.layStep(2, {{{"q1", "s"}, {"q2", "yes"}, {"q3", "no"}, {"a1", "yes"}}});
    desk.layTable();
    desk.enterFinal(2, 2);
    desk.session.finalStepScores[0] = 50;
    core::Screen* screen = desk.run("frmQuiz7");
    desk.boxes.onShow = [&](const platform::Message&) { EXPECT_TRUE(desk.scores().isEmpty()); };
    press(screen, "lblWord2(0)");
    EXPECT_NE(desk.awaitScreen(QStringLiteral("frmTable")), nullptr) << desk.failure().toStdString();
    EXPECT_EQ(desk.boxes.texts(), QStringList{completed + QStringLiteral("\n\n점수는 75 입니다.")});
    EXPECT_EQ(desk.boxes.shown[0].icon, platform::BoxIcon::Information);
    EXPECT_EQ(desk.scores(), QStringList{"20|75"});
    EXPECT_EQ(desk.sound.names(), (QStringList{"correct.wav", "contestbegin.wav"}));
}

TEST(FinalRoad, AFinalQuizIsWalkedFromItsAnnouncementToTheOneScoreThatItLeaves) {
    QuizDesk desk;
    desk.layTable();
    desk.exec(
        courseStore,
        "Insert into tablework (recordno, topicno, pageno, Type, Title, guide, wordno, useform, quizno) "
        "values "
        "(2, 1, 2, 'Quiz', '명사', 'g', 0, 'frmQuiz7', 5), (3, 1, 3, 'Quiz', '명사', 'g', 0, 'frmQuiz', 5),"
        "(4, 1, 4, 'Quiz', '명사', 'g', 0, 'frmQuiz3', 5), (20, 1, 20, 'Final', '명사', 'g', 0, '', 0),"
        "(21, 1, 21, 'Final', '명사', 'g', 0, '', 0)");
    std::string sql =
        "Insert into tovalin1_quiz_data (topicno, recordno, orderno, q1, q2, q3, q4, q5, q6, q7, a1, a2, "
        "autono) values ";
    for (int step = 2; step <= 4; ++step)
        for (int item = 1; item <= 5; ++item)
            sql += (step == 2 && item == 1 ? "" : ",") + ("(1," + std::to_string(step)) + "," +
                   std::to_string(item) + ",'s','yes','no','yes','no','is','are','yes','" +
                   (step == 4 ? "are" : "") + "'," + std::to_string(step * 10 + item) + ")";
    desk.exec(masterStore, sql);
    desk.session.recordNo = 20;
    desk.session.topicNo = 1;
    course::NextStep(desk.context());
    core::Screen* first = desk.awaitScreen(QStringLiteral("frmQuiz7"));
    ASSERT_NE(first, nullptr) << desk.failure().toStdString();
    EXPECT_EQ(desk.boxes.texts(), QStringList{QStringLiteral("다음은 Final Quiz가 진행됩니다.")});
    EXPECT_EQ(caption(first, "lblTotal"), QStringLiteral("15"));
    for (int i = 0; i < 5; ++i)
        press(first, i < 2 ? "lblWord2(0)" : "lblWord2(1)");
    core::Screen* second = desk.awaitScreen(QStringLiteral("frmQuiz"));
    ASSERT_NE(second, nullptr) << desk.failure().toStdString();
    EXPECT_EQ(caption(second, "lblCurrent"), QStringLiteral("10"));
    for (int i = 0; i < 5; ++i)
        press(second, qPrintable(QStringLiteral("lblWord2(%1)").arg(i)));
    press(second, "picQuiz");
    core::Screen* third = desk.awaitScreen(QStringLiteral("frmQuiz3"));
    ASSERT_NE(third, nullptr) << desk.failure().toStdString();
    EXPECT_EQ(caption(third, "lblCurrent"), QStringLiteral("11"));
    for (int i = 0; i < 5; ++i) {
        press(third, "lblWord4");
        press(third, "lblWord7");
        press(third, "picQuiz");
    }
    EXPECT_NE(desk.awaitScreen(QStringLiteral("frmTable")), nullptr) << desk.failure().toStdString();
    // 40, 100 and 100 average to 80.
    EXPECT_EQ(desk.boxes.lastText(), completed + QStringLiteral("\n\n점수는 80 입니다."));
    EXPECT_EQ(desk.scores(), QStringList{"21|80"});
}
