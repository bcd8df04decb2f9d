#include "platform/desktop/hangul.h"

#include <array>

namespace platform {

namespace {

// Keys of the two-set keyboard, in the order of Unicode's lists.
constexpr std::array<const char*, 51> jamoKeys{
    "r", "R", "rt", "s", "sw", "sg", "e",  "E",  "f", "fr", "fa", "fq", "ft", "fx", "fv", "fg", "a",
    "q", "Q", "qt", "t", "T",  "d",  "w",  "W",  "c", "z",  "x",  "v",  "g",  "k",  "o",  "i",  "O",
    "j", "p", "u",  "P", "h",  "hk", "ho", "hl", "y", "n",  "nj", "np", "nl", "b",  "m",  "ml", "l"};
constexpr std::array<const char*, 19> leadKeys{"r", "R", "s", "e", "E", "f", "a", "q", "Q", "t",
                                               "T", "d", "w", "W", "c", "z", "x", "v", "g"};
constexpr std::array<const char*, 21> vowelKeys{"k",  "o", "i", "O",  "j",  "p",  "u", "P", "h",  "hk", "ho",
                                                "hl", "y", "n", "nj", "np", "nl", "b", "m", "ml", "l"};
constexpr std::array<const char*, 28> tailKeys{"",   "r",  "R",  "rt", "s",  "sw", "sg", "e", "f",  "fr",
                                               "fa", "fq", "ft", "fx", "fv", "fg", "a",  "q", "qt", "t",
                                               "T",  "d",  "w",  "c",  "z",  "x",  "v",  "g"};

constexpr ushort firstJamo = 0x3131;
constexpr ushort firstSyllable = 0xAC00;
constexpr ushort lastSyllable = 0xD7A3;

}  // namespace

QString latinFromHangul(const QString& text) {
    QString latin;
    for (const QChar c : text) {
        const ushort code = c.unicode();
        if (code >= firstJamo && code < firstJamo + jamoKeys.size()) {
            latin += QLatin1String(jamoKeys[code - firstJamo]);
        } else if (code >= firstSyllable && code <= lastSyllable) {
            const unsigned place = code - firstSyllable;
            latin += QLatin1String(leadKeys[place / (21 * 28)]);
            latin += QLatin1String(vowelKeys[place / 28 % 21]);
            latin += QLatin1String(tailKeys[place % 28]);
        } else {
            latin += c;
        }
    }
    return latin;
}

}  // namespace platform
