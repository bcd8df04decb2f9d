#include "platform/media/sound.h"

#include "tests/support/desk.h"
#include "tools/media/wave.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <gtest/gtest.h>

#include <cmath>
#include <csignal>

namespace {

constexpr int rate = 22050;

/// Sounds of their own height each, in a folder that also takes what was played.
class SoundTest : public testing::Test {
   protected:
    QTemporaryDir folder;
    QString high = tone("high.wav", 2000, 0.4);
    QString low = tone("낮은 소리.wav", 250, 0.4);
    QString samples = folder.filePath("played.raw");

    QString tone(const QString& name, double frequency, double seconds) const {
        tools::Wave wave{rate, {}};
        for (int i = 0; i < rate * seconds; ++i)
            wave.samples.push_back(
                static_cast<std::int16_t>(9000 * std::sin(2 * M_PI * frequency * i / rate)));
        EXPECT_TRUE(tools::writeWave(folder.filePath(name), wave));
        return folder.filePath(name);
    }
    /// Runs the player on a device that writes down what it plays; gives the milliseconds the calls took.
    int play(const QStringList& arguments, const QString& driver = "disk") const {
        QProcess child;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("SDL_AUDIODRIVER", driver);
        environment.insert("SDL_DISKAUDIOFILE", samples);
        child.setProcessEnvironment(environment);
        child.start(QCoreApplication::applicationDirPath() + "/play", arguments);
        EXPECT_TRUE(child.waitForFinished(20000));
        EXPECT_EQ(child.exitCode(), 0);
        return child.readAllStandardOutput().trimmed().toInt();
    }
    /// How often the played samples cross zero: the higher the sound, the more. Silence crosses never.
    int crossings() const {
        QFile raw(samples);
        if (!raw.open(QIODevice::ReadOnly))
            return 0;
        const QByteArray bytes = raw.readAll();
        const auto* values = reinterpret_cast<const std::int16_t*>(bytes.constData());
        int count = 0;
        for (qsizetype i = 2; i < bytes.size() / 2; i += 2)
            count += values[i] > 0 && values[i - 2] <= 0 ? 1 : 0;
        return count;
    }
};

}  // namespace

TEST_F(SoundTest, ASoundThatIsWaitedForIsPlayedToItsEnd) {
    EXPECT_GE(play({high}), 300);
    EXPECT_NEAR(crossings(), 800, 80);
}

TEST_F(SoundTest, SoundsThatAreWaitedForPlayOneAfterTheOther) {
    EXPECT_GE(play({high, low}), 600);
    EXPECT_NEAR(crossings(), 900, 90);
}

TEST_F(SoundTest, ASoundStartedAtOnceCutsOffTheOneBefore) {
    EXPECT_LT(play({"--at-once", high, low}), 700);
    EXPECT_NEAR(crossings(), 100, 60);
}

TEST_F(SoundTest, AMediaPlayerSoundsBesideAnEffectAndCutsOffNothing) {
    EXPECT_LT(play({"--beside", high, low}), 700);
    EXPECT_GE(crossings(), 400);
}

TEST_F(SoundTest, AMissingOrBrokenFileIsSilenceAtOnce) {
    QFile broken(folder.filePath("broken.wav"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("no sound at all");
    broken.close();
    EXPECT_LT(play({folder.filePath("missing.wav"), broken.fileName(), folder.path()}), 2000);
    EXPECT_EQ(crossings(), 0);
}

TEST_F(SoundTest, TheSignalsThatEndAProgramEndItAfterASoundToo) {
    const QString word = tone("long.wav", 440, 60);
    for (const int signal : {SIGTERM, SIGINT}) {
        QFile::remove(samples);
        QProcess child;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("SDL_AUDIODRIVER", "disk");
        environment.insert("SDL_DISKAUDIOFILE", samples);
        child.setProcessEnvironment(environment);
        child.start(QCoreApplication::applicationDirPath() + "/play", {word});
        ASSERT_TRUE(support::waitFor([&] { return QFileInfo(samples).size() > 0; }, 20000));
        ASSERT_EQ(kill(static_cast<pid_t>(child.processId()), signal), 0);
        EXPECT_TRUE(child.waitForFinished(5000));
        EXPECT_EQ(child.exitStatus(), QProcess::CrashExit);
        EXPECT_EQ(child.exitCode(), signal);
        child.kill();
        child.waitForFinished(5000);
    }
}

TEST_F(SoundTest, WithoutADeviceTheProgramIsSilentAndNeverStandsStill) {
    EXPECT_LT(play({high, low, high}, "there is no such driver"), 300);
}
