#pragma once

#include "platform/desktop/controls.h"

namespace quizzes {

/// Shows a text on a label in the size of its role, and smaller where the label has no room for it.
void showFitted(platform::Label& label, const QString& text, platform::TextRole role, double scale);

}  // namespace quizzes
