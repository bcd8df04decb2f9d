#include "platform/media_interface.h"

#include <QAudioDevice>
#include <QAudioOutput>
#include <QMediaDevices>
#include <QMediaPlayer>
#include <QUrl>
#include <QVideoFrame>
#include <QVideoSink>

#include <algorithm>

namespace {

using platform::MediaListener;
using platform::MediaState;

class Player final : public platform::MediaPlayer {
   public:
    Player(const QString& file, MediaListener& listener) : listener_(listener) {
        // Without a sound device the player is left without a sound output, else its back end may hang on it.
        if (!QMediaDevices::audioOutputs().isEmpty())
            player_.setAudioOutput(&audio_);
        player_.setVideoSink(&sink_);
        QObject::connect(&sink_, &QVideoSink::videoFrameChanged, &player_,
                         [this](const QVideoFrame& f) { frame(f); });
        QObject::connect(&player_, &QMediaPlayer::errorOccurred, &player_,
                         [this](QMediaPlayer::Error, const QString& reason) { fail(reason); });
        QObject::connect(&player_, &QMediaPlayer::mediaStatusChanged, &player_, [this] { statusChanged(); });
        QObject::connect(&player_, &QMediaPlayer::playbackStateChanged, &player_, [this] { progressed(); });
        QObject::connect(&player_, &QMediaPlayer::positionChanged, &player_, [this] { progressed(); });
        QObject::connect(&player_, &QMediaPlayer::durationChanged, &player_, [this] { progressed(); });
        player_.setSource(QUrl::fromLocalFile(file));
        player_.play();
    }
    ~Player() override {
        // Nothing that stopping sets off may reach a listener on its way out.
        quiet_ = true;
        player_.disconnect(&player_);
        sink_.disconnect(&player_);
        player_.stop();
    }

    void play() override { player_.play(); }
    void pause() override { player_.pause(); }
    void seek(qint64 milliseconds) override {
        player_.setPosition(std::clamp<qint64>(milliseconds, 0, std::max<qint64>(0, duration())));
    }
    void setVolume(double volume) override { audio_.setVolume(static_cast<float>(volume)); }
    MediaState state() const override {
        if (player_.mediaStatus() == QMediaPlayer::EndOfMedia)
            return MediaState::Ended;
        if (!started_)
            return MediaState::Loading;
        return player_.playbackState() == QMediaPlayer::PlayingState ? MediaState::Playing
                                                                     : MediaState::Paused;
    }
    qint64 position() const override { return player_.position(); }
    qint64 duration() const override { return player_.duration(); }

   private:
    void frame(const QVideoFrame& frame) {
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
    void progressed() {
        if (!quiet_)
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
        else if (status == QMediaPlayer::EndOfMedia && !started_)
            fail(QStringLiteral("The file holds no picture."));
        else
            progressed();
    }

    MediaListener& listener_;
    QMediaPlayer player_;
    QAudioOutput audio_;
    QVideoSink sink_;
    bool started_ = false;
    bool quiet_ = false;
};

}  // namespace

extern "C" __attribute__((visibility("default"))) platform::MediaPlayer* mendori_media_create(
    const QString& file, MediaListener& listener) {
    return new Player(file, listener);
}
