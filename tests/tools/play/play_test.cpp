// Playing a course: right answers reach 100, wrong ones are refused, and a broken step is told.

#include "tools/play/command.h"
#include "tools/play/walk.h"
#include "tools/setup/install.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <gtest/gtest.h>

namespace {

using namespace tools;
using play::Manner;

class PlayedCourse : public testing::Test {
   protected:
    PlayedCourse() {
        InstallPlan plan;
        plan.root = folder_.filePath(QStringLiteral("install"));
        plan.courseFolder = QStringLiteral(MENDORI_SOURCE "/docs/example-course");
        plan.pictureFolder = QStringLiteral(MENDORI_PICTURES);
        plan.userId = QStringLiteral("1001");
        plan.speakWords = false;
        makeInstall(plan);
        root_ = plan.root;
    }

    std::vector<play::PlayResult> playAll(Manner manner, int first = 1) const {
        return play::playCourse(
            root_, manner, [first](int record) { return record >= first; }, [](const auto&) {});
    }

    void spoil(const std::string& sql) const {
        SQLite::Database store((root_ + QStringLiteral("/D/Tovalin_Data.mdb")).toStdString(),
                               SQLite::OPEN_READWRITE);
        store.exec(sql);
    }

    QTemporaryDir folder_;
    QString root_;
};

TEST_F(PlayedCourse, RightAnswersEndEveryStepWith100) {
    const auto results = playAll(Manner::Right);
    ASSERT_EQ(results.size(), 3U);
    for (const auto& result : results)
        EXPECT_TRUE(result.isPerfect()) << result.step.record << ' ' << result.trouble.toStdString();
    EXPECT_EQ(results[0].words, QStringLiteral("100"));
    EXPECT_EQ(results[1].words, QStringLiteral("N/A"));
}

TEST_F(PlayedCourse, AWrongAnswerFirstCostsWordsButNoStep) {
    const auto results = playAll(Manner::WrongFirst);
    ASSERT_EQ(results.size(), 3U);
    for (const auto& result : results)
        EXPECT_TRUE(result.isPerfect()) << result.step.record << ' ' << result.trouble.toStdString();
    EXPECT_LT(results[0].words.toDouble(), 100);
}

TEST_F(PlayedCourse, AskedForStepsThatItDoesNotHaveItSaysSo) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    EXPECT_EQ(
        runPlay({QStringLiteral("--steps"), QStringLiteral("900-901"), QStringLiteral("--pictures"),
                 QStringLiteral(MENDORI_PICTURES), QStringLiteral(MENDORI_SOURCE "/docs/example-course")}),
        1);
    testing::internal::GetCapturedStdout();
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "course play: no step of the course has a number of 900 to 901.\n");
}

TEST_F(PlayedCourse, AQuestionWithoutItsAnswerIsToldAndTheOthersArePlayed) {
    spoil("UPDATE tovalin1_quiz_data SET a1 = 'nobody' WHERE recordno = 46 AND orderno = 2");
    const auto results = playAll(Manner::Right, 46);
    ASSERT_EQ(results.size(), 2U);
    EXPECT_FALSE(results[0].isPerfect());
    EXPECT_FALSE(results[0].trouble.isEmpty());
    EXPECT_TRUE(results[1].isPerfect()) << results[1].trouble.toStdString();
}

TEST_F(PlayedCourse, AStepThatEndsTheProgramIsTold) {
    spoil("DELETE FROM tovalin1_quiz_data WHERE recordno = 46");
    const auto results = playAll(Manner::Right, 46);
    ASSERT_EQ(results.size(), 2U);
    EXPECT_TRUE(results[0].trouble.contains(QStringLiteral("the program ended")))
        << results[0].trouble.toStdString();
    EXPECT_TRUE(results[1].isPerfect()) << results[1].trouble.toStdString();
}

}  // namespace
