#include "video/video_files.h"

#include "tests/support/desk.h"

#include <gtest/gtest.h>

namespace {

const QString root = QStringLiteral("D:\\Videos\\");

TEST(VideoFiles, TheFirstEntryPlaysVideoOneUnderAPlainPath) {
    EXPECT_EQ(video::menuVideoFile(root, 0), QStringLiteral("D:\\Videos\\Lesson_1.wmv"));
}

TEST(VideoFiles, TheSecondEntryOfTheFirstUnitPlaysVideoTwo) {
    EXPECT_EQ(video::secondVideoFile(root), QStringLiteral("D:\\Videos\\\\Lesson_2.wmv"));
}

TEST(VideoFiles, EveryLaterEntryPlaysTheNumberTwoAboveItsPlaceWithTheSeparatorDoubled) {
    for (int index = 1; index < video::menuTopics; ++index)
        EXPECT_EQ(video::menuVideoFile(root, index),
                  QStringLiteral("D:\\Videos\\\\Lesson_%1.wmv").arg(index + 2));
}

TEST(VideoFiles, AStepsVideoKeepsTheDoubledSeparatorAndMayBeZero) {
    EXPECT_EQ(video::stepVideoFile(root, 19), QStringLiteral("D:\\Videos\\\\Lesson_19.wmv"));
    EXPECT_EQ(video::stepVideoFile(root, 0), QStringLiteral("D:\\Videos\\\\Lesson_0.wmv"));
}

}  // namespace
