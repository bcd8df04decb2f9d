#pragma once

#include "catalogue/quizzes.h"
#include "quizzes/question_quiz.h"

namespace quizzes {

using catalogue::QuizEntry;

/// `frmQuiz5`: one press of a button answers. What the buttons say and how a press is judged goes by the
/// step.
class ButtonQuiz final : public QuestionQuiz {
    Q_OBJECT
   public:
    ButtonQuiz(core::Context& context, const QuizEntry& entry);

   protected:
    void prepare() override;
    void showQuestion(bool first) override;
    void chooseByDigit(int number) override;

   private:
    void pressed(int index);

    ControlArray<platform::CommandButton> cmdOne_{QStringLiteral("cmdOne")};
    Label* lblMemo_;
};

}  // namespace quizzes
