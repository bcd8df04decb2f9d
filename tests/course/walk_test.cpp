#include "course/walk.h"
#include "catalogue/steps.h"

#include "course/score.h"

#include "tests/support/course_rows.h"
#include "tests/support/recorder.h"
#include "tests/support/store.h"

#include <map>

using support::addQuestions;
using support::addSteps;
using support::Desk;
using support::errorOf;
using support::StepRow;

namespace {

struct Way {
    int preliminary;
    int taken;
};

const std::map<int, Way> skips{{64, {66, 66}},    {98, {100, 10}},   {116, {118, 118}}, {123, {125, 125}},
                               {130, {132, 132}}, {143, {145, 145}}, {149, {151, 151}}, {153, {156, 156}},
                               {166, {169, 169}}, {177, {180, 180}}, {199, {201, 201}}, {220, {221, 221}},
                               {248, {250, 250}}, {255, {256, 256}}};

class WalkTest : public testing::Test {
   protected:
    Desk desk;
    support::RecordingNavigator navigator;
    core::Context context = support::contextWith(desk, navigator);
    core::Session& session = desk.session;

    void nextFrom(int recordNo) {
        session.recordNo = recordNo;
        course::NextStep(context);
    }
};

}  // namespace

class NextRecord : public testing::TestWithParam<int> {};

TEST_P(NextRecord, FollowsTheTableAndElseGoesOnByOne) {
    const int now = GetParam();
    const auto skip = skips.find(now);
    const Way expected = skip == skips.end() ? Way{now + 1, now + 1} : skip->second;
    const catalogue::NextRecord next = catalogue::nextRecord(now);
    EXPECT_EQ(next.preliminary, expected.preliminary);
    EXPECT_EQ(next.taken, expected.taken);
}

INSTANTIATE_TEST_SUITE_P(EveryNumberOfTheCourse, NextRecord, testing::Range(0, 258));

TEST_F(WalkTest, FromStep63TheWalkGoesTo64AndFrom64To66AndNeverTo65) {
    addSteps(desk, {{.recordNo = 63}, {.recordNo = 64}, {.recordNo = 65}, {.recordNo = 66}});
    nextFrom(63);
    EXPECT_EQ(session.recordNo, 64);
    nextFrom(64);
    EXPECT_EQ(session.recordNo, 66);
    for (int from = 1; from < 257; ++from)
        EXPECT_NE(catalogue::nextRecord(from).taken, 65);
}

TEST_F(WalkTest, FromStep98TheWalkGoesBackTo10AndComesTo98Again) {
    addSteps(
        desk,
        {{.recordNo = 10, .topicNo = 1}, {.recordNo = 98, .topicNo = 8}, {.recordNo = 100, .topicNo = 8}});
    nextFrom(98);
    EXPECT_EQ(session.recordNo, 10);
    EXPECT_EQ(session.topicNo, 1);
    int step = 10;
    for (int i = 0; i < 87; ++i)
        step = catalogue::nextRecord(step).taken;
    EXPECT_EQ(step, 98) << "88 steps on, without 65";
}

TEST_F(WalkTest, TheStepNamedFirstMustExistThoughAnotherIsTaken) {
    addSteps(desk, {{.recordNo = 10}, {.recordNo = 98}, {.recordNo = 101}});
    EXPECT_EQ(errorOf([&] { nextFrom(98); }), 3021);
    EXPECT_TRUE(navigator.asked.empty());
}

TEST_F(WalkTest, AHoleThatTheTableDoesNotKnowEndsTheRun) {
    addSteps(desk, {{.recordNo = 3}, {.recordNo = 6}});
    EXPECT_EQ(errorOf([&] { nextFrom(3); }), 3021);
}

TEST_F(WalkTest, AtTheLastStepTheMessageShowsAndOnlyTheFrameRemains) {
    addSteps(desk, {{.recordNo = 256}, {.recordNo = 257}});
    nextFrom(257);
    ASSERT_EQ(desk.boxes.texts(), QStringList{"Grammar의 마지막 레슨입니다."});
    EXPECT_EQ(desk.boxes.shown[0].icon, platform::BoxIcon::Information);
    EXPECT_EQ(desk.boxes.shown[0].title, "");
    EXPECT_TRUE(navigator.asked.empty());
    EXPECT_FALSE(navigator.ended);
    EXPECT_EQ(session.recordNo, 257);
}

TEST_F(WalkTest, ANumberThatNoRowCarriesKeepsTheOldStepInHand) {
    addSteps(desk, {{.recordNo = 98}, {.recordNo = 100}});
    session.useForm = "frmQuiz7";
    session.stepTitle = "형용사 4";
    session.topicNo = 8;
    session.stepType = "Quiz";
    nextFrom(98);
    EXPECT_EQ(session.recordNo, 10);
    EXPECT_EQ(session.topicNo, 8);
    EXPECT_EQ(session.stepTitle, "형용사 4");
    EXPECT_EQ(navigator.screens(), QStringList{"frmQuiz7"});
}

TEST_F(WalkTest, TheNextStepIsLoadedIntoTheSession) {
    addSteps(desk, {{.recordNo = 4},
                    {.recordNo = 5, .topicNo = 3, .pageNo = 7, .useForm = "frmQuiz8", .title = "관사"}});
    session.partDone = {"NO", "NO", "NO", "100"};
    nextFrom(4);
    EXPECT_EQ(session.recordNo, 5);
    EXPECT_EQ(session.topicNo, 3);
    EXPECT_EQ(session.pageNo, 7);
    EXPECT_EQ(session.wordNo, 0);
    EXPECT_EQ(session.useData, "YES");
    EXPECT_EQ(session.useForm, "frmQuiz8");
    EXPECT_EQ(session.stepTitle, "관사 7");
    EXPECT_EQ(session.guideText, "guide 5");
    EXPECT_EQ(session.stepType, "Quiz");
    EXPECT_EQ(session.hasWords, "NO");
    EXPECT_EQ(session.partDone, (std::array<QString, 4>{"YES", "YES", "YES", "100"}));
    EXPECT_EQ(navigator.screens(), QStringList{"frmQuiz8"});
    EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST_F(WalkTest, AnyOtherTypeThanFinalAndLessonCountsAsQuiz) {
    for (const char* type : {"Lesson", "Quiz", "Test", "lesson", ""}) {
        desk.exec(support::courseStore, "delete from tablework");
        addSteps(desk, {{.recordNo = 1}, {.recordNo = 2, .type = type}});
        nextFrom(1);
        EXPECT_EQ(session.stepType, QLatin1String(type) == QLatin1String("Lesson") ? "Lesson" : "Quiz")
            << type;
    }
}

TEST_F(WalkTest, ItsContentIsPreparedBeforeItsScreenOpens) {
    addSteps(desk, {{.recordNo = 4}, {.recordNo = 5}});
    addQuestions(desk, 4, 2);
    addQuestions(desk, 5, 3);
    nextFrom(4);
    EXPECT_EQ(desk.rows(support::courseStore, "select recordno,orderno from quiz_data_New3"),
              (QStringList{"5|1", "5|2", "5|3"}));
}

TEST_F(WalkTest, AStepWithWordsOpensOnTheSpellingCoach) {
    addSteps(desk, {{.recordNo = 1}, {.recordNo = 2, .type = "Lesson", .useForm = "frmLesson", .wordNo = 1}});
    nextFrom(1);
    EXPECT_EQ(session.hasWords, "YES");
    EXPECT_EQ(session.wordNo, 1);
    EXPECT_EQ(navigator.screens(), QStringList{"frmVoca2"});
    session.vocaFirst = "NO";
    nextFrom(1);
    EXPECT_EQ(navigator.screens().last(), "frmVideo_2014") << "the step's own screen, its video first";
}

TEST_F(WalkTest, AFinalStepIsAnnouncedAndStartsTheFirstOfItsQuizzes) {
    addSteps(
        desk,
        {{.recordNo = 91, .topicNo = 7, .pageNo = 2, .useForm = "frmQuiz3", .quizNo = 5, .title = "일반동사"},
         {.recordNo = 92, .topicNo = 7, .pageNo = 3, .quizNo = 1},
         {.recordNo = 93, .topicNo = 7, .pageNo = 4, .type = "Lesson"},
         {.recordNo = 94, .topicNo = 7, .pageNo = 21, .type = "Final", .wordNo = 0}});
    addQuestions(desk, 91, 5);
    desk.boxes.onShow = [&](const platform::Message&) {
        EXPECT_TRUE(navigator.asked.empty()) << "told before the first quiz opens";
        EXPECT_EQ(desk.row(support::courseStore, "select count(*) from quiz_data_New3"), "6")
            << "drawn by then";
    };
    nextFrom(93);
    ASSERT_EQ(desk.boxes.texts(), QStringList{"다음은 Final Quiz가 진행됩니다."});
    EXPECT_EQ(desk.boxes.shown[0].icon, platform::BoxIcon::Information);
    EXPECT_EQ(session.finalBaseRecordNo, 94);
    EXPECT_EQ(session.finalStepCount, 2);
    EXPECT_EQ(session.finalStepNo, 1);
    EXPECT_EQ(session.finalItemTotal, 6);
    EXPECT_EQ(session.finalItemNo, 1);
    EXPECT_EQ(session.hasWords, "NO");
    EXPECT_EQ(session.recordNo, 91);
    EXPECT_EQ(session.stepTitle, "일반동사 2");
    EXPECT_EQ(session.guideText, "guide 91");
    EXPECT_EQ(session.stepType, "Final") << "type, words and page stay those of the Final step";
    EXPECT_EQ(session.pageNo, 21);
    EXPECT_EQ(navigator.screens(), QStringList{"frmQuiz3"});
}

TEST_F(WalkTest, TheStepsOfAFinalAreTakenByPositionInTheirStoredOrder) {
    desk.exec(support::courseStore,
              "insert into tablework_Final(recordno,topicno,pageno,Type,Title,guide,wordno,useform) values"
              "(33,2,5,'Quiz','셋','g33',9,'frmQuiz2'),(11,1,4,'Quiz','하나','g11',9,'frmQuiz9'),(22,1,3,'"
              "Quiz','둘','g22',9,'frmQuiz4')");
    session.finalStepNo = 2;
    session.hasWords = "YES";
    session.stepType = "Final";
    session.wordNo = 0;
    course::NextFinalStep(context);
    EXPECT_EQ(session.recordNo, 11);
    EXPECT_EQ(session.topicNo, 1);
    EXPECT_EQ(session.stepTitle, "하나 4");
    EXPECT_EQ(session.guideText, "g11");
    EXPECT_EQ(session.hasWords, "NO");
    EXPECT_EQ(session.wordNo, 0);
    EXPECT_EQ(session.stepType, "Final");
    EXPECT_EQ(navigator.screens(), QStringList{"frmQuiz9"});
    session.finalStepNo = 4;
    EXPECT_EQ(errorOf([&] { course::NextFinalStep(context); }), 3021);
}

TEST_F(WalkTest, AReviewWouldTakeItsOwnNumberWithoutAskingForTheStepBetween) {
    addSteps(desk, {{.recordNo = 3}, {.recordNo = 9, .useForm = "frmQuiz5"}});
    session.reviewMode = "YES";
    session.reviewRecordNo = 9;
    nextFrom(3);
    EXPECT_EQ(session.recordNo, 9);
    EXPECT_EQ(navigator.screens(), QStringList{"frmQuiz5"});
}

namespace {

class CompletedTest : public WalkTest {
   protected:
    void addScore(int recordNo, const char* title, const char* score, const char* student = "1001",
                  const char* program = "Tovalin1") const {
        desk.exec(support::scoreStore,
                  "insert into score(recordno,page2,vtitle,s4,studentno,program) values(" +
                      std::to_string(recordNo) + "," + std::to_string(recordNo) + ",'" + title + "'," +
                      score + ",'" + student + "','" + program + "')");
    }
    QString check() {
        session.quizzesComplete = "NO";
        course::CheckQuizCompleted(context);
        return session.quizzesComplete;
    }
};

}  // namespace

TEST_F(CompletedTest, WithoutABegunStepNothingIsToldAndTheAnswerIsYes) {
    EXPECT_EQ(check(), "YES");
    addScore(3, "", "100");
    addScore(4, "", "1");
    EXPECT_EQ(check(), "YES");
    EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST_F(CompletedTest, ABegunStepAnywhereInTheCourseHoldsTheLearnerBackByItsTitle) {
    addScore(3, "명사 3", "100");
    addScore(200, "부사 2", "0");
    addScore(201, "부사 3", "0");
    EXPECT_EQ(check(), "NO");
    ASSERT_EQ(
        desk.boxes.texts(),
        QStringList{"부사 2의 퀴즈가 끝나지 않은 데이타가 있습니다.\n\n부사 2 Quiz completion Required"});
    EXPECT_EQ(desk.boxes.shown[0].icon, platform::BoxIcon::Information);
}

TEST_F(CompletedTest, TheReminderOfABegunStepHasNothingBeforeIt) {
    session.recordNo = 30;
    session.wordNo = 5;
    session.stepType = "Quiz";
    session.stepTitle = "대명사 2";
    session.scoreSlot = 1;
    course::SaveScore(context);
    EXPECT_EQ(check(), "NO");
    EXPECT_EQ(desk.boxes.lastText(), "의 퀴즈가 끝나지 않은 데이타가 있습니다.\n\n Quiz completion Required");
}

TEST_F(CompletedTest, OtherLearnersAndProgramsHoldNobodyBack) {
    addScore(3, "명사 3", "0", "1002");
    addScore(4, "명사 4", "0", "1001", "Tovalin2");
    EXPECT_EQ(check(), "YES");
}

TEST_F(CompletedTest, TheScoreStoreIsClosedAgain) {
    addScore(3, "명사 3", "0");
    check();
    EXPECT_FALSE(session.scoreDb.isOpen());
    EXPECT_FALSE(session.scoreRs.isOpen());
}
