#include "tests/video/video_desk.h"

#include "platform/desktop/look.h"

#include <gtest/gtest.h>

namespace {

using namespace support;

const QString menuName = QStringLiteral("frmVideo");
const QString playerName = QStringLiteral("frmVideo2");

class VideoMenu : public testing::Test {
   protected:
    void SetUp() override {
        menu = desk.open(menuName);
        ASSERT_NE(menu, nullptr) << desk.failure().toStdString();
    }
    platform::Label& topic(int index) const {
        return find<platform::Label>(menu, QStringLiteral("lblTopic(%1)").arg(index));
    }
    platform::Label& second() const { return find<platform::Label>(menu, QStringLiteral("lblTopic2")); }
    platform::StoryBox& story() const { return find<platform::StoryBox>(menu, QStringLiteral("txtStory")); }
    /// Clicks an entry, waits for the player, ends it, and gives the video that was named.
    QString play(QWidget& entry) {
        click(entry);
        core::Screen* player = desk.awaitScreen(playerName);
        if (player == nullptr)
            return {};
        QTest::keyClick(player, Qt::Key_Escape);
        EXPECT_TRUE(desk.playerIsGone());
        return desk.session.videoFile;
    }

    VideoDesk desk;
    core::Screen* menu = nullptr;
};

TEST_F(VideoMenu, EntriesFollowTheTopicNumbersAndTheFirstUnitHasTwo) {
    EXPECT_EQ(topic(0).caption(), QStringLiteral("명사 1"));
    EXPECT_EQ(second().caption(), QStringLiteral("명사 2"));
    EXPECT_EQ(topic(1).caption(), QStringLiteral("관사"));
    EXPECT_EQ(topic(2).caption(), QStringLiteral("대명사"));
    EXPECT_EQ(topic(3).caption(), QString());
    EXPECT_EQ(find<platform::Label>(menu, QStringLiteral("lblBookTitle")).caption(),
              QStringLiteral("Video Grammar Lesson"));
    EXPECT_EQ(find<platform::Label>(menu, QStringLiteral("Label1")).caption(), QStringLiteral("Title"));
    EXPECT_EQ(menu->property("picture").toString().section(u'\\', -1), QStringLiteral("video.jpg"));
}

TEST_F(VideoMenu, OnlyTheFirstLabelPlaysTheNumberOfItsPlacePlusOne) {
    const QString root = desk.session.videoRoot;
    EXPECT_EQ(play(topic(0)), root + QStringLiteral("Lesson_1.wmv"));
    EXPECT_EQ(play(second()), root + QStringLiteral("\\Lesson_2.wmv"));
    EXPECT_EQ(play(topic(1)), root + QStringLiteral("\\Lesson_3.wmv"));
    EXPECT_EQ(play(topic(23)), root + QStringLiteral("\\Lesson_25.wmv"));
}

TEST_F(VideoMenu, BothNounEntriesShowTheSameTipsEachFollowedByAnEmptyLine) {
    play(topic(0));
    EXPECT_EQ(story().text(), QStringLiteral("첫째 설명\n\n둘째 설명\n\n"));
    play(topic(1));
    EXPECT_EQ(story().text(), QStringLiteral("관사 설명\n\n"));
    play(second());
    EXPECT_EQ(story().text(), QStringLiteral("첫째 설명\n\n둘째 설명\n\n"));
}

TEST_F(VideoMenu, AUnitWithoutTipsEmptiesTheBoxAndPlaysAllTheSame) {
    play(topic(0));
    EXPECT_EQ(play(topic(2)), desk.session.videoRoot + QStringLiteral("\\Lesson_4.wmv"));
    EXPECT_EQ(story().text(), QString());
    EXPECT_TRUE(desk.boxes.shown.empty());
    EXPECT_EQ(desk.failure(), QString());
}

TEST_F(VideoMenu, TipsWithoutAVideoNumberAreShownAllTheSame) {
    desk.exec(masterStore,
              "insert into tovalin1_gram_tip (recordno, topicno, tips, autono) values (29, 3, '설명', null)");
    EXPECT_EQ(play(topic(2)), desk.session.videoRoot + QStringLiteral("\\Lesson_4.wmv"));
    EXPECT_EQ(story().text(), QStringLiteral("설명\n\n"));
}

TEST_F(VideoMenu, TheDoubledSeparatorStillFindsTheFile) {
    desk.makeVideo(3);
    click(topic(1));
    core::Screen* player = desk.awaitScreen(playerName);
    ASSERT_NE(player, nullptr);
    EXPECT_TRUE(VideoDesk::showsPicture(player)) << VideoDesk::view(player).failure().toStdString();
}

TEST_F(VideoMenu, TwoClicksInARowOpenOnePlayer) {
    QTest::mouseClick(&topic(0), Qt::LeftButton);
    QTest::mouseClick(&topic(1), Qt::LeftButton);
    core::Screen* player = desk.awaitScreen(playerName);
    ASSERT_NE(player, nullptr);
    EXPECT_EQ(desk.session.videoFile, desk.session.videoRoot + QStringLiteral("Lesson_1.wmv"));
    QTest::keyClick(player, Qt::Key_Escape);
    EXPECT_EQ(desk.awaitScreen(menuName), menu);
}

TEST_F(VideoMenu, AnEntryCanBePressedByKeyboard) {
    topic(1).setFocus();
    QTest::keyClick(&topic(1), Qt::Key_Return);
    EXPECT_NE(desk.awaitScreen(playerName), nullptr);
    EXPECT_EQ(topic(1).accessibleName(), QStringLiteral("관사"));
}

TEST_F(VideoMenu, TheTitleUnderTheMouseAloneIsRedAndTheFormLeavesItSo) {
    hover(topic(0));
    EXPECT_EQ(topic(0).foreColor(), platform::colour::red);
    hover(topic(1));
    EXPECT_EQ(topic(0).foreColor(), platform::colour::black);
    EXPECT_EQ(topic(1).foreColor(), platform::colour::red);
    hover(*menu);
    EXPECT_EQ(topic(1).foreColor(), platform::colour::red);
    EXPECT_TRUE(desk.sound.played.empty());
}

TEST_F(VideoMenu, WhileTheExitButtonIsLitNoTitleTurnsRed) {
    hover(topic(0));
    hover(find(menu, QStringLiteral("picExit")));
    EXPECT_EQ(desk.sound.played.size(), 1U) << "a title does not spend the hover state";
    hover(topic(1));
    EXPECT_EQ(topic(1).foreColor(), platform::colour::black);
    hover(*menu);
    hover(topic(1));
    EXPECT_EQ(topic(1).foreColor(), platform::colour::red);
}

TEST_F(VideoMenu, TheExitButtonLightsUpOnceAndRestsWhenTheFormIsCrossed) {
    QWidget& exit = find(menu, QStringLiteral("picExit"));
    const auto picture = [&] { return exit.property("picture").toString().section(u'\\', -1); };
    EXPECT_EQ(picture(), QStringLiteral("back1.jpg"));
    hover(exit);
    hover(exit);
    EXPECT_EQ(picture(), QStringLiteral("back2.jpg"));
    EXPECT_EQ(desk.sound.names(), QStringList{QStringLiteral("touchit.wav")});
    hover(*menu);
    EXPECT_EQ(picture(), QStringLiteral("back1.jpg"));
}

TEST_F(VideoMenu, TheExitButtonUnloadsTheMenuAlone) {
    click(find(menu, QStringLiteral("picExit")));
    EXPECT_TRUE(waitFor([&] { return desk.top() == nullptr; }));
    EXPECT_FALSE(desk.screens().ended());
}

TEST(VideoMenuLimits, ATwentyFifthUnitHasNoLabelAndEndsTheRun) {
    VideoDesk desk;
    for (int i = 4; i <= 25; ++i)
        desk.exec(courseStore, "insert into topic (topicno, Title) values (" + std::to_string(i) + ", 'x')");
    EXPECT_EQ(desk.open(menuName), nullptr);
    EXPECT_TRUE(desk.failure().startsWith(QStringLiteral("Run-time error '9'")))
        << desk.failure().toStdString();
}

}  // namespace
