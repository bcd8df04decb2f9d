#include "platform/desktop/clock.h"

#include <chrono>

namespace platform {

QDate SystemClock::today() const {
    return QDate::currentDate();
}

std::uint64_t SystemClock::ticks() const {
    return static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
}

void SystemRandom::reseed(std::uint64_t seed) {
    state_ = seed;
}

// SplitMix64: one step from any seed, even from neighbouring clock ticks, is already well mixed.
float SystemRandom::next() {
    state_ += 0x9E3779B97F4A7C15ULL;
    std::uint64_t z = state_;
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EBULL;
    z ^= z >> 31U;
    return static_cast<float>(z >> 40U) * 0x1.0p-24F;
}

}  // namespace platform
