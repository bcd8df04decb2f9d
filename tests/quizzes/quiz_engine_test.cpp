// What the one-question-at-a-time screens share, told by frmQuiz7, the plainest of them.

#include "catalogue/quizzes.h"
#include "tests/quizzes/quiz_desk.h"

using support::courseStore;
using support::settle;

namespace {

/// Questions whose right choice is the first.
std::vector<QuizDesk::Question> questions(int count) {
    std::vector<QuizDesk::Question> made;
    for (int i = 1; i <= count; ++i)
        made.push_back({{"q1", "Sentence " + std::to_string(i)}, {"q2", "yes"}, {"q3", "no"}, {"a1", "yes"}});
    return made;
}

/// Answers the questions in turn, right or wrong.
void answer(core::Screen* screen, const std::vector<bool>& rights) {
    for (const bool right : rights)
        press(screen, right ? "lblWord2(0)" : "lblWord2(1)");
}

std::vector<bool> rightOf(int right, int total) {
    std::vector<bool> answers(static_cast<std::size_t>(total), false);
    std::fill_n(answers.begin(), right, true);
    return answers;
}

const QString endMessage =
    QStringLiteral("퀴즈가 종료되었습니다.\n\n다음 레슨을 학습하려면 <Next>를 클릭하세요.");

}  // namespace

TEST(QuizEngine, AStepWithoutRowsStopsWithASentenceThatNamesIt) {
    for (const catalogue::QuizEntry& entry : catalogue::quizEntries()) {
        QuizDesk desk;
        desk.layStep(17, {});
        EXPECT_EQ(desk.run(entry.form), nullptr);
        EXPECT_TRUE(desk.failure().contains(QStringLiteral("Step 17 (%1)").arg(QLatin1String(entry.form))))
            << desk.failure().toStdString();
        EXPECT_TRUE(desk.failure().contains(QStringLiteral("no questions")));
    }
}

TEST(QuizEngine, AMissingAnswerStopsTheScreenWithTheQuestionAndTheField) {
    for (const char* field : {"a1", "a2"}) {
        QuizDesk desk;
        auto rows = questions(1);
        rows[0][field] = "NULL";
        desk.layStep(17, rows);
        EXPECT_EQ(desk.run("frmQuiz7"), nullptr);
        EXPECT_TRUE(desk.failure().contains(
            QStringLiteral("Step 17 (frmQuiz7): the question \"Sentence 1\" has no value in its field %1")
                .arg(QLatin1String(field))))
            << desk.failure().toStdString();
    }
}

TEST(QuizEngine, AMissingAnswerEndsEveryScreenWithItsStepByTheCheckAtTheLatest) {
    for (const catalogue::QuizEntry& entry : catalogue::quizEntries()) {
        QuizDesk desk;
        desk.layStep(17, {{{"q1", "Two words"},
                           {"q2", "a"},
                           {"q3", "1"},
                           {"q4", "c"},
                           {"q5", "d"},
                           {"q6", "e"},
                           {"q7", "f"},
                           {"a1", "NULL"}}});
        if (core::Screen* screen = desk.run(entry.form); screen != nullptr)
            press(screen, "picQuiz");
        EXPECT_TRUE(desk.failure().contains(
            QStringLiteral("Step 17 (%1): the question \"Two words\" has no value in its field a1")
                .arg(QLatin1String(entry.form))))
            << entry.form << ": " << desk.failure().toStdString();
    }
}

TEST(QuizEngine, TheShuffleRejectsTakenNumbersAndWritesByPosition) {
    QuizDesk desk;
    desk.layStep(2, questions(3));
    desk.random.draws.clear();
    desk.random.queueNumbers({2, 2, 3, 2, 1}, 3);
    core::Screen* screen = desk.run("frmQuiz7");
    EXPECT_EQ(desk.column("orderno"), (QStringList{"2", "3", "1"}));
    EXPECT_EQ(caption(screen, "lblWord"), QStringLiteral("Sentence 3"));
    EXPECT_EQ(desk.random.reseeds, 5);
}

TEST(QuizEngine, RowsOfAnotherStepStayOutOfTheQuiz) {
    QuizDesk desk;
    desk.layStep(2, questions(2));
    desk.exec(courseStore,
              "Insert into quiz_data_New3 (topicno, recordno, orderno, a1) values (1, 3, 7, 'x')");
    core::Screen* screen = desk.run("frmQuiz7");
    EXPECT_EQ(caption(screen, "lblTotal"), QStringLiteral("2"));
    EXPECT_EQ(desk.column("orderno"), (QStringList{"1", "2", "7"}));
}

TEST(QuizEngine, TheScoreIsTheShareOfRightAnswersWithHalvesToTheEvenNumber) {
    struct Case {
        int right;
        int total;
        const char* score;
    };
    for (const Case& one :
         {Case{1, 3, "33"}, Case{2, 3, "67"}, Case{1, 8, "12"}, Case{3, 8, "38"}, Case{0, 2, "0"}}) {
        QuizDesk desk;
        desk.layStep(2, questions(one.total));
        core::Screen* screen = desk.run("frmQuiz7");
        answer(screen, rightOf(one.right, one.total));
        EXPECT_EQ(desk.scores(), QStringList{QStringLiteral("2|%1").arg(QLatin1String(one.score))});
    }
}

TEST(QuizEngine, CountersRunFromOneToTheLastAndTheSidesMarkTellsTheLastAnswer) {
    QuizDesk desk;
    desk.layStep(2, questions(3));
    core::Screen* screen = desk.run("frmQuiz7");
    EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("1"));
    EXPECT_EQ(caption(screen, "lblTotal"), QStringLiteral("3"));
    answer(screen, {true});
    EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("2"));
    EXPECT_EQ(label(screen, "lblMark").mark(), platform::BoxMark::Right);
    answer(screen, {false});
    EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("3"));
    EXPECT_EQ(label(screen, "lblMark").mark(), platform::BoxMark::Wrong);
    EXPECT_EQ(desk.sound.names(), (QStringList{"correct.wav", "wrongit.wav"}));
}

TEST(QuizEngine, AWrongAnswerIsMarkedInItsRowAndNotAskedAgain) {
    QuizDesk desk;
    desk.layStep(2, questions(2));
    core::Screen* screen = desk.run("frmQuiz7");
    answer(screen, {false});
    EXPECT_EQ(desk.column("correct"), (QStringList{"NO", "NULL"}));
    EXPECT_EQ(caption(screen, "lblWord"), QStringLiteral("Sentence 2"));
}

TEST(QuizEngine, AWrongAnswerOnTheLastQuestionIsToldBeforeTheEnd) {
    QuizDesk desk;
    desk.layStep(2, questions(1));
    core::Screen* screen = desk.run("frmQuiz7");
    answer(screen, {false});
    EXPECT_EQ(desk.boxes.texts(),
              (QStringList{QStringLiteral("틀린 답을 선택하였습니다.\n\n올바른 문장은 yes"), endMessage}));
    EXPECT_EQ(desk.boxes.shown[1].icon, platform::BoxIcon::Information);
}

TEST(QuizEngine, TheScoreIsStoredBeforeTheEndIsTold) {
    QuizDesk desk;
    desk.layStep(2, questions(1));
    core::Screen* screen = desk.run("frmQuiz7");
    QStringList stored;
    desk.boxes.onShow = [&](const platform::Message&) {
        stored = desk.scores();
        EXPECT_TRUE(visible(screen, "picBegin"));
    };
    answer(screen, {true});
    EXPECT_EQ(stored, QStringList{"2|100"});
    EXPECT_EQ(desk.session.quizFinishedFlag, QString());
}

TEST(QuizEngine, BeginAsksAllOverInANewOrderAndStoresAgain) {
    QuizDesk desk;
    desk.layStep(2, questions(2));
    core::Screen* screen = desk.run("frmQuiz7");
    answer(screen, {true, true});
    desk.queueOrder({2, 1});
    press(screen, "picBegin");
    EXPECT_FALSE(visible(screen, "picBegin"));
    EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("1"));
    EXPECT_EQ(caption(screen, "lblWord"), QStringLiteral("Sentence 2"));
    answer(screen, {true, false});
    EXPECT_EQ(desk.scores(), QStringList{"2|50"});
}

TEST(QuizEngine, LeavingByNextBeforeAnsweringStoresNothingForTheQuiz) {
    QuizDesk desk;
    desk.layStep(2, questions(2));
    desk.layTable();
    core::Screen* screen = desk.run("frmQuiz7");
    desk.boxes.answers = {false};
    press(screen, "picNext");
    EXPECT_NE(desk.awaitScreen(QStringLiteral("frmTable")), nullptr) << desk.failure().toStdString();
    EXPECT_TRUE(desk.scores().isEmpty());
}

TEST(QuizEngine, NextIsNeverRefusedByTheQuizItself) {
    QuizDesk desk;
    desk.layStep(2, questions(1));
    desk.exec(courseStore,
              "Insert into tablework (recordno, topicno, pageno, Type, Title, wordno, useform) values "
              "(2, 1, 2, 'Quiz', 'a', 0, 'frmQuiz7'), (3, 1, 3, 'Quiz', 'b', 0, 'nothing')");
    core::Screen* screen = desk.run("frmQuiz7");
    press(screen, "picNext");
    EXPECT_EQ(desk.boxes.texts(), QStringList{QStringLiteral("다음 레슨을 학습하시겠습니까?")});
    EXPECT_EQ(static_cast<int>(desk.session.recordNo), 3);
}

TEST(QuizEngine, DigitsAnswerAndAHeldKeyAnswersOnce) {
    QuizDesk desk;
    desk.layStep(2, questions(3));
    core::Screen* screen = desk.run("frmQuiz7");
    QTest::keyClick(screen, Qt::Key_1);
    EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("2"));
    QKeyEvent held(QEvent::KeyPress, Qt::Key_1, Qt::NoModifier, QStringLiteral("1"), true);
    QCoreApplication::sendEvent(screen, &held);
    EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("2"));
    for (const int other : {Qt::Key_3, Qt::Key_4, Qt::Key_5, Qt::Key_6, Qt::Key_0})
        QTest::keyClick(screen, static_cast<Qt::Key>(other));
    QTest::keyClick(screen, Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("2"));
    QTest::keyClick(screen, Qt::Key_2, Qt::KeypadModifier);
    EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("3"));
    EXPECT_EQ(desk.sound.names(), (QStringList{"correct.wav", "wrongit.wav"}));
}

TEST(QuizEngine, ADigitAnswersWhereverTheKeyboardStands) {
    QuizDesk desk;
    desk.layStep(2, questions(2));
    core::Screen* screen = desk.run("frmQuiz7");
    part(screen, "picTable").setFocus();
    QTest::keyClick(&part(screen, "picTable"), Qt::Key_1);
    EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("2"));
}
