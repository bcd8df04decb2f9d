#pragma once

#include "core/navigator.h"
#include "core/session.h"
#include "platform/clock.h"
#include "platform/drives.h"
#include "platform/message_box.h"
#include "platform/settings.h"
#include "platform/sound.h"

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
