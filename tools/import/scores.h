#pragma once

#include "tools/import/store.h"

namespace tools {

/// What became of the rows of a score table that met an older one.
struct ScoreMerge {
    qint64 added = 0;     // steps that the learner had no row of
    qint64 renewed = 0;   // rows of a newer date
    qint64 kept = 0;      // rows that the store has as new or newer
    qint64 alike = 0;     // rows that are the same in both
    QStringList details;  // a sentence for each renewed and each kept row
};

/// Brings the rows of a freshly copied score store into one that is in use. A row is the learner's state on
/// one step of one program; of two rows of a step the newer date stays, at the same date the one in use.
/// All rows or none: throws ReadError with a sentence where the store in use cannot take them.
ScoreMerge mergeScores(SQLite::Database& copy, SQLite::Database& inUse);

}  // namespace tools
