#pragma once

#include "tools/rules/check.h"

/// A course in figures, unit by unit: how much is asked, how it is asked, and in how many words.
namespace tools::check {

/// How many words the sentences of a unit have on the whole.
struct LengthBand {
    int firstUnit;
    int lastUnit;
    double least;
    double most;
};

/// The band of a unit; null for a unit that no course has.
const LengthBand* lengthBand(int unit);

/// The lines of a table: a row a unit, one for the whole course, and the words that stand most often.
QStringList figures(const Course& course);

}  // namespace tools::check
