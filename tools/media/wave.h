#pragma once

#include <QString>

#include <cstdint>
#include <vector>

namespace tools {

/// Sound with one channel of 16-bit samples.
struct Wave {
    int rate = 22050;  // samples a second
    std::vector<std::int16_t> samples;
};

/// Writes a wave file; it appears whole or not at all. False when it cannot be written.
bool writeWave(const QString& file, const Wave& wave);
/// Reads a wave file of one channel and 16 bits; empty samples when it is no such file.
Wave readWave(const QString& file);

/// The five effects of the program by the file names they are played under.
std::vector<std::pair<QString, Wave>> effects();

}  // namespace tools
