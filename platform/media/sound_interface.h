#pragma once

namespace platform {

/// What the sound module exports. It is a module of its own because the libraries behind it take longer to
/// load than the rest of the program to start.
using SoundPlayFunction = bool (*)(const char* utf8File);
using SoundPlayBesideFunction = void (*)(const char* utf8File);
using SoundPlayingFunction = bool (*)();
using SoundCloseFunction = void (*)();

inline constexpr const char* soundPlayName = "mendori_sound_play";
inline constexpr const char* soundPlayBesideName = "mendori_sound_play_beside";
inline constexpr const char* soundPlayingName = "mendori_sound_playing";
inline constexpr const char* soundCloseName = "mendori_sound_close";

}  // namespace platform
