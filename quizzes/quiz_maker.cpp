#include "quizzes/quiz_maker.h"

#include "quizzes/choice_quiz.h"
#include "quizzes/two_pick_quiz.h"

namespace quizzes {

core::Screen* makeQuiz(core::Context& context, const QuizEntry& entry) {
    switch (entry.answering) {
        case Answering::Choice: return new ChoiceQuiz(context, entry);
        case Answering::TwoPicks: return new TwoPickQuiz(context, entry);
        default: break;
    }
    return nullptr;
}

}  // namespace quizzes
