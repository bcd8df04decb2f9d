#include "platform/int16.h"

#include "platform/storage/value.h"
#include "tests/support/store.h"

using platform::Int16;
using platform::Value;
using support::errorOf;

TEST(Int16, ASumBeyondSixteenBitsIsAnOverflow) {
    Int16 number = 32767;
    EXPECT_EQ(errorOf([&] { ++number; }), 6);
    EXPECT_EQ(number, 32767) << "and the number stays";
    EXPECT_EQ(errorOf([&] { number += 1; }), 6);
    number = -32768;
    EXPECT_EQ(errorOf([&] { number -= 1; }), 6);
    EXPECT_EQ(errorOf([] { Int16(Int16(20000) + Int16(20000)); }), 6);
}

TEST(Int16, StartsAtZeroAndCountsWithinItsRange) {
    Int16 number;
    EXPECT_EQ(number, 0);
    ++number;
    number += 10;
    number -= 4;
    EXPECT_EQ(number, 7);
}

struct RoundCase {
    double value;
    int rounded;
};

class RoundToInt16 : public testing::TestWithParam<RoundCase> {};

TEST_P(RoundToInt16, TakesTheNearestAndOfHalvesTheEvenOne) {
    EXPECT_EQ(platform::roundToInt16(GetParam().value), GetParam().rounded);
}

INSTANTIATE_TEST_SUITE_P(Values, RoundToInt16,
                         testing::Values(RoundCase{0.5, 0}, RoundCase{1.5, 2}, RoundCase{2.5, 2},
                                         RoundCase{-0.5, 0}, RoundCase{-1.5, -2}, RoundCase{37.5, 38},
                                         RoundCase{66.666, 67}, RoundCase{32767.4, 32767}));

TEST(TextToInt16, ReadsNumbersAndRefusesOtherTexts) {
    EXPECT_EQ(platform::textToInt16("45"), 45);
    EXPECT_EQ(platform::textToInt16(" 37.5 "), 38);
    EXPECT_EQ(platform::textToInt16("-3"), -3);
    for (const char* text : {"", "N/A", "twelve", "1 2", "YES", "nan", "inf"})
        EXPECT_EQ(errorOf([&] { platform::textToInt16(text); }), 13) << text;
    EXPECT_EQ(errorOf([] { platform::textToInt16("32768"); }), 6);
}

TEST(Value, GivesTextsAndNumbersAsTheOtherKindToo) {
    EXPECT_EQ(Value(80.0).toText(), "80");
    EXPECT_EQ(Value(37.5).toText(), "37.5");
    EXPECT_EQ(Value(7).toText(), "7");
    EXPECT_EQ(Value("33").toInt16(), 33);
    EXPECT_EQ(Value(37.5).toInt16(), 38);
    EXPECT_EQ(errorOf([] { Value(40000).toInt16(); }), 6);
    EXPECT_EQ(errorOf([] { Value().toText(); }), 94);
    EXPECT_EQ(errorOf([] { Value().toInt16(); }), 94);
}
