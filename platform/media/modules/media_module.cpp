#include "platform/media/media_interface.h"

#include <QAudioDevice>
#include <QAudioOutput>
#include <QCoreApplication>
#include <QMediaDevices>
#include <QMediaPlayer>
#include <QTimer>
#include <QUrl>
#include <QVideoFrame>
#include <QVideoSink>

#include <algorithm>
#include <set>
#include <utility>

namespace {

using platform::MediaListener;
using platform::MediaState;

// Long enough for a player that was closed while it started up to have come to rest, in milliseconds.
constexpr int retirement = 400;

class Player;

/// Players on their way out; those left when the application ends go with it.
std::set<Player*>& retired() {
    static std::set<Player*> players;
    return players;
}

class Player final : public platform::MediaPlayer {
   public:
    Player(const QString& file, MediaListener& listener) : listener_(listener) {
        // Without a sound device the player is left without a sound output, else its back end may hang on it.
        if (!QMediaDevices::audioOutputs().isEmpty())
            player_.setAudioOutput(&audio_);
        player_.setVideoSink(&sink_);
        QObject::connect(&sink_, &QVideoSink::videoFrameChanged, &player_, [this] { frameCame(); });
        QObject::connect(&player_, &QMediaPlayer::errorOccurred, &player_,
                         [this](QMediaPlayer::Error, const QString& reason) { fail(reason); });
        QObject::connect(&player_, &QMediaPlayer::mediaStatusChanged, &player_, [this] { statusChanged(); });
        QObject::connect(&player_, &QMediaPlayer::playbackStateChanged, &player_, [this] { progressed(); });
        QObject::connect(&player_, &QMediaPlayer::positionChanged, &player_, [this] { progressed(); });
        QObject::connect(&player_, &QMediaPlayer::durationChanged, &player_, [this] { progressed(); });
        player_.setSource(QUrl::fromLocalFile(file));
        player_.play();
    }
    void retire() override {
        // Stopping at once blocks this thread for 300 to 1000 ms: the back end waits for the very thread that
        // stops it to take a frame. Paused, and with the event loop free in between, it stops without a wait.
        quiet_ = true;
        player_.pause();
        audio_.setMuted(true);
        retired().insert(this);
        QTimer::singleShot(retirement, QCoreApplication::instance(), [this] {
            retired().erase(this);
            delete this;
        });
    }

    void play() override {
        holdWhenRunning(false);
        player_.play();
    }
    void pause() override {
        // Paused before it has begun to run, the back end may never move on again.
        if (player_.position() > 0)
            player_.pause();
        else
            holdWhenRunning(true);
    }
    void seek(qint64 milliseconds) override {
        player_.setPosition(std::clamp<qint64>(milliseconds, 0, std::max<qint64>(0, duration())));
    }
    void setVolume(double volume) override { audio_.setVolume(static_cast<float>(volume)); }
    MediaState state() const override {
        if (player_.mediaStatus() == QMediaPlayer::EndOfMedia)
            return MediaState::Ended;
        if (!started_)
            return MediaState::Loading;
        return player_.playbackState() == QMediaPlayer::PlayingState && !holds_ ? MediaState::Playing
                                                                                : MediaState::Paused;
    }
    qint64 position() const override { return player_.position(); }
    qint64 duration() const override { return player_.duration(); }

   private:
    void frameCame() {
        // The back end waits inside this call, 300 ms and no longer, before it gives the film up as broken;
        // the first picture may take more, where a slow machine sets up its graphics for it. So the call only
        // notes that there is a picture, and a machine that cannot keep up shows the latest.
        if (std::exchange(frameWaits_, true))
            return;
        QMetaObject::invokeMethod(
            &player_,
            [this] {
                frameWaits_ = false;
                show(sink_.videoFrame());
            },
            Qt::QueuedConnection);
    }
    void show(const QVideoFrame& frame) {
        if (quiet_ || !frame.isValid())
            return;
        const QImage image = frame.toImage();
        if (image.isNull())
            return;
        const bool first = !started_;
        started_ = true;
        listener_.mediaFrame(image);
        if (first)
            progressed();
    }
    void holdWhenRunning(bool holds) {
        holds_ = holds;
        audio_.setMuted(holds);
    }
    void progressed() {
        if (quiet_)
            return;
        if (holds_ && player_.position() > 0) {
            holdWhenRunning(false);
            player_.pause();
        }
        listener_.mediaProgressed();
    }
    void fail(const QString& reason) {
        if (quiet_)
            return;
        quiet_ = true;
        listener_.mediaFailed(reason);
    }
    void statusChanged() {
        const auto status = player_.mediaStatus();
        if (status == QMediaPlayer::InvalidMedia)
            fail(player_.errorString());
        else if ((status == QMediaPlayer::EndOfMedia && !started_) ||
                 (status == QMediaPlayer::BufferedMedia && !player_.hasVideo()))
            fail(QStringLiteral("The file holds no picture."));
        else
            progressed();
    }

    MediaListener& listener_;
    QAudioOutput audio_;
    QVideoSink sink_;
    QMediaPlayer player_;
    bool started_ = false;
    bool quiet_ = false;
    bool frameWaits_ = false;  // one has come that is not on view yet
    bool holds_ = false;       // to be paused as soon as it runs
};

void endRetired() {
    const std::set<Player*> left = std::exchange(retired(), {});
    for (Player* player : left)
        delete player;
}

}  // namespace

extern "C" __attribute__((visibility("default"))) platform::MediaPlayer* mendori_media_create(
    const QString& file, MediaListener& listener) {
    static const bool registered = (qAddPostRoutine(endRetired), true);
    Q_UNUSED(registered)
    return new Player(file, listener);
}
