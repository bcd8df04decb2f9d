#pragma once

#include "core/context.h"

namespace course {

/// Stores `scoreValue` in the column that `scoreSlot` names, on the learner's row of the step; inside a
/// Final Quiz on the row of the step that launched it. The row is durable when the call returns. Where the
/// store cannot be written the learner can try again, the score being kept; a failure goes on when they give
/// up.
void SaveScore(const core::Context& context);

/// The share of right answers in percent, rounded to the nearest whole number, halves to the even one.
core::Int16 percentScore(int correct, int total);

/// The average of the first `count` Final Quiz scores, rounded in the same way.
core::Int16 averageScore(const std::array<core::Int16, core::finalStepLimit>& scores, int count);

/// Adds a row that a step begins with: key, titles and reserved columns, as every new row of `score` has
/// them. The caller sets the result columns and updates.
void addScoreRow(platform::Recordset& rows, const core::Session& session, const QString& title);

}  // namespace course
