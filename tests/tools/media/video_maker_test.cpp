#include "tools/media/video_maker.h"

#include "tests/support/desk.h"
#include "tools/media/video_texts.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using namespace tools;

const VideoText sample{3, QStringLiteral("관사"), QStringLiteral("관사는 명사 앞에 씁니다.\nI have a cat.")};

class VideoMaker : public testing::Test {
   protected:
    VideoReport make(const std::vector<VideoText>& texts) {
        plan.folder = folder.filePath(QStringLiteral("videos"));
        plan.progress = [this](const QString& what, int done, int total) {
            told.append(QStringLiteral("%1/%2 %3").arg(done).arg(total).arg(what));
        };
        return makeVideos(texts, plan);
    }
    QString file(int number) const {
        return folder.filePath(QStringLiteral("videos/") + videoFileName(number));
    }
    static QByteArray probe(const QString& video, const QString& entries) {
        QProcess process;
        process.start(QStringLiteral("ffprobe"),
                      {"-v", "error", "-show_entries", entries, "-of", "csv=p=0", video});
        process.waitForFinished();
        return process.readAllStandardOutput().simplified();
    }

    QTemporaryDir folder;
    VideoPlan plan;
    QStringList told;
};

TEST_F(VideoMaker, MakesTrueWindowsMediaOfTheRightLengthAndTellsHowFarItIs) {
    const VideoReport report = make({sample});
    EXPECT_EQ(report.made, 1);
    ASSERT_TRUE(report.failures.isEmpty()) << report.failures.join(u' ').toStdString();
    EXPECT_EQ(probe(file(3), QStringLiteral("stream=codec_name")), QByteArray("wmv2 wmav2"));
    EXPECT_EQ(probe(file(3), QStringLiteral("format=format_name")), QByteArray("asf"));
    const double seconds = probe(file(3), QStringLiteral("format=duration")).toDouble();
    EXPECT_GE(seconds, 5.0);
    EXPECT_LE(seconds, longestVideo);
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told[0].startsWith(QStringLiteral("1/1 Lesson_3.wmv"))) << told[0].toStdString();
}

TEST_F(VideoMaker, IsNeverSilentForThreeSeconds) {
    VideoText lesson = sample;
    lesson.tips = QStringLiteral(
                      "1. 관사는 명사 앞에 씁니다. 하나일 때에는 a나 an을 붙이고, 정해진 것에는 the를 "
                      "붙입니다.\nI have a cat.\n틀림: I have cat.\n\n")
                      .repeated(4);
    ASSERT_EQ(make({lesson}).made, 1);
    QProcess ffmpeg;
    ffmpeg.setProcessChannelMode(QProcess::MergedChannels);
    ffmpeg.start(QStringLiteral("ffmpeg"), {"-nostdin", "-hide_banner", "-i", file(3), "-af",
                                            "silencedetect=noise=-40dB:d=3", "-f", "null", "-"});
    ASSERT_TRUE(ffmpeg.waitForFinished());
    const QByteArray out = ffmpeg.readAll();
    EXPECT_EQ(ffmpeg.exitCode(), 0);
    EXPECT_FALSE(out.contains("silence_start")) << out.toStdString();
}

TEST_F(VideoMaker, TheSameTextMakesTheSameVideo) {
    ASSERT_EQ(make({sample}).made, 1);
    const auto bytes = [this] {
        QFile in(file(3));
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
    };
    const QByteArray first = bytes();
    plan.makeAll = true;
    ASSERT_EQ(make({sample}).made, 1);
    EXPECT_FALSE(first.isEmpty());
    EXPECT_TRUE(bytes() == first);
}

TEST_F(VideoMaker, MakesAgainOnlyWhatChanged) {
    VideoText other = sample;
    other.number = 4;
    EXPECT_EQ(make({sample, other}).made, 2);
    const QDateTime before = QFileInfo(file(3)).lastModified();
    other.tips += QStringLiteral("\nShe has a dog.");
    const VideoReport second = make({sample, other});
    EXPECT_EQ(second.made, 1);
    EXPECT_EQ(second.kept, 1);
    EXPECT_EQ(QFileInfo(file(3)).lastModified(), before);
}

TEST_F(VideoMaker, AVideoOfTheAuthorsOwnIsLeftAlone) {
    ASSERT_EQ(make({sample}).made, 1);
    VideoText other = sample;
    other.number = 4;
    for (const int number : {3, 4}) {
        QFile own(file(number));
        ASSERT_TRUE(own.open(QIODevice::WriteOnly));
        own.write("my own recording");
    }
    plan.makeAll = true;
    const VideoReport report = make({sample, other});
    EXPECT_EQ(report.kept, 2);
    QFile own(file(3));
    ASSERT_TRUE(own.open(QIODevice::ReadOnly));
    EXPECT_EQ(own.readAll(), QByteArray("my own recording"));
}

TEST_F(VideoMaker, WhatCannotBeMadeIsToldAndLeavesNoHalfFile) {
    ASSERT_TRUE(QDir().mkpath(folder.filePath(QStringLiteral("videos/Lesson_3.wmv.new"))));
    const VideoReport report = make({sample});
    ASSERT_EQ(report.failures.size(), 1);
    EXPECT_TRUE(report.failures[0].startsWith(QStringLiteral("Lesson_3.wmv was not made: ffmpeg failed")))
        << report.failures[0].toStdString();
    EXPECT_FALSE(QFile::exists(file(3)));
}

TEST(VideoTexts, EachRowThatNamesAVideoIsOneAndAUnitsSeveralAreCounted) {
    const auto texts = videoTexts(readCourse(QStringLiteral(MENDORI_SOURCE "/starter")));
    ASSERT_EQ(texts.size(), 25U);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        EXPECT_EQ(texts[i].number, static_cast<int>(i) + 1);
        EXPECT_FALSE(texts[i].title.isEmpty());
        EXPECT_FALSE(texts[i].tips.isEmpty());
    }
    EXPECT_EQ(texts[0].title, QStringLiteral("명사 1"));
    EXPECT_EQ(texts[1].title, QStringLiteral("명사 2"));
    EXPECT_EQ(texts[2].title, QStringLiteral("관사"));
}

}  // namespace
