#pragma once

#include "core/context.h"
#include "core/screen.h"
#include "quizzes/quiz_catalogue.h"

namespace quizzes {

/// Makes the screen of an entry.
core::Screen* makeQuiz(core::Context& context, const QuizEntry& entry);

}  // namespace quizzes
