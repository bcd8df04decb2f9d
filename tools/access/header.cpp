#include "tools/access/header.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

namespace tools {

namespace {

constexpr int versionOffset = 0x14;
constexpr int maskedOffset = 0x18;
constexpr int languageOffset97 = 0x3a;
constexpr int codePageOffset = 0x3c;
constexpr int keyOffset = 0x3e;
constexpr int passwordOffset = 0x42;
constexpr int languageOffset = 0x6e;
constexpr int dateOffset = 0x72;
constexpr int newestVersion = 6;
constexpr int headerSize = 0x98;

constexpr std::array<unsigned char, 4> headerKey{0xc7, 0xda, 0x39, 0x6b};

/// The header lies under the stream of an RC4 cipher whose key is the same in every file.
void unmask(QByteArray& page, int count) {
    std::array<int, 256> state{};
    std::iota(state.begin(), state.end(), 0);
    for (int i = 0, j = 0; i < 256; ++i) {
        j = (j + state[static_cast<std::size_t>(i)] + headerKey[static_cast<std::size_t>(i) % 4]) % 256;
        std::swap(state[static_cast<std::size_t>(i)], state[static_cast<std::size_t>(j)]);
    }
    for (int n = 0, i = 0, j = 0; n < count; ++n) {
        i = (i + 1) % 256;
        j = (j + state[static_cast<std::size_t>(i)]) % 256;
        std::swap(state[static_cast<std::size_t>(i)], state[static_cast<std::size_t>(j)]);
        const int sum = state[static_cast<std::size_t>(i)] + state[static_cast<std::size_t>(j)];
        char& byte = page[maskedOffset + n];
        byte = static_cast<char>(byte ^ static_cast<char>(state[static_cast<std::size_t>(sum % 256)]));
    }
}

template <typename Number>
Number numberAt(const QByteArray& page, int offset) {
    return qFromLittleEndian<Number>(page.constData() + offset);
}

/// From Access 2000 on, a password lies under the whole days of the file's creation date.
bool hasPassword(const QByteArray& page, int version) {
    std::array<char, 4> mask{};
    if (version > 0) {
        const auto date = numberAt<double>(page, dateOffset);
        const qint32 days = date > -1e9 && date < 1e9 ? static_cast<qint32>(date) : 0;
        qToLittleEndian(days, mask.data());
    }
    const int size = version == 0 ? 20 : 40;
    for (int i = 0; i < size; ++i)
        if ((page[passwordOffset + i] ^ mask[static_cast<std::size_t>(i) % 4]) != 0)
            return true;
    return false;
}

}  // namespace

const char* AccessHeader::formatName() const {
    constexpr std::array names{"Access 97",   "Access 2000", "Access 2007", "Access 2010",
                               "Access 2013", "Access 2016", "Access 2019"};
    return names.at(static_cast<std::size_t>(version));
}

std::optional<AccessHeader> parseAccessHeader(const QByteArray& firstPage) {
    if (firstPage.size() < headerSize)
        return std::nullopt;
    const QByteArray engine = firstPage.mid(4, 15);
    const int version = static_cast<unsigned char>(firstPage[versionOffset]);
    if ((engine != "Standard Jet DB" && engine != "Standard ACE DB") || version > newestVersion)
        return std::nullopt;
    QByteArray page = firstPage.left(headerSize);
    unmask(page, version == 0 ? 126 : 128);
    AccessHeader header;
    header.version = version;
    header.codePage = numberAt<quint16>(page, codePageOffset);
    header.language = numberAt<quint16>(page, version == 0 ? languageOffset97 : languageOffset);
    header.encrypted = numberAt<quint32>(page, keyOffset) != 0;
    header.password = hasPassword(page, version);
    return header;
}

}  // namespace tools
