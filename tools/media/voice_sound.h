#pragma once

#include "tools/media/wave.h"

namespace tools {

/// Samples a second of all voices of a video.
inline constexpr int voiceRate = 22050;

/// A spoken line as a video takes it, whichever program said it: at the common rate, without the silence at
/// its ends, as loud as any other.
Wave asVoice(const Wave& spoken);

}  // namespace tools
