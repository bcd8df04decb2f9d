#include "platform/letter_case.h"

#include <sqlite3.h>

#include <algorithm>

namespace platform {

namespace {

bool isAscii(char letter) {
    return static_cast<unsigned char>(letter) < 0x80;
}

int lowered(char letter) {
    return letter >= 'A' && letter <= 'Z' ? letter - 'A' + 'a' : letter;
}

std::string loweredUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toLower().toStdString();
}

int compareForEngine(void*, int oneSize, const void* one, int otherSize, const void* other) {
    return compareButForCase({static_cast<const char*>(one), static_cast<std::size_t>(oneSize)},
                             {static_cast<const char*>(other), static_cast<std::size_t>(otherSize)});
}

}  // namespace

bool sameButForCase(const QString& one, const QString& other) {
    return one.toLower() == other.toLower();
}

int compareButForCase(std::string_view one, std::string_view other) {
    const std::size_t shared = std::min(one.size(), other.size());
    for (std::size_t i = 0; i < shared; ++i) {
        // Plain letters decide by themselves; nearly all words of a course hold no others.
        if (!isAscii(one[i]) || !isAscii(other[i]))
            return loweredUtf8(one).compare(loweredUtf8(other));
        if (const int difference = lowered(one[i]) - lowered(other[i]); difference != 0)
            return difference;
    }
    return one.size() < other.size() ? -1 : one.size() > other.size() ? 1 : 0;
}

void compareStoredTextsButForCase(sqlite3* connection) {
    sqlite3_create_collation_v2(connection, "NOCASE", SQLITE_UTF8, nullptr, compareForEngine, nullptr);
}

}  // namespace platform
