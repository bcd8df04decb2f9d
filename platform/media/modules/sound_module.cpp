#include <SDL.h>
#include <SDL_mixer.h>

#include <map>
#include <memory>
#include <string>

namespace {

constexpr int channel = 0;
constexpr int playerChannel = 1;
constexpr std::size_t keptSounds = 64;

struct Device {
    bool open = false;
    std::map<std::string, Mix_Chunk*> sounds;

    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;
    Device() {
        SDL_SetMainReady();
        // Else it would take the signals that end a program, Ctrl+C among them, and wait for somebody to ask.
        SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
        open = SDL_InitSubSystem(SDL_INIT_AUDIO) == 0 &&
               Mix_OpenAudio(MIX_DEFAULT_FREQUENCY, MIX_DEFAULT_FORMAT, 2, 1024) == 0;
    }
    ~Device() {
        if (!open)
            return;
        forget();
        Mix_CloseAudio();
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    }
    void forget() {
        Mix_HaltChannel(channel);
        Mix_HaltChannel(playerChannel);
        for (const auto& [file, sound] : sounds)
            Mix_FreeChunk(sound);
        sounds.clear();
    }
    Mix_Chunk* load(const std::string& file) {
        if (const auto known = sounds.find(file); known != sounds.end())
            return known->second;
        if (sounds.size() >= keptSounds)
            forget();
        Mix_Chunk* sound = Mix_LoadWAV(file.c_str());
        if (sound != nullptr)
            sounds.emplace(file, sound);
        return sound;
    }
};

// Opens with the first sound, and again with the first one after it was closed.
std::unique_ptr<Device>& slot() {
    static std::unique_ptr<Device> shared;
    return shared;
}

Device& device() {
    if (!slot())
        slot() = std::make_unique<Device>();
    return *slot();
}

bool playOn(int voice, const char* utf8File) {
    if (!device().open)
        return false;
    Mix_Chunk* sound = device().load(utf8File);
    return sound != nullptr && Mix_PlayChannel(voice, sound, 0) >= 0;
}

}  // namespace

extern "C" {

__attribute__((visibility("default"))) bool mendori_sound_play(const char* utf8File) {
    return playOn(channel, utf8File);
}

__attribute__((visibility("default"))) void mendori_sound_play_beside(const char* utf8File) {
    playOn(playerChannel, utf8File);
}

__attribute__((visibility("default"))) bool mendori_sound_playing() {
    return device().open && Mix_Playing(channel) != 0;
}

__attribute__((visibility("default"))) void mendori_sound_close() {
    slot().reset();
}
}
