#pragma once

#include "platform/storage/file_lock.h"

namespace core {

/// The file in the application folder that the program at work there holds locked.
inline const QString turnFileName = QStringLiteral("mendori.lock");

/// Waits until no other program works on the stores of a folder: their working tables hold one step at a
/// time. While it waits, a box tells so. False when the learner gives up waiting.
bool awaitTurn(platform::FileLock& lock, const QString& folder);

}  // namespace core
