#pragma once

#include "tests/support/desk.h"

namespace support {

/// Notes which screens are asked for instead of bringing them up, so that a test sees the way a routine takes
/// without the screens that stand at its end.
class RecordingNavigator final : public core::Navigator {
   public:
    struct Asked {
        QString screen;
        std::function<void()> closed;
    };
    std::vector<Asked> asked;
    bool ended = false;

    void open(const QString& screen, std::function<void()> closed = {}) override {
        asked.push_back({screen, std::move(closed)});
    }
    void endProgram() override { ended = true; }

    QStringList screens() const {
        QStringList names;
        for (const Asked& one : asked)
            names.append(one.screen);
        return names;
    }
    /// The screen asked for last has come and gone.
    void closeLast() const {
        if (const auto closed = asked.back().closed)
            closed();
    }
};

/// Calls back on each sound, while the screen stands as it does when the sound begins.
class SoundHook final : public platform::SoundPlayer {
   public:
    std::function<void(const QString& file)> onPlay;
    void play(const QString& file, bool) override {
        if (onPlay)
            onPlay(file);
    }
};

/// The context of a desk with another navigator, or another sound player as well.
inline core::Context contextWith(Desk& desk, core::Navigator& navigator,
                                 platform::SoundPlayer* sound = nullptr) {
    const core::Context& context = desk.context();
    return {context.session, context.drives, context.settings,
            context.clock,   context.random, sound == nullptr ? context.sound : *sound,
            context.boxes,   navigator,      context.applicationFolder,
            context.frame};
}

}  // namespace support
