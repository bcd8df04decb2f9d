#pragma once

#include "catalogue/drills.h"

#include <QString>

namespace lessons {

using catalogue::Drill;

/// What a box holds, as the check takes it: blanks at both ends cut off, in lower case.
QString typedWord(const QString& boxText);

/// The criterion that finds the row of `blankno` which the word in a box makes right. The word goes in as
/// it stands.
QString rightRowCriterion(const Drill& drill, int box, const QString& word);

/// The criterion that finds a row of `basic_data` which a word matches and no other box has used up.
QString unmatchedRowCriterion(const QString& word);

/// Whether a box of a cloze holds its word.
bool isClozeAnswer(const QString& word, const QString& boxText);

/// The hint of a word: its first letter.
QString firstLetter(const QString& word);

}  // namespace lessons
