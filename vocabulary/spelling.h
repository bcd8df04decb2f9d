#pragma once

#include <QString>

#include <array>
#include <optional>

namespace vocabulary {

/// The letter boxes of one row.
inline constexpr int boxCount = 18;

/// What stands in one letter box, as far as judging goes.
struct Box {
    QString text;
    bool shown = false;
    bool locked = false;
};
using BoxRow = std::array<Box, boxCount>;

/// Lower-case e, a, i, o, u and y.
bool isVowel(QChar letter);
/// Every other lower-case letter, and y again: it is hidden, and asked for, in both masks.
bool isConsonant(QChar letter);

inline constexpr QChar hiddenLetter = u'*';
/// The word with its vowels, or its consonants, as asterisks. Capitals, blanks and marks stay.
QString vowelMask(const QString& word);
QString consonantMask(const QString& word);

/// The first letter as stored and "□" for each other letter.
QString spellingHint(const QString& word);

/// Words of one, two or 17 and more letters are not coached.
bool isCoached(const QString& word);

/// The texts of the shown boxes in a row.
QString joinShown(const BoxRow& row);
/// Equal but for case.
bool sameWord(const QString& typed, const QString& word);

/// How a freshly built row looks for the box to start in. Boxes 1 to 6 end the search when they are hidden;
/// box 7, the last one looked at, tests whether `seventhShownBy` is shown.
struct FocusSearch {
    bool asksShown = true;
    int seventhShownBy = 7;
};
inline constexpr FocusSearch vowelSearch{true, 7};
/// Row 4 asks box 1 in place of box 7.
inline constexpr FocusSearch consonantSearch{true, 1};
/// Row 4 rebuilt without a judgement looks at emptiness only, and so may end on a hidden box.
inline constexpr FocusSearch blindSearch{false, 7};

/// The box that takes the focus, or none where the focus stays.
std::optional<int> firstOpenBox(const BoxRow& row, const FocusSearch& search);

/// How many boxes a masked row looks ahead for the next open one.
inline constexpr int vowelReach = 6;
inline constexpr int consonantReach = 4;

/// The next open box within reach, or none when the row is to be judged: where a hidden box comes first or
/// nothing within reach is open, even though an open box may lie further on.
std::optional<int> openBoxAfter(const BoxRow& row, int index, int reach);

/// The box right after this one if it is shown.
std::optional<int> shownBoxAfter(const BoxRow& row, int index);

}  // namespace vocabulary
