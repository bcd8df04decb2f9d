#include "tools/media/voice_sound.h"

#include <algorithm>
#include <cmath>

namespace tools {

namespace {

constexpr int quiet = 300;           // samples below are silence, of 32767
constexpr double endSeconds = 0.05;  // kept at both ends, so that no sound is cut off
constexpr double loudness = 3000.0;  // root mean square of a voice
constexpr double loudest = 30000.0;  // no sample is louder

Wave withoutSilentEnds(const Wave& wave) {
    const auto heard = [](std::int16_t sample) { return std::abs(static_cast<int>(sample)) > quiet; };
    const auto first = std::find_if(wave.samples.begin(), wave.samples.end(), heard);
    const auto last = std::find_if(wave.samples.rbegin(), wave.samples.rend(), heard).base();
    Wave kept{wave.rate, {}};
    if (first >= last)
        return kept;
    const auto end = static_cast<std::ptrdiff_t>(endSeconds * wave.rate);
    kept.samples.assign(first - std::min(end, first - wave.samples.begin()),
                        last + std::min(end, wave.samples.end() - last));
    return kept;
}

Wave atRate(const Wave& wave, int rate) {
    if (wave.rate == rate || wave.samples.empty())
        return wave;
    const double step = static_cast<double>(wave.rate) / rate;
    const auto count = static_cast<std::size_t>(static_cast<double>(wave.samples.size()) / step);
    Wave changed{rate, {}};
    changed.samples.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const double place = static_cast<double>(i) * step;
        const auto before = static_cast<std::size_t>(place);
        const std::size_t after = std::min(before + 1, wave.samples.size() - 1);
        const double part = place - static_cast<double>(before);
        changed.samples.push_back(static_cast<std::int16_t>(
            std::lround((1.0 - part) * wave.samples[before] + part * wave.samples[after])));
    }
    return changed;
}

void makeAsLoud(Wave& wave) {
    double power = 0.0;
    double peak = 1.0;
    for (const std::int16_t sample : wave.samples) {
        power += static_cast<double>(sample) * sample;
        peak = std::max(peak, std::abs(static_cast<double>(sample)));
    }
    if (power <= 0.0)
        return;
    const double now = std::sqrt(power / static_cast<double>(wave.samples.size()));
    const double factor = std::min(loudness / now, loudest / peak);
    for (std::int16_t& sample : wave.samples)
        sample = static_cast<std::int16_t>(std::lround(sample * factor));
}

}  // namespace

Wave asVoice(const Wave& spoken) {
    Wave voice = atRate(withoutSilentEnds(spoken), voiceRate);
    makeAsLoud(voice);
    return voice;
}

}  // namespace tools
