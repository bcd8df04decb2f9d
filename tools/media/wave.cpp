#include "tools/media/wave.h"

#include <QDataStream>
#include <QFile>
#include <QSaveFile>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace tools {

namespace {

constexpr int headerBytes = 36;

/// One struck note: a soft bell of a few partials that dies away.
struct Note {
    double start;      // seconds
    double frequency;  // hertz
    double length;     // seconds
    double loudness;   // 0 to 1
};

double bell(double frequency, double age, double length) {
    const double phase = 2.0 * std::numbers::pi * frequency * age;
    const double tone = std::sin(phase) + 0.35 * std::sin(2.0 * phase) + 0.12 * std::sin(3.01 * phase);
    const double attack = std::min(1.0, age / 0.008);
    return tone * attack * std::exp(-4.5 * age / length);
}

Wave ring(const std::vector<Note>& notes) {
    Wave wave;
    double seconds = 0.0;
    for (const Note& note : notes)
        seconds = std::max(seconds, note.start + note.length);
    // The tail is padded, since some devices cut the last samples off.
    seconds += 0.06;
    wave.samples.resize(static_cast<std::size_t>(seconds * wave.rate));
    for (std::size_t i = 0; i < wave.samples.size(); ++i) {
        const double now = static_cast<double>(i) / wave.rate;
        double level = 0.0;
        for (const Note& note : notes)
            if (now >= note.start && now < note.start + note.length)
                level += note.loudness * bell(note.frequency, now - note.start, note.length);
        wave.samples[i] = static_cast<std::int16_t>(std::clamp(level, -1.0, 1.0) * 20000.0);
    }
    return wave;
}

}  // namespace

bool writeWave(const QString& file, const Wave& wave) {
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly))
        return false;
    const auto bytes = static_cast<quint32>(wave.samples.size() * sizeof(std::int16_t));
    QDataStream stream(&out);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream.writeRawData("RIFF", 4);
    stream << quint32(headerBytes + bytes);
    stream.writeRawData("WAVEfmt ", 8);
    stream << quint32(16) << quint16(1) << quint16(1) << quint32(wave.rate) << quint32(wave.rate * 2)
           << quint16(2) << quint16(16);
    stream.writeRawData("data", 4);
    stream << bytes;
    for (const std::int16_t sample : wave.samples)
        stream << qint16(sample);
    // Without a flush of its own the toolkit puts a file in place whose last block did not fit on the disk.
    return out.flush() && out.commit();
}

Wave readWave(const QString& file) {
    QFile in(file);
    Wave wave;
    if (!in.open(QIODevice::ReadOnly))
        return wave;
    const QByteArray bytes = in.readAll();
    const qsizetype data = bytes.indexOf("data");
    if (!bytes.startsWith("RIFF") || data < 0 || bytes.size() < data + 8)
        return wave;
    QDataStream stream(bytes);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream.skipRawData(24);
    quint32 rate = 0;
    stream >> rate;
    wave.rate = static_cast<int>(rate);
    for (qsizetype i = data + 8; i + 1 < bytes.size(); i += 2)
        wave.samples.push_back(static_cast<std::int16_t>(static_cast<quint8>(bytes[i]) |
                                                         (static_cast<quint8>(bytes[i + 1]) << 8U)));
    return wave;
}

std::vector<std::pair<QString, Wave>> effects() {
    const Wave touch = ring({{0.0, 880.0, 0.09, 0.25}});
    const Wave fanfare = ring({{0.0, 523.25, 0.5, 0.4},
                               {0.12, 659.25, 0.5, 0.4},
                               {0.24, 783.99, 0.6, 0.4},
                               {0.38, 1046.5, 1.1, 0.5}});
    const Wave finish = ring({{0.0, 392.0, 0.6, 0.35},
                              {0.18, 523.25, 0.6, 0.35},
                              {0.36, 659.25, 0.6, 0.35},
                              {0.54, 783.99, 0.6, 0.35},
                              {0.72, 659.25, 0.5, 0.3},
                              {0.90, 1046.5, 1.3, 0.45}});
    const Wave wrong = ring({{0.0, 233.08, 0.3, 0.45}, {0.14, 196.0, 0.4, 0.45}});
    const Wave right = ring({{0.0, 783.99, 0.25, 0.4}, {0.09, 1046.5, 0.45, 0.4}});
    return {{QStringLiteral("touchit.wav"), touch},
            {QStringLiteral("contestbegin.wav"), fanfare},
            {QStringLiteral("finishsong.wav"), finish},
            {QStringLiteral("wrongit.wav"), wrong},
            {QStringLiteral("correct.wav"), right}};
}

}  // namespace tools
