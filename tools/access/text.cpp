#include "tools/access/text.h"

#include "tools/access/reader.h"

#include <QStringDecoder>

#include <iconv.h>

#include <array>
#include <cerrno>
#include <cstdint>

namespace tools {

namespace {

constexpr int westernPage = 1252;
constexpr int koreanPage = 949;
constexpr int koreanLanguage = 0x0412;
constexpr char16_t replacement = u'\xfffd';

bool isCompressed(const QByteArray& bytes) {
    return bytes.size() >= 2 && bytes[0] == '\xff' && bytes[1] == '\xfe';
}

/// UTF-16 from the mixed form: a zero byte changes between one byte and two bytes a character.
std::optional<QByteArray> expand(const QByteArray& bytes) {
    QByteArray wide;
    bool single = true;
    for (qsizetype i = 2; i < bytes.size();) {
        if (bytes[i] == '\0') {
            single = !single;
            ++i;
        } else if (single) {
            wide.append(bytes[i++]).append('\0');
        } else {
            if (i + 1 >= bytes.size())
                return std::nullopt;
            wide.append(bytes[i]).append(bytes[i + 1]);
            i += 2;
        }
    }
    return wide;
}

QString fromUtf16(const QByteArray& wide, bool& valid) {
    QStringDecoder decoder(QStringDecoder::Utf16LE,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    QString text = decoder.decode(wide);
    // The decoder lets halves of surrogate pairs pass.
    valid = !decoder.hasError() && wide.size() % 2 == 0 && text.isValidUtf16();
    return text;
}

/// One open conversion from a code page to UTF-16.
class Conversion {
   public:
    explicit Conversion(int codePage)
        : handle_(iconv_open("UTF-16LE",
                             QByteArrayLiteral("CP").append(QByteArray::number(codePage)).constData())) {}
    ~Conversion() {
        if (known())
            iconv_close(handle_);
    }
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;

    // The C library tells an unknown code page by a pointer of minus one.
    bool known() const { return reinterpret_cast<std::intptr_t>(handle_) != -1; }

    /// Appends what can be converted from `place` on and moves behind it; false at an invalid byte.
    bool run(QByteArray& bytes, qsizetype& place, QString& text) {
        std::array<char16_t, 256> buffer{};
        while (place < bytes.size()) {
            char* in = bytes.data() + place;
            auto inLeft = static_cast<std::size_t>(bytes.size() - place);
            char* out = reinterpret_cast<char*>(buffer.data());
            std::size_t outLeft = sizeof buffer;
            const bool stopped = iconv(handle_, &in, &inLeft, &out, &outLeft) == static_cast<std::size_t>(-1);
            const int reason = errno;
            text.append(QStringView(buffer.data(), reinterpret_cast<char16_t*>(out)));
            place = bytes.size() - static_cast<qsizetype>(inLeft);
            if (stopped && reason != E2BIG)
                return false;
        }
        return true;
    }

   private:
    iconv_t handle_;
};

QString decodeBytes(QByteArray bytes, int codePage, bool& valid) {
    Conversion conversion(codePage);
    valid = conversion.known();
    QString text;
    qsizetype place = 0;
    while (conversion.known() && !conversion.run(bytes, place, text)) {
        const char16_t byte = static_cast<unsigned char>(bytes[place++]);
        // Five codes that the western page leaves open stand for themselves on Windows.
        const bool open = codePage == westernPage;
        text.append(QChar(open ? byte : replacement));
        valid = valid && open;
    }
    return text;
}

/// True where every text is valid Korean and most of what is beyond ASCII are the syllables of everyday
/// Korean, which have two high bytes. A western apostrophe and the letter behind it make a rare syllable too,
/// so rare ones count against it.
bool readsAsKorean(const QList<QByteArray>& texts) {
    qsizetype common = 0;
    qsizetype other = 0;
    for (const QByteArray& bytes : texts) {
        if (!decodeCodePage(bytes, koreanPage))
            return false;
        for (qsizetype i = 0; i + 1 < bytes.size(); ++i) {
            const auto lead = static_cast<unsigned char>(bytes[i]);
            if (lead < 0x81)
                continue;
            const auto trail = static_cast<unsigned char>(bytes[++i]);
            ++(lead >= 0xb0 && lead <= 0xc8 && trail >= 0xa1 ? common : other);
        }
    }
    return common > 0 && common >= 4 * other;
}

}  // namespace

std::optional<QString> decodeUnicode(const QByteArray& bytes) {
    const auto wide = isCompressed(bytes) ? expand(bytes) : std::optional(bytes);
    if (!wide)
        return std::nullopt;
    bool valid = false;
    QString text = fromUtf16(*wide, valid);
    return valid ? std::optional(text) : std::nullopt;
}

std::optional<QString> decodeCodePage(const QByteArray& bytes, int codePage) {
    bool valid = false;
    QString text = decodeBytes(bytes, codePage, valid);
    return valid ? std::optional(text) : std::nullopt;
}

QString decodeLeniently(const QByteArray& bytes, int codePage) {
    bool valid = false;
    if (codePage != unicodePage)
        return decodeBytes(bytes, codePage, valid);
    if (!isCompressed(bytes))
        return fromUtf16(bytes, valid);
    for (qsizetype size = bytes.size(); size >= 2; --size)
        if (const auto wide = expand(bytes.left(size)))
            return fromUtf16(*wide, valid);
    return {};
}

bool knownCodePage(int codePage) {
    return Conversion(codePage).known();
}

int chooseCodePage(int headerCodePage, int language, const QList<QByteArray>& texts) {
    if (headerCodePage == koreanPage || language == koreanLanguage)
        return koreanPage;
    if ((headerCodePage == westernPage || headerCodePage == unknownPage) && readsAsKorean(texts))
        return koreanPage;
    return knownCodePage(headerCodePage) ? headerCodePage : westernPage;
}

}  // namespace tools
