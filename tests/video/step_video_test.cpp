#include "tests/video/video_desk.h"

#include "course/walk.h"
#include "platform/desktop/timer.h"

#include <gtest/gtest.h>

namespace {

using namespace support;

const QString stepName = QStringLiteral("frmVideo_2014");
const QString playerName = QStringLiteral("frmVideo2");

class StepVideo : public testing::Test {
   protected:
    /// Opens the step's video and ends the player; null when either did not come.
    core::Screen* watch(int recordNo) {
        desk.session.recordNo = recordNo;
        desk.session.stepTitle = QStringLiteral("관사 1");
        desk.screens().open(stepName);
        return endPlayer();
    }
    core::Screen* endPlayer() {
        core::Screen* player = desk.awaitScreen(playerName);
        if (player == nullptr)
            return nullptr;
        QTest::keyClick(player, Qt::Key_Escape);
        return desk.awaitScreen(stepName);
    }

    VideoDesk desk;
};

TEST_F(StepVideo, TheNumberComesFromTheDataNotFromTheStep) {
    ASSERT_NE(watch(21), nullptr) << desk.failure().toStdString();
    EXPECT_EQ(desk.session.videoFile, desk.session.videoRoot + QStringLiteral("\\Lesson_3.wmv"));
}

TEST_F(StepVideo, TheFirstTipRowGivesTheNumberAndAllRowsGiveTheText) {
    desk.exec(
        masterStore,
        "insert into tovalin1_gram_tip (recordno, topicno, tips, autono) values (21, 2, '더 알아보기', 9)");
    core::Screen* step = watch(21);
    ASSERT_NE(step, nullptr);
    EXPECT_EQ(desk.session.videoFile, desk.session.videoRoot + QStringLiteral("\\Lesson_3.wmv"));
    EXPECT_EQ(find<platform::StoryBox>(step, QStringLiteral("txtStory")).text(),
              QStringLiteral("관사 설명\n\n더 알아보기\n\n"));
    EXPECT_EQ(find<platform::Label>(step, QStringLiteral("lblTitle")).caption(), QStringLiteral("관사 1"));
    EXPECT_EQ(find<platform::Label>(step, QStringLiteral("lblBookTitle")).caption(),
              QStringLiteral("Video Grammar Lesson"));
}

TEST_F(StepVideo, AStepWithoutTipsAsksForVideoZeroAndGoesOn) {
    core::Screen* step = watch(77);
    ASSERT_NE(step, nullptr);
    EXPECT_EQ(desk.session.videoFile, desk.session.videoRoot + QStringLiteral("\\Lesson_0.wmv"));
    EXPECT_EQ(find<platform::StoryBox>(step, QStringLiteral("txtStory")).text(), QString());
    EXPECT_TRUE(desk.boxes.shown.empty());
}

/// Notes whether the step's tips had been painted when the player came up.
class PaintWatch final : public QObject {
   public:
    bool tipsPainted = false;
    bool tipsPaintedFirst = false;

   protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint && object->parent() != nullptr &&
            object->parent()->objectName() == QStringLiteral("txtStory"))
            tipsPainted = true;
        if (event->type() == QEvent::Show && object->objectName() == playerName)
            tipsPaintedFirst = tipsPainted;
        return false;
    }
};

TEST_F(StepVideo, TheTipsArePaintedBeforeThePlayerOpens) {
    PaintWatch watchman;
    qApp->installEventFilter(&watchman);
    core::Screen* step = watch(21);
    qApp->removeEventFilter(&watchman);
    ASSERT_NE(step, nullptr);
    EXPECT_TRUE(watchman.tipsPaintedFirst);
}

TEST_F(StepVideo, ThePlayerOpensOnceAndTheTimerStaysOff) {
    core::Screen* step = watch(21);
    ASSERT_NE(step, nullptr);
    EXPECT_FALSE(step->findChild<platform::Timer*>(QStringLiteral("Timer1"))->enabled());
    EXPECT_FALSE(waitFor([&] { return desk.top() != step; }, 100));
}

TEST_F(StepVideo, LeavingTheVideoOfAVideoStepStoresFullMarksAndGoesBackToTheTable) {
    desk.exec(
        courseStore,
        "insert into tablework (recordno, topicno, pageno, Type, Title) values (45, 1, 1, 'Lesson', '명사')");
    desk.session.useForm = QStringLiteral("frmLesson3");
    desk.session.stepType = QStringLiteral("Lesson");
    desk.session.topicNo = 1;
    desk.session.recordNo = 45;
    course::ShowFormByName(desk.context());
    core::Screen* step = endPlayer();
    ASSERT_NE(step, nullptr);
    EXPECT_EQ(desk.rows(scoreStore, "select s4 from score"), QStringList());
    click(find(step, QStringLiteral("picExit")));
    EXPECT_NE(desk.awaitScreen(QStringLiteral("frmTable")), nullptr) << desk.failure().toStdString();
    EXPECT_EQ(desk.rows(scoreStore, "select recordno, cast(s4 as integer) from score"),
              QStringList{QStringLiteral("45|100")});
}

TEST_F(StepVideo, ABrokenVideoNeverHoldsTheLearnerUp) {
    desk.writeVideo(3, "no video");
    core::Screen* step = watch(21);
    ASSERT_NE(step, nullptr);
    click(find(step, QStringLiteral("picExit")));
    EXPECT_TRUE(waitFor([&] { return desk.top() == nullptr; }));
    EXPECT_EQ(desk.failure(), QString());
}

TEST_F(StepVideo, TheSecondExitEndsTheProgramAndAsksNothing) {
    core::Screen* step = watch(21);
    ASSERT_NE(step, nullptr);
    click(find(step, QStringLiteral("picExit2")));
    EXPECT_TRUE(desk.screens().ended());
    EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST_F(StepVideo, AfterThePlayerSpaceGoesOn) {
    core::Screen* step = watch(21);
    ASSERT_NE(step, nullptr);
    ASSERT_EQ(focusName(step), QStringLiteral("picExit"));
    QTest::keyClick(step->focusWidget(), Qt::Key_Space);
    EXPECT_TRUE(waitFor([&] { return desk.top() == nullptr; }));
}

TEST_F(StepVideo, ATipRowWithoutAVideoNumberIsToldWithItsTableAndRow) {
    desk.exec(masterStore, "update tovalin1_gram_tip set autono=null");
    EXPECT_EQ(watch(21), nullptr);
    EXPECT_TRUE(
        desk.failure().contains("field 'autono' of table 'tovalin1_gram_tip' of 'D:\\\\Tovalin_Data.mdb'"))
        << desk.failure().toStdString();
}

}  // namespace
