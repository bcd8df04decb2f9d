#include "tests/video/video_desk.h"

#include "video/player_window.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using namespace support;
using platform::MediaState;

class Player : public testing::Test {
   protected:
    void play(int number) {
        player = desk.openPlayer(number);
        ASSERT_NE(player, nullptr) << desk.failure().toStdString();
    }
    void playRealVideo(double seconds = 3.0) {
        desk.makeVideo(1, seconds);
        play(1);
        ASSERT_TRUE(VideoDesk::showsPicture(player)) << view().failure().toStdString();
    }
    platform::MediaView& view() const { return VideoDesk::view(player); }
    bool reaches(MediaState state) const {
        return waitFor([&] { return view().state() == state; }, 15000);
    }
    QSlider& slider(const char* name) const { return find<QSlider>(player, QLatin1String(name)); }
    /// Whether the position stays where it is once the player has come to rest.
    bool standsStill() const {
        QTest::qWait(500);
        const qint64 stopped = view().position();
        return !waitFor([&] { return view().position() != stopped; }, 500);
    }
    bool runsOn() const {
        const qint64 begun = view().position();
        return waitFor([&] { return view().position() > begun + 200; }, 15000);
    }
    void press(int key) const { QTest::keyClick(player, static_cast<Qt::Key>(key)); }

    VideoDesk desk;
    core::Screen* player = nullptr;
};

TEST_F(Player, PlaysAtOnceAndItsPictureCanBeGrabbed) {
    playRealVideo();
    EXPECT_TRUE(reaches(MediaState::Playing));
    const QColor centre = view().grab().toImage().pixelColor(view().rect().center());
    EXPECT_GT(centre.red(), 200);
    EXPECT_LT(centre.green(), 60);
    EXPECT_EQ(view().property("URL").toString(), desk.session.videoFile);
    EXPECT_EQ(player->windowTitle(), QStringLiteral("Brindle Tovalin Video Lesson"));
    EXPECT_EQ(player->size(), QSize(800, 600));
}

TEST_F(Player, AFilmOfTheSizeOfALessonPlaysToItsEnd) {
    desk.makeVideo(1, 3.0, QStringLiteral("testsrc=s=640x480:r=25"));
    play(1);
    ASSERT_TRUE(VideoDesk::showsPicture(player)) << view().failure().toStdString();
    EXPECT_TRUE(reaches(MediaState::Ended)) << view().failure().toStdString();
    EXPECT_EQ(view().failure(), QString());
}

TEST_F(Player, GoesOnAfterTheProgramWasBusyForAWhile) {
    playRealVideo(20.0);
    ASSERT_TRUE(reaches(MediaState::Playing));
    for (const int busy : {400, 1500}) {
        QTest::qSleep(busy);
        EXPECT_TRUE(runsOn()) << view().failure().toStdString();
    }
    EXPECT_EQ(view().failure(), QString());
}

TEST_F(Player, StartsThoughTheProgramIsBusyMeanwhile) {
    desk.makeVideo(1, 20.0);
    play(1);
    for (int i = 0; i < 10; ++i) {
        settle();
        QTest::qSleep(500);
    }
    EXPECT_TRUE(runsOn()) << view().failure().toStdString();
    EXPECT_EQ(view().failure(), QString());
}

TEST_F(Player, SpacePausesAndPlaysOn) {
    playRealVideo(20.0);
    ASSERT_TRUE(reaches(MediaState::Playing));
    ASSERT_TRUE(waitFor([&] { return view().position() > 0; }));
    press(Qt::Key_Space);
    ASSERT_TRUE(reaches(MediaState::Paused));
    const qint64 stopped = view().position();
    EXPECT_FALSE(waitFor([&] { return view().position() > stopped + 200; }, 400));
    press(Qt::Key_Space);
    EXPECT_TRUE(reaches(MediaState::Playing));
    EXPECT_TRUE(waitFor([&] { return view().position() > stopped; }));
}

TEST_F(Player, SpaceAtTheFirstPicturePausesAndPlaysOn) {
    playRealVideo(20.0);
    press(Qt::Key_Space);
    ASSERT_TRUE(reaches(MediaState::Paused));
    EXPECT_TRUE(standsStill());
    press(Qt::Key_Space);
    EXPECT_TRUE(reaches(MediaState::Playing));
    EXPECT_TRUE(runsOn());
}

TEST_F(Player, SpaceBeforeTheFirstPictureHoldsTheVideoUntilTheNextOne) {
    desk.makeVideo(1, 20.0);
    play(1);
    ASSERT_TRUE(view().picture().isNull());
    press(Qt::Key_Space);
    EXPECT_FALSE(view().isPlaying());
    ASSERT_TRUE(VideoDesk::showsPicture(player));
    ASSERT_TRUE(reaches(MediaState::Paused));
    EXPECT_TRUE(standsStill());
    press(Qt::Key_Space);
    EXPECT_TRUE(reaches(MediaState::Playing));
    EXPECT_TRUE(runsOn());
}

TEST_F(Player, TwoSpacesBeforeTheFirstPictureLetTheVideoPlay) {
    desk.makeVideo(1, 20.0);
    play(1);
    press(Qt::Key_Space);
    press(Qt::Key_Space);
    EXPECT_TRUE(view().isPlaying());
    EXPECT_TRUE(runsOn());
}

TEST_F(Player, SpaceWhileTheFileIsBeingOpenedHoldsTheVideoToo) {
    desk.makeVideo(1, 20.0);
    play(1);
    settle();
    press(Qt::Key_Space);
    ASSERT_TRUE(VideoDesk::showsPicture(player));
    ASSERT_TRUE(reaches(MediaState::Paused));
    EXPECT_TRUE(standsStill());
    press(Qt::Key_Space);
    EXPECT_TRUE(runsOn());
}

TEST_F(Player, EscapeLeavesTheFullScreenFirstAndEndsTheVideoOnlyThen) {
    playRealVideo(20.0);
    const QRect place = player->geometry();
    click(find(player, QStringLiteral("cmdFull")));
    ASSERT_TRUE(player->isFullScreen());
    press(Qt::Key_Escape);
    settle();
    ASSERT_EQ(desk.top(), player);
    EXPECT_FALSE(player->isFullScreen());
    EXPECT_EQ(player->geometry(), place);
    EXPECT_TRUE(view().isPlaying());
    press(Qt::Key_Escape);
    EXPECT_TRUE(desk.playerIsGone());
}

TEST_F(Player, TheEndedVideoKeepsItsWindowAndSpacePlaysItAgain) {
    playRealVideo(1.0);
    ASSERT_TRUE(reaches(MediaState::Ended));
    EXPECT_EQ(desk.top(), player);
    EXPECT_FALSE(view().picture().isNull());
    press(Qt::Key_Space);
    EXPECT_TRUE(reaches(MediaState::Playing));
    EXPECT_TRUE(reaches(MediaState::Ended));
}

TEST_F(Player, TheBarAndTheArrowKeysSeek) {
    playRealVideo(30.0);
    ASSERT_TRUE(reaches(MediaState::Playing));
    ASSERT_TRUE(waitFor([&] { return view().duration() > 29000; })) << view().duration();
    press(Qt::Key_Space);
    ASSERT_TRUE(reaches(MediaState::Paused));
    slider("sldSeek").setValue(20000);
    EXPECT_TRUE(waitFor([&] { return view().position() >= 18000; }));
    press(Qt::Key_Left);
    EXPECT_TRUE(waitFor([&] { return view().position() < 18000 && view().position() > 10000; }));
    press(Qt::Key_Right);
    EXPECT_TRUE(waitFor([&] { return view().position() >= 17000; }));
    EXPECT_TRUE(waitFor([&] { return slider("sldSeek").value() >= 17000; }));
}

TEST_F(Player, AClickOnTheBarJumpsToItsPlace) {
    playRealVideo(30.0);
    ASSERT_TRUE(waitFor([&] { return view().duration() > 29000; })) << view().duration();
    QSlider& bar = slider("sldSeek");
    QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(bar.width() * 2 / 3, bar.height() / 2));
    EXPECT_TRUE(waitFor([&] { return view().position() >= 17000; }));
}

TEST_F(Player, UpAndDownChangeTheVolumeWithinItsBounds) {
    playRealVideo();
    const int loudest = slider("sldVolume").maximum();
    EXPECT_EQ(slider("sldVolume").value(), loudest);
    press(Qt::Key_Up);
    EXPECT_EQ(slider("sldVolume").value(), loudest);
    press(Qt::Key_Down);
    EXPECT_EQ(slider("sldVolume").value(), loudest - 1);
}

TEST_F(Player, ADoubleClickFillsTheScreenAndAnotherGoesBack) {
    playRealVideo();
    QTest::mouseDClick(&view(), Qt::LeftButton);
    EXPECT_TRUE(waitFor([&] { return player->geometry() == player->screen()->geometry(); }));
    QTest::mouseDClick(&view(), Qt::LeftButton);
    EXPECT_TRUE(waitFor([&] { return player->size() == QSize(800, 600); }));
}

TEST_F(Player, EscapeEndsItPlayingPausedOrEnded) {
    desk.makeVideo(1, 1.0);
    const std::vector<std::function<void()>> states{
        [&] { EXPECT_TRUE(reaches(MediaState::Playing)); },
        [&] {
            EXPECT_TRUE(reaches(MediaState::Playing));
            press(Qt::Key_Space);
        },
        [&] { EXPECT_TRUE(reaches(MediaState::Ended)); },
        [] {},
    };
    for (const auto& reach : states) {
        play(1);
        reach();
        press(Qt::Key_Escape);
        EXPECT_TRUE(desk.playerIsGone());
    }
    EXPECT_FALSE(desk.screens().ended());
}

TEST_F(Player, EscapeWorksFromEveryControlOfTheBar) {
    desk.makeVideo(1, 1.0);
    for (const char* name : {"cmdPlay", "sldSeek", "sldVolume", "cmdFull"}) {
        play(1);
        QWidget& control = find(player, QLatin1String(name));
        control.setFocus();
        QTest::keyClick(&control, Qt::Key_Escape);
        EXPECT_TRUE(desk.playerIsGone()) << name;
    }
}

TEST_F(Player, TheCloseButtonEndsThePlayerAndNotTheProgram) {
    playRealVideo();
    player->close();
    EXPECT_TRUE(desk.playerIsGone());
    EXPECT_FALSE(desk.screens().ended());
}

TEST_F(Player, AMissingFileIsToldInTheWindowWithItsName) {
    play(0);
    ASSERT_TRUE(waitFor([&] { return view().hasFailed(); }));
    EXPECT_EQ(
        view().failure(),
        QStringLiteral("동영상을 재생할 수 없습니다.\n\n파일을 찾을 수 없습니다: "
                       "D:\\A_Mendori\\Mendori_Program\\Tovalin1_Video\\\\Lesson_0.wmv\n\n창을 닫으면 학습이 "
                       "계속됩니다."));
    EXPECT_TRUE(find<QLabel>(player, QStringLiteral("lblFailure")).isVisible());
    EXPECT_TRUE(desk.boxes.shown.empty());
    press(Qt::Key_Space);
    press(Qt::Key_Escape);
    EXPECT_TRUE(desk.playerIsGone());
}

TEST_F(Player, AnEmptyFileIsToldAsSuch) {
    desk.writeVideo(4, {});
    play(4);
    ASSERT_TRUE(waitFor([&] { return view().hasFailed(); }));
    EXPECT_TRUE(view().failure().contains(QStringLiteral("파일이 비어 있습니다")));
}

TEST_F(Player, AFileThatIsNoVideoIsToldWithThePlayersReason) {
    const QByteArray noise = [] {
        std::mt19937 draw(7);
        QByteArray bytes;
        for (int i = 0; i < 30000; ++i)
            bytes.append(static_cast<char>(draw()));
        return bytes;
    }();
    for (const QByteArray& bytes : {noise, QByteArray(5000, 'x'), QByteArray(64, '\0')}) {
        desk.writeVideo(5, bytes);
        play(5);
        EXPECT_TRUE(waitFor([&] { return view().hasFailed(); }, 15000));
        EXPECT_TRUE(view().failure().contains(QStringLiteral("재생할 수 없는 파일입니다")))
            << view().failure().toStdString();
        press(Qt::Key_Escape);
        EXPECT_TRUE(desk.playerIsGone());
    }
}

TEST_F(Player, AVideoThatBreaksOffInItsHeadIsTold) {
    desk.makeVideo(1);
    QFile whole(desk.file(videoFolder + QStringLiteral("Lesson_1.wmv")));
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    desk.writeVideo(6, whole.read(700));
    play(6);
    EXPECT_TRUE(waitFor([&] { return view().hasFailed(); }, 15000));
}

TEST_F(Player, SoundWithoutAPictureIsTold) {
    const QString file = desk.file(videoFolder + QStringLiteral("Lesson_8.wmv"));
    QProcess::execute(QStringLiteral("ffmpeg"), {"-nostdin", "-v", "error", "-f", "lavfi", "-i",
                                                 "sine=220:d=1", "-c:a", "wmav2", "-f", "asf", file});
    play(8);
    EXPECT_TRUE(waitFor([&] { return view().hasFailed(); }, 15000));
}

TEST_F(Player, RandomKeysAndClicksDoNoHarm) {
    desk.makeVideo(1, 2.0);
    constexpr std::array keys{Qt::Key_Space, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,
                              Qt::Key_Down,  Qt::Key_Tab,  Qt::Key_A,     Qt::Key_Return};
    for (const unsigned seed : {1U, 2U, 3U}) {
        std::mt19937 draw(seed);
        play(1);
        for (int i = 0; i < 150; ++i) {
            const QPoint place(static_cast<int>(draw() % 800), static_cast<int>(draw() % 600));
            QWidget* under = player->childAt(place);
            switch (draw() % 4) {
                case 0: press(keys[draw() % keys.size()]); break;
                case 1:
                    if (under != nullptr)
                        QTest::mouseClick(under, Qt::LeftButton, {}, under->mapFrom(player, place));
                    break;
                case 2: QTest::mouseDClick(&view(), Qt::LeftButton); break;
                default: settle();
            }
        }
        if (player->isFullScreen())
            press(Qt::Key_Escape);
        press(Qt::Key_Escape);
        EXPECT_TRUE(desk.playerIsGone());
    }
    EXPECT_EQ(desk.failure(), QString());
}

TEST(PlayingTime, ReadsAsMinutesAndSeconds) {
    EXPECT_EQ(video::playingTime(0), QStringLiteral("0:00"));
    EXPECT_EQ(video::playingTime(65999), QStringLiteral("1:05"));
    EXPECT_EQ(video::playingTime(600000), QStringLiteral("10:00"));
}

}  // namespace
