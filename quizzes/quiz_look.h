#pragma once

#include "catalogue/quizzes.h"
#include "platform/desktop/form.h"

namespace quizzes {

using catalogue::Look;

/// The left edge and the width of what stands on the content card.
inline constexpr int cardLeft = 40;
inline constexpr int cardWidth = 788;

/// The text role that goes with a look.
platform::TextRole roleOf(Look look);

/// Dresses a label: its ground, its margins, the way its text stands.
void applyLook(platform::Label& label, Look look);

/// Dresses a button that is a choice.
void applyLook(platform::CommandButton& button);

/// Makes a label look and behave like something to click.
void makeClickable(platform::Label& label);

}  // namespace quizzes
