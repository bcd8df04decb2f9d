#include "platform/desktop/hangul.h"

#include "tests/support/desk.h"

#include <gtest/gtest.h>

using platform::latinFromHangul;

struct HangulCase {
    const char* name;
    const char* typed;
    const char* meant;
};

class LatinFromHangul : public testing::TestWithParam<HangulCase> {};

TEST_P(LatinFromHangul, GivesTheLettersOnTheSameKeys) {
    EXPECT_EQ(latinFromHangul(QString::fromUtf8(GetParam().typed)), GetParam().meant);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, LatinFromHangul,
    testing::Values(HangulCase{"ASyllable", "메", "ap"}, HangulCase{"SyllablesOfAWord", "메ㅔㅣㄷ", "apple"},
                    HangulCase{"AFinalCluster", "닭", "ekfr"}, HangulCase{"ADoubledConsonant", "까", "Rk"},
                    HangulCase{"AVowelOfTwoKeys", "과", "rhk"},
                    HangulCase{"SingleJamo", "ㅂㅈㄷㄱㅅ", "qwert"},
                    HangulCase{"VowelsAlone", "ㅛㅕㅑㅐㅔ", "yuiop"},
                    HangulCase{"ShiftedVowels", "ㅒㅖ", "OP"}, HangulCase{"AClusterAlone", "ㄳ", "rt"},
                    HangulCase{"TheLastSyllable", "힣", "glg"}, HangulCase{"TheFirstSyllable", "가", "rk"},
                    HangulCase{"MixedWithSigns", "ㅇon't 1!", "don't 1!"}, HangulCase{"Nothing", "", ""}),
    [](const auto& row) { return row.param.name; });
