#pragma once

#include <QString>

#include <memory>

namespace platform {

/// Plays wave files, one at a time: a new sound cuts off the one before. A media player sounds beside them on
/// a voice of its own. A sound that cannot be played is silence, never an error.
class SoundPlayer {
   public:
    virtual ~SoundPlayer() = default;
    /// Starts the sound; with `wait` returns when it has ended.
    virtual void play(const QString& file, bool wait) = 0;
    /// Starts what a media player plays: it cuts off what a player played before, and no other sound.
    virtual void playBeside(const QString& file) { play(file, false); }
};

/// Sounds on the machine's audio device. The library behind it is loaded with the first sound.
class DeviceSound final : public SoundPlayer {
   public:
    DeviceSound();
    ~DeviceSound() override;
    void play(const QString& file, bool wait) override;
    void playBeside(const QString& file) override;

   private:
    struct Module;
    /// Whether there is a file and a device to play it on.
    bool canPlay(const QString& file);
    std::unique_ptr<Module> module_;
};

}  // namespace platform
