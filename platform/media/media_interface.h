#pragma once

#include <QImage>
#include <QString>

namespace platform {

/// Who is told what a running player does. Calls come from the thread that made the player.
class MediaListener {
   public:
    virtual ~MediaListener() = default;
    virtual void mediaFrame(const QImage& frame) = 0;
    /// Position, duration or state changed.
    virtual void mediaProgressed() = 0;
    /// The file cannot be played; nothing more comes of it.
    virtual void mediaFailed(const QString& reason) = 0;
};

enum class MediaState { Loading, Playing, Paused, Ended };

/// One file being played.
class MediaPlayer {
   public:
    virtual ~MediaPlayer() = default;
    /// Ends the playing in silence; the listener hears no more, and the player deletes itself.
    virtual void retire() = 0;
    /// Plays on; after the end, from the start.
    virtual void play() = 0;
    virtual void pause() = 0;
    virtual void seek(qint64 milliseconds) = 0;
    /// From 0 to 1.
    virtual void setVolume(double volume) = 0;
    virtual MediaState state() const = 0;
    virtual qint64 position() const = 0;
    virtual qint64 duration() const = 0;
};

/// What the media module exports: makes a player and starts it. A module of its own, loaded with the first
/// video, because the libraries behind it take longer to load than the rest of the program.
using MediaCreateFunction = MediaPlayer* (*)(const QString& file, MediaListener& listener);
inline constexpr const char* mediaCreateName = "mendori_media_create";

}  // namespace platform
