#pragma once

#include "core/navigator.h"
#include "core/session.h"
#include "platform/desktop/clock.h"
#include "platform/desktop/message_box.h"
#include "platform/desktop/settings.h"
#include "platform/drives.h"
#include "platform/media/sound.h"

#include <QWidget>

namespace core {

/// Everything that a screen or routine may reach, handed by reference from `main`.
struct Context {
    Session& session;
    const platform::Drives& drives;
    const platform::Settings& settings;
    const platform::Clock& clock;
    platform::RandomSource& random;
    platform::SoundPlayer& sound;
    platform::MessageBoxes& boxes;
    Navigator& navigator;
    /// The folder that the program's own stores and pictures lie in, as a drive path without a backslash at
    /// its end unless it is a drive's root.
    QString applicationFolder;
    /// The backdrop that screens stand over; none in tests without windows.
    QWidget* frame = nullptr;
};

}  // namespace core
