#pragma once

#include "core/context.h"

namespace core {

/// Ways to play a sound; any other number plays nothing.
enum SoundMode { EffectAndWait = 1, Effect = 3, WordAndWait = 6 };

/// Plays a wave file: effects from the application folder, words from the media drive's sound folder, where
/// the bare word names the file. A sound that cannot be played is silence.
void PlaySound(const Context& context, const QString& name, int mode);

}  // namespace core
