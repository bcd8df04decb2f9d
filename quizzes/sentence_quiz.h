#pragma once

#include "catalogue/quizzes.h"
#include "quizzes/question_quiz.h"

namespace quizzes {

using catalogue::QuizEntry;

/// `frmQuiz6`: a whole sentence is typed, and judged letter by letter.
class SentenceQuiz final : public QuestionQuiz {
    Q_OBJECT
   public:
    SentenceQuiz(core::Context& context, const QuizEntry& entry);

   protected:
    void showQuestion(bool first) override;
    void check() override { judge(false); }

   private:
    void judge(bool byEnter);

    TextBox* txtWord_;
};

}  // namespace quizzes
