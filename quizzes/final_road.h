#pragma once

#include "core/session.h"

namespace quizzes {

/// Keeps the score of the Final Quiz step in hand, folds it into the average of the steps so far, which
/// becomes `scoreValue`, and counts the step as done. Throws SubscriptOutOfRange past the last step that a
/// Final Quiz keeps a score of.
void keepStepScore(core::Session& session, core::Int16 score);

/// Whether another step of the Final Quiz follows.
bool hasFurtherStep(const core::Session& session);

}  // namespace quizzes
