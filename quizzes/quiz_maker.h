#pragma once

#include "catalogue/quizzes.h"
#include "core/context.h"
#include "core/screen.h"

namespace quizzes {

using catalogue::QuizEntry;

/// Makes the screen of an entry.
core::Screen* makeQuiz(core::Context& context, const QuizEntry& entry);

}  // namespace quizzes
