// What a learner waits for a video: from the opening of the player's window to the first picture painted,
// beside what another player takes for the same file.

#include "platform/media/media_view.h"
#include "tests/video/video_desk.h"
#include "tools/media/video_maker.h"

#include <QElapsedTimer>
#include <QStandardPaths>

#include <benchmark/benchmark.h>

namespace {

using namespace support;

/// Knows when the player's picture has been painted.
class FirstPicture final : public QObject {
   public:
    bool painted = false;

   protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        const auto* view = qobject_cast<platform::MediaView*>(object);
        if (event->type() == QEvent::Paint && view != nullptr && !view->picture().isNull())
            painted = true;
        return false;
    }
};

void makeLesson(const VideoDesk& desk) {
    tools::VideoPlan plan;
    plan.folder = desk.file(QStringLiteral("D:\\A_Mendori\\Mendori_Program\\Tovalin1_Video"));
    tools::makeVideos({{1, QStringLiteral("명사"), QStringLiteral("명사는 이름입니다.\nI have a book.")}},
                      plan);
}

void VideoFirstPictureProgram(benchmark::State& state) {
    VideoDesk desk;
    makeLesson(desk);
    FirstPicture first;
    qApp->installEventFilter(&first);
    double coldest = 0.0;
    for (auto _ : state) {
        first.painted = false;
        QElapsedTimer clock;
        clock.start();
        core::Screen* player = desk.openPlayer(1);
        if (player == nullptr || !waitFor([&] { return first.painted; }, 20000)) {
            state.SkipWithError("no picture came");
            break;
        }
        const double seconds = static_cast<double>(clock.nsecsElapsed()) / 1e9;
        coldest = std::max(coldest, seconds);
        state.SetIterationTime(seconds);
        QTest::keyClick(player, Qt::Key_Escape);
        desk.playerIsGone();
        QTest::qWait(600);
    }
    // The first video of a run also loads the media libraries.
    state.counters["slowest_ms"] = coldest * 1000.0;
    qApp->removeEventFilter(&first);
}
BENCHMARK(VideoFirstPictureProgram)->UseManualTime()->Iterations(8)->Unit(benchmark::kMillisecond);

void VideoFirstPictureFfplay(benchmark::State& state) {
    const VideoDesk desk;
    makeLesson(desk);
    qputenv("SDL_VIDEODRIVER", "dummy");
    const QString file = desk.file(videoFolder + QStringLiteral("Lesson_1.wmv"));
    for (auto _ : state) {
        QProcess player;
        player.setProcessChannelMode(QProcess::MergedChannels);
        QElapsedTimer clock;
        clock.start();
        // The filter tells of each picture on its way to the window.
        player.start(QStringLiteral("ffplay"),
                     {"-hide_banner", "-autoexit", "-t", "1", "-vf", "showinfo", file});
        QByteArray told;
        while (!told.contains(" n:   0") && player.waitForReadyRead(20000))
            told += player.readAll();
        state.SetIterationTime(static_cast<double>(clock.nsecsElapsed()) / 1e9);
        if (!told.contains(" n:   0"))
            state.SkipWithError("ffplay showed no picture");
        player.kill();
        player.waitForFinished();
    }
}
BENCHMARK(VideoFirstPictureFfplay)->UseManualTime()->Iterations(8)->Unit(benchmark::kMillisecond);

}  // namespace
