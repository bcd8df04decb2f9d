// How each of the twelve screens ends: in an ordinary step, inside a Final Quiz, and under review.

#include "catalogue/quizzes.h"
#include "tests/quizzes/quiz_desk.h"

#include <array>

using platform::BoxIcon;

namespace {

/// One question that every screen can show; at step 34 its right answers are "a" and "e".
const QuizDesk::Question question{{"q1", "Two words"}, {"q2", "a"}, {"q3", "1"}, {"q4", "a"}, {"q5", "d"},
                                  {"q6", "e"},         {"q7", "f"}, {"a1", "a"}, {"a2", "e"}};

const QString endMessage =
    QStringLiteral("퀴즈가 종료되었습니다.\n\n다음 레슨을 학습하려면 <Next>를 클릭하세요.");
const QString scoreMessage = QStringLiteral(
    "Grammar Quiz Completed.\n\n점수는 100 입니다\n\n다시 문제를 풀려면 <Begin>을 클릭하십시오.");
const QString completed = QStringLiteral("Good Job! Grammar Final Quiz Completed!");
const QString chime = QStringLiteral("contestbegin.wav");

/// What is clicked and what is typed for the right answer of a screen, before its check.
struct RightAnswer {
    std::vector<const char*> clicks;
    std::vector<std::pair<const char*, const char*>> typed{};
};

RightAnswer rightAnswer(const QString& form) {
    const std::map<QString, RightAnswer> answers{
        {"frmQuiz", {{"lblWord2(0)"}}},
        {"frmQuiz2", {{}, {{"txtWord(0)", "a"}}}},
        {"frmQuiz3", {{"lblWord4", "lblWord6"}}},
        {"frmQuiz4", {{"lblWord2(0)"}, {{"txtWord", "a"}}}},
        {"frmQuiz5", {{"cmdOne(0)"}}},
        {"frmQuiz6", {{}, {{"txtWord", "a"}}}},
        {"frmQuiz7", {{"lblWord2(0)"}}},
        {"frmQuiz8", {{"lblWord2(0)"}}},
        {"frmQuiz9", {{}, {{"txtWord(0)", "a"}, {"txtWord2(0)", "e"}}}},
        {"frmQuiz10", {{}, {{"txtWord(0)", "a"}}}},
        {"frmQuiz11", {{"lblWord3(0)"}}},
        {"frmQuiz12", {{"lblWord3(0)"}}},
    };
    return answers.at(form);
}

bool hasCheck(core::Screen* screen) {
    return screen->findChild<QWidget*>(QStringLiteral("picQuiz")) != nullptr;
}

/// Gives the one right answer of a screen and has it judged.
void pass(core::Screen* screen) {
    const RightAnswer right = rightAnswer(screen->objectName());
    const bool check = hasCheck(screen);
    for (const char* control : right.clicks)
        press(screen, control);
    for (const auto& [control, text] : right.typed)
        box(screen, control).setText(QLatin1String(text));
    if (check)
        press(screen, "picQuiz");
}

struct End {
    const char* form;
    /// In an ordinary step: the score is stored, and `picBegin` stands, by the time of the message.
    bool storedFirst;
    bool beginFirst;
    bool beginAfter;
    bool chimes;
    bool tellsScore;
    BoxIcon finalIcon;
};

void PrintTo(const End& end, std::ostream* out) {
    *out << end.form;
}

constexpr auto icon = BoxIcon::Information;
constexpr auto none = BoxIcon::None;

constexpr std::array ends{
    End{"frmQuiz", true, false, true, true, false, icon},
    End{"frmQuiz2", true, false, false, false, false, none},
    End{"frmQuiz3", true, true, true, false, true, icon},
    End{"frmQuiz4", false, false, true, false, true, icon},
    End{"frmQuiz5", true, true, true, false, true, icon},
    End{"frmQuiz6", false, false, true, false, true, icon},
    End{"frmQuiz7", true, true, true, false, true, icon},
    End{"frmQuiz8", true, true, true, false, true, icon},
    End{"frmQuiz9", true, true, true, false, false, none},
    End{"frmQuiz10", true, true, true, false, true, icon},
    End{"frmQuiz11", true, false, true, true, false, none},
    End{"frmQuiz12", true, false, true, false, false, none},
};

class QuizEnds : public ::testing::TestWithParam<End> {};

}  // namespace

TEST_P(QuizEnds, InAnOrdinaryStepStoreTellAndOfferInTheOrderOfTheScreen) {
    const End end = GetParam();
    QuizDesk desk;
    desk.layStep(34, {question});
    core::Screen* screen = desk.run(end.form);
    ASSERT_NE(screen, nullptr) << desk.failure().toStdString();
    desk.boxes.onShow = [&](const platform::Message&) {
        EXPECT_EQ(desk.scores(), end.storedFirst ? QStringList{"34|100"} : QStringList{});
        EXPECT_EQ(visible(screen, "picBegin"), end.beginFirst);
    };
    pass(screen);
    EXPECT_EQ(desk.boxes.texts(), QStringList{end.storedFirst ? endMessage : scoreMessage});
    EXPECT_EQ(desk.boxes.shown[0].icon, BoxIcon::Information);
    EXPECT_EQ(desk.sound.names().contains(chime), end.chimes);
    EXPECT_EQ(desk.scores(), QStringList{"34|100"});
    EXPECT_EQ(visible(screen, "picBegin"), end.beginAfter);
    EXPECT_TRUE(visible(screen, "picNext"));
    EXPECT_EQ(desk.session.quizFinishedFlag, QString());
    if (hasCheck(screen)) {
        EXPECT_FALSE(visible(screen, "picQuiz"));
        EXPECT_FALSE(visible(screen, "lblQuiz"));
    }
}

TEST_P(QuizEnds, AfterTheLastStepOfAFinalTellWithTheScreensIconAndThenStoreTheAverage) {
    const End end = GetParam();
    QuizDesk desk;
    desk.layTable();
    desk.layStep(34, {question});
    desk.enterFinal(2, 2);
    desk.session.finalStepScores[0] = 50;
    core::Screen* screen = desk.run(end.form);
    ASSERT_NE(screen, nullptr) << desk.failure().toStdString();
    desk.boxes.onShow = [&](const platform::Message&) {
        EXPECT_TRUE(desk.scores().isEmpty());
        EXPECT_EQ(desk.sound.names().last(), chime);
    };
    pass(screen);
    EXPECT_NE(desk.awaitScreen(QStringLiteral("frmTable")), nullptr) << desk.failure().toStdString();
    const QString score = QStringLiteral("\n\n점수는 75 입니다.");
    EXPECT_EQ(desk.boxes.texts(), QStringList{end.tellsScore ? completed + score : completed});
    EXPECT_EQ(desk.boxes.shown[0].icon, end.finalIcon);
    EXPECT_EQ(desk.scores(), QStringList{"20|75"});
}

TEST_P(QuizEnds, UnderReviewRaiseTheFlagInsteadOfTheMessage) {
    const End end = GetParam();
    QuizDesk desk;
    desk.layStep(34, {question});
    desk.session.reviewMode = QStringLiteral("YES");
    pass(desk.run(end.form));
    EXPECT_TRUE(desk.boxes.shown.empty());
    EXPECT_EQ(desk.session.quizFinishedFlag, QStringLiteral("YES"));
    EXPECT_EQ(desk.scores(), QStringList{"34|100"});
}

TEST_P(QuizEnds, UnderReviewNextIsRefusedWhileTheQuizIsUnfinishedAndTheTypedColumnAsksAsEver) {
    const End end = GetParam();
    QuizDesk desk;
    desk.layTable();
    desk.layStep(34, {question});
    desk.session.reviewMode = QStringLiteral("YES");
    desk.session.quizFinishedFlag = QStringLiteral("NO");
    core::Screen* screen = desk.run(end.form);
    desk.boxes.answers = {false};
    press(screen, "picNext");
    const bool asks = QLatin1String(end.form) == QLatin1String("frmQuiz2");
    EXPECT_EQ(desk.boxes.texts(),
              QStringList{asks ? QStringLiteral("다음 레슨을 학습하시겠습니까?")
                               : QStringLiteral("현재 레슨을 학습한 후에 다음으로 진행될 수 있습니다.")});
    if (!asks) {
        EXPECT_EQ(desk.top(), screen);
        EXPECT_FALSE(screen->isUnloaded());
    }
}

INSTANTIATE_TEST_SUITE_P(EveryQuiz, QuizEnds, ::testing::ValuesIn(ends),
                         [](const auto& one) { return std::string(one.param.form); });

TEST(QuizEndsTogether, NextUnderReviewMovesOnUnaskedOnceTheQuizIsFinished) {
    QuizDesk desk;
    desk.layStep(2, {question});
    desk.exec(support::courseStore,
              "Insert into tablework (recordno, topicno, pageno, Type, Title, wordno, useform) values "
              "(2, 1, 2, 'Quiz', 'a', 0, 'frmQuiz7'), (3, 1, 3, 'Quiz', 'b', 0, 'nothing')");
    desk.session.reviewMode = QStringLiteral("YES");
    desk.session.quizFinishedFlag = QStringLiteral("YES");
    desk.session.reviewRecordNo = 3;
    press(desk.run("frmQuiz7"), "picNext");
    EXPECT_TRUE(desk.boxes.shown.empty());
    EXPECT_EQ(static_cast<int>(desk.session.recordNo), 3);
}

TEST(QuizEndsTogether, APassedTableMayBePassedAgainAndStores100Again) {
    for (const char* form : {"frmQuiz", "frmQuiz11", "frmQuiz12"}) {
        QuizDesk desk;
        desk.layStep(34, {question});
        core::Screen* screen = desk.run(form);
        pass(screen);
        desk.exec(support::scoreStore, "Update score set s4 = 7");
        press(screen, "picBegin");
        pass(screen);
        EXPECT_EQ(desk.scores(), QStringList{"34|100"}) << form;
    }
}

TEST(QuizEndsTogether, EveryScreenIsAmongThem) {
    ASSERT_EQ(ends.size(), catalogue::quizEntries().size());
    for (std::size_t i = 0; i < ends.size(); ++i)
        EXPECT_STREQ(ends[i].form, catalogue::quizEntries()[i].form);
}
