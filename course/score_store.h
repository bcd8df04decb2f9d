#pragma once

#include "core/context.h"

#include <functional>

namespace course {

/// Runs a save on the learner's score store. Where the store fails, the learner is told why and can try again
/// for as long as they like, and what is to be saved is kept; when they give up, the failure goes on.
void saveScores(const core::Context& context, const std::function<void()>& save);

/// Makes sure that the step about to start can be saved at its end. Where it cannot, the learner is told why
/// and can try again; when they give up, the failure goes on.
void requireWritableScores(const core::Context& context);

}  // namespace course
