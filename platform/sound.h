#pragma once

#include <QString>

#include <memory>

namespace platform {

/// Plays wave files, one at a time: a new sound cuts off the one before. A sound that cannot be played is
/// silence, never an error.
class SoundPlayer {
   public:
    virtual ~SoundPlayer() = default;
    /// Starts the sound; with `wait` returns when it has ended.
    virtual void play(const QString& file, bool wait) = 0;
};

/// Sounds on the machine's audio device. The library behind it is loaded with the first sound.
class DeviceSound final : public SoundPlayer {
   public:
    DeviceSound();
    ~DeviceSound() override;
    void play(const QString& file, bool wait) override;

   private:
    struct Module;
    std::unique_ptr<Module> module_;
};

}  // namespace platform
