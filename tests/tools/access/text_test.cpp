#include "tools/access/text.h"
#include "tools/access/header.h"

#include <QtEndian>

#include <gtest/gtest.h>

#include <numeric>

namespace {

using namespace tools;

QByteArray utf16(const QString& text) {
    QByteArray bytes;
    for (const QChar sign : text)
        bytes.append(static_cast<char>(sign.unicode() & 0xff)).append(static_cast<char>(sign.unicode() >> 8));
    return bytes;
}

TEST(AccessText, IsUtf16) {
    EXPECT_EQ(decodeUnicode(utf16(QStringLiteral("섬: island"))), QStringLiteral("섬: island"));
    EXPECT_EQ(decodeUnicode({}), QString());
}

TEST(AccessText, KeepsCharactersBeyondTheBasicPlane) {
    EXPECT_EQ(decodeUnicode(utf16(QStringLiteral("😀"))), QStringLiteral("😀"));
}

TEST(AccessText, MixesOneByteAndTwoByteRunsBehindItsMark) {
    const QByteArray mixed = QByteArrayLiteral("\xff\xfe") + "ab" + QByteArray(1, '\0') +
                             utf16(QStringLiteral("섬")) + QByteArray(1, '\0') + "c";
    EXPECT_EQ(decodeUnicode(mixed), QStringLiteral("ab섬c"));
}

TEST(AccessText, CutInsideACharacterIsNotValid) {
    EXPECT_FALSE(decodeUnicode(QByteArrayLiteral("a")).has_value());
    EXPECT_FALSE(decodeUnicode(QByteArrayLiteral("\xff\xfe") + QByteArray(1, '\0') + "a").has_value());
}

TEST(AccessText, WithHalfASurrogatePairIsNotValid) {
    EXPECT_FALSE(decodeUnicode(QByteArrayLiteral("a\0\x3d\xd8") + utf16(QStringLiteral("b"))).has_value());
    EXPECT_TRUE(decodeLeniently(QByteArray("a\0\x3d\xd8", 4), 1200).startsWith(u'a'));
}

TEST(OldAccessText, ReadsKoreanInItsCodePage) {
    const QByteArray island = QByteArrayLiteral("\xbc\xb6");
    EXPECT_EQ(decodeCodePage(island, 949), QStringLiteral("섬"));
}

TEST(OldAccessText, ThatIsNotValidInItsCodePageIsToldAndReadAsFarAsItGoes) {
    const QByteArray broken = QByteArrayLiteral("a\xbc");
    EXPECT_FALSE(decodeCodePage(broken, 949).has_value());
    EXPECT_EQ(decodeLeniently(broken, 949), QStringLiteral("a\ufffd"));
}

TEST(OldAccessText, TakesTheOpenCodesOfTheWesternPageAsTheyAre) {
    EXPECT_EQ(decodeCodePage(QByteArrayLiteral("\xa3\x81"), 1252), QStringLiteral("£\u0081"));
}

TEST(OldAccessFile, IsKoreanWhenItsHeaderSaysSo) {
    EXPECT_EQ(chooseCodePage(949, 0x0412, {}), 949);
    EXPECT_EQ(chooseCodePage(1252, 0x0412, {}), 949);
}

TEST(OldAccessFile, IsKoreanWhenItsTextsReadAsKoreanUnderAWesternHeader) {
    EXPECT_EQ(
        chooseCodePage(1252, 0x0409, {QByteArrayLiteral("\xbc\xb6 island"), QByteArrayLiteral("\xb9\xb0")}),
        949);
}

TEST(OldAccessFile, StaysWesternWithCurlyApostrophesAndAccents) {
    EXPECT_EQ(chooseCodePage(1252, 0x0409, {QByteArrayLiteral("don\x92t"), QByteArrayLiteral("it\x92s")}),
              1252);
    EXPECT_EQ(chooseCodePage(1252, 0x0409,
                             {QByteArrayLiteral("caf\xe9"), QByteArrayLiteral("\xa3"
                                                                              "5")}),
              1252);
    EXPECT_EQ(chooseCodePage(1252, 0x0409, {}), 1252);
}

TEST(OldAccessFile, WithAHeaderThatNamesNoCodePageIsTakenForWestern) {
    EXPECT_EQ(chooseCodePage(31337, 0, {}), 1252);
}

/// The first page of a file as it lies on the disk: the header's values under the cipher of all files.
QByteArray firstPage(char version, int codePage, const QByteArray& password, quint32 pageKey = 0) {
    QByteArray page(4096, '\0');
    page.replace(0, 19, QByteArrayLiteral("\x00\x01\x00\x00Standard Jet DB"));
    page[0x14] = version;
    qToLittleEndian(static_cast<quint16>(codePage), page.data() + 0x3c);
    qToLittleEndian(pageKey, page.data() + 0x3e);
    const double created = 38143.5;
    if (version > 0)
        qToLittleEndian(created, page.data() + 0x72);
    QByteArray stored = password.leftJustified(version == 0 ? 20 : 40, '\0', true);
    QByteArray mask(4, '\0');
    if (version > 0)
        qToLittleEndian(static_cast<qint32>(created), mask.data());
    for (int i = 0; i < stored.size(); ++i)
        page[0x42 + i] = static_cast<char>(stored[i] ^ mask[i % 4]);
    std::array<unsigned char, 256> state{};
    std::iota(state.begin(), state.end(), static_cast<unsigned char>(0));
    const std::array<unsigned char, 4> key{0xc7, 0xda, 0x39, 0x6b};
    for (unsigned i = 0, j = 0; i < 256; ++i) {
        j = (j + state[i] + key[i % 4]) & 0xff;
        std::swap(state[i], state[j]);
    }
    for (unsigned n = 0, i = 0, j = 0; n < (version == 0 ? 126U : 128U); ++n) {
        i = (i + 1) & 0xff;
        j = (j + state[i]) & 0xff;
        std::swap(state[i], state[j]);
        page[0x18 + n] =
            static_cast<char>(page[0x18 + n] ^ static_cast<char>(state[(state[i] + state[j]) & 0xff]));
    }
    return page;
}

TEST(AccessHeader, TellsFormatAndCodePage) {
    const auto old = parseAccessHeader(firstPage(0, 949, {}));
    ASSERT_TRUE(old.has_value());
    EXPECT_STREQ(old->formatName(), "Access 97");
    EXPECT_EQ(old->codePage, 949);
    EXPECT_TRUE(old->codePageTexts());
    EXPECT_FALSE(old->password);
    const auto later = parseAccessHeader(firstPage(1, 1252, {}));
    ASSERT_TRUE(later.has_value());
    EXPECT_STREQ(later->formatName(), "Access 2000");
    EXPECT_FALSE(later->codePageTexts());
    EXPECT_FALSE(later->password);
}

TEST(AccessHeader, TellsAPassword) {
    EXPECT_TRUE(parseAccessHeader(firstPage(0, 1252, "secret"))->password);
    EXPECT_TRUE(parseAccessHeader(firstPage(1, 1252, QByteArray("s\0e\0c\0", 6)))->password);
}

TEST(AccessHeader, OfALaterFormatWithAPageKeyIsSealed) {
    EXPECT_TRUE(parseAccessHeader(firstPage(3, 1252, {}, 7))->sealed());
    EXPECT_FALSE(parseAccessHeader(firstPage(1, 1252, {}, 7))->sealed());
}

TEST(AccessHeader, IsNothingForOtherFilesAndFormatsToCome) {
    EXPECT_FALSE(parseAccessHeader({}).has_value());
    EXPECT_FALSE(parseAccessHeader(QByteArray(4096, 'x')).has_value());
    EXPECT_FALSE(parseAccessHeader(firstPage(9, 1252, {})).has_value());
}

}  // namespace
