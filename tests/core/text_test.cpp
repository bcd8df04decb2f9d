#include "core/text.h"

#include "tests/support/desk.h"

#include <gtest/gtest.h>

struct CleanCase {
    const char* name;
    const char* typed;
    const char* letters;
    const char* answer;
    const char* caller;
};

class CleanAnswer : public testing::TestWithParam<CleanCase> {
   protected:
    QString text = QString::fromUtf8(GetParam().typed);
};

TEST_P(CleanAnswer, KeepLettersLowerGivesLettersAloneAndLowersTheCallersText) {
    EXPECT_EQ(core::KeepLettersLower(text), GetParam().letters);
    EXPECT_EQ(text, GetParam().caller);
}

TEST_P(CleanAnswer, KeepAnswerCharsKeepsApostropheAndOneToNineToo) {
    EXPECT_EQ(core::KeepAnswerChars(text), GetParam().answer);
    EXPECT_EQ(text, GetParam().caller);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CleanAnswer,
    testing::Values(CleanCase{"ASentence", "Don't go!", "dontgo", "don'tgo", "don't go!"},
                    CleanCase{"ATime", "10 O'clock", "oclock", "1o'clock", "10 o'clock"},
                    CleanCase{"EveryDigit", "0123456789", "", "123456789", "0123456789"},
                    CleanCase{"Capitals", "ABC xyz", "abcxyz", "abcxyz", "abc xyz"},
                    CleanCase{"HyphensAndBlanks", " twenty-one ", "twentyone", "twentyone", " twenty-one "},
                    CleanCase{"Hangul", "사과 Apple", "apple", "apple", "사과 apple"},
                    CleanCase{"AccentedLetters", "Café", "caf", "caf", "café"},
                    CleanCase{"SignsAlone", "?!., ", "", "", "?!., "}, CleanCase{"Nothing", "", "", "", ""}),
    [](const auto& row) { return row.param.name; });
