#pragma once

#include "catalogue/quizzes.h"
#include "quizzes/question_quiz.h"

namespace quizzes {

using catalogue::QuizEntry;

/// One click on a choice is the answer: `frmQuiz7` with two choices, `frmQuiz8` with two to four.
class ChoiceQuiz final : public QuestionQuiz {
    Q_OBJECT
   public:
    ChoiceQuiz(core::Context& context, const QuizEntry& entry);

   protected:
    void showQuestion(bool first) override;

   private:
    void lightUpChoices();
    void chosen(std::size_t index);
};

}  // namespace quizzes
