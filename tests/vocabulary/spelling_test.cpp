#include "vocabulary/spelling.h"

#include "tests/support/desk.h"

#include <gtest/gtest.h>

using vocabulary::Box;
using vocabulary::BoxRow;

namespace {

/// A row from its boxes: '_' shown and open, '.' open with a letter in it, 'x' locked with a letter; the rest
/// of the row is hidden and empty.
BoxRow rowOf(const char* boxes) {
    BoxRow row;
    for (std::size_t i = 0; boxes[i] != '\0'; ++i)
        row[i] = Box{boxes[i] == '_' ? QString() : QStringLiteral("a"), true, boxes[i] == 'x'};
    return row;
}

}  // namespace

TEST(Masks, HideVowelsOrConsonantsAndTheLetterYInBoth) {
    struct Case {
        const char* word;
        const char* vowels;
        const char* consonants;
    };
    for (const Case& c :
         {Case{"cat", "c*t", "*a*"}, Case{"mystery", "m*st*r*", "****e**"}, Case{"hmm", "hmm", "***"},
          Case{"eau", "***", "eau"}, Case{"yy", "**", "**"}, Case{"Apple", "Appl*", "A***e"},
          Case{"Yes", "Y*s", "Ye*"}, Case{"USA", "USA", "USA"}, Case{"o'clock", "*'cl*ck", "o'**o**"},
          Case{"well-off", "w*ll-*ff", "*e**-o**"}, Case{"ice cream", "*c* cr**m", "i*e **ea*"},
          Case{"", "", ""}}) {
        EXPECT_EQ(vocabulary::vowelMask(QLatin1String(c.word)), QLatin1String(c.vowels));
        EXPECT_EQ(vocabulary::consonantMask(QLatin1String(c.word)), QLatin1String(c.consonants));
    }
}

TEST(Hint, KeepsTheFirstLettersCaseAndShowsABoxForEachOther) {
    EXPECT_EQ(vocabulary::spellingHint(QStringLiteral("Apple")), QStringLiteral("A□□□□"));
    EXPECT_EQ(vocabulary::spellingHint(QStringLiteral("leaf")), QStringLiteral("l□□□"));
    EXPECT_EQ(vocabulary::spellingHint(QStringLiteral("a")), QStringLiteral("a"));
    EXPECT_EQ(vocabulary::spellingHint(QString()), QString());
}

TEST(LengthFilter, TakesWordsOfThreeToSixteenLetters) {
    for (int length = 0; length <= 20; ++length)
        EXPECT_EQ(vocabulary::isCoached(QString(length, u'a')), length >= 3 && length <= 16) << length;
}

TEST(Joining, TakesShownBoxesOnlyAndComparesWithoutCase) {
    BoxRow row;
    row[0] = {QStringLiteral("C"), true, false};
    row[1] = {QString(), true, false};
    row[2] = {QStringLiteral("t"), true, true};
    row[3] = {QStringLiteral("s"), false, false};
    EXPECT_EQ(vocabulary::joinShown(row), QStringLiteral("Ct"));
    EXPECT_TRUE(vocabulary::sameWord(QStringLiteral("aPPLE"), QStringLiteral("Apple")));
    EXPECT_FALSE(vocabulary::sameWord(QStringLiteral("apples"), QStringLiteral("Apple")));
    EXPECT_FALSE(vocabulary::sameWord(QString(), QStringLiteral("a")));
}

TEST(FocusSearch, FindsTheFirstEmptyBoxUpToTheSeventhAsEachRowDoes) {
    constexpr int none = -1;
    struct Case {
        const char* row;
        int vowels;
        int consonants;
        int blind;
    };
    for (const Case& c :
         {Case{"_xxxx", 0, 0, 0}, Case{"x_x_x", 1, 1, 1}, Case{"xxxxxx_xx", 6, 6, 6},
          Case{"xxxxxxx_x", 7, 7, 7}, Case{"xxxxxxxx_", none, none, none},
          // A short row without an open box: only the blind search runs on to a hidden one.
          Case{"xxx", none, none, 3}, Case{"x", none, none, 1},
          // Seven boxes: row 4 asks box 1 whether box 7 is shown, and so lands on a hidden box.
          Case{"xxxxxxx", none, 7, 7},
          // Nothing shown at all: box 0 is not asked whether it is.
          Case{"", 0, 0, 0}, Case{"xxxxxxxxxxxxxxxx", none, none, none}}) {
        EXPECT_EQ(vocabulary::firstOpenBox(rowOf(c.row), vocabulary::vowelSearch).value_or(none), c.vowels)
            << c.row;
        EXPECT_EQ(vocabulary::firstOpenBox(rowOf(c.row), vocabulary::consonantSearch).value_or(none),
                  c.consonants)
            << c.row;
        EXPECT_EQ(vocabulary::firstOpenBox(rowOf(c.row), vocabulary::blindSearch).value_or(none), c.blind)
            << c.row;
    }
}

TEST(LookAhead, EndsAtSixPlacesForVowelsAndAtFourForConsonants) {
    constexpr int judged = -1;
    struct Case {
        const char* row;
        int index;
        int vowels;
        int consonants;
    };
    for (const Case& c :
         {Case{"._", 0, 1, 1}, Case{".xxx_", 0, 4, 4}, Case{".xxxx_", 0, 5, judged},
          Case{".xxxxx_", 0, 6, judged}, Case{".xxxxxx_", 0, judged, judged}, Case{".xxx", 0, judged, judged},
          Case{"_.x", 1, judged, judged}, Case{"_.x_", 1, 3, 3},
          // An open box is open whether it holds a letter or not.
          Case{"..", 0, 1, 1}, Case{"xxxxxxxxxxxxxxxxx.", 17, judged, judged},
          Case{"xxxxxxxxxxxxxxx.xx", 15, judged, judged}}) {
        EXPECT_EQ(vocabulary::openBoxAfter(rowOf(c.row), c.index, vocabulary::vowelReach).value_or(judged),
                  c.vowels)
            << c.row;
        EXPECT_EQ(
            vocabulary::openBoxAfter(rowOf(c.row), c.index, vocabulary::consonantReach).value_or(judged),
            c.consonants)
            << c.row;
    }
}

TEST(NextBox, IsTheOneAfterOnlyWhileItIsShown) {
    EXPECT_EQ(vocabulary::shownBoxAfter(rowOf("___"), 0), 1);
    EXPECT_EQ(vocabulary::shownBoxAfter(rowOf("___"), 2), std::nullopt);
    EXPECT_EQ(vocabulary::shownBoxAfter(rowOf("__________________"), 17), std::nullopt);
}
