#pragma once

#include "catalogue/quizzes.h"
#include "quizzes/question_quiz.h"

namespace quizzes {

using catalogue::QuizEntry;

/// `frmQuiz3`: one choice of each of two pairs, judged together.
class TwoPickQuiz final : public QuestionQuiz {
    Q_OBJECT
   public:
    TwoPickQuiz(core::Context& context, const QuizEntry& entry);

   protected:
    void showQuestion(bool first) override;
    void check() override;

   private:
    Label* lblWord8_;
    Label* lblWord9_;
};

}  // namespace quizzes
