#pragma once

#include "catalogue/quizzes.h"
#include "quizzes/question_quiz.h"

namespace quizzes {

using catalogue::QuizEntry;

/// `frmQuiz10`: one to four words are typed in boxes under a sentence with gaps.
class WordBoxQuiz final : public QuestionQuiz {
    Q_OBJECT
   public:
    WordBoxQuiz(core::Context& context, const QuizEntry& entry);

   protected:
    void start() override;
    void showQuestion(bool first) override;
    void check() override;

   private:
    void keyDown(int index, int code);
    /// The number of boxes that the row asks for; one that the screen has not ends the run.
    Int16 readBlankCount() const;
    /// How many of the boxes are asked: none for a count that the screen has not.
    int askedCount() const;
    /// The boxes' texts, once none of them is empty.
    void judge();
    Verdict judgeBoxes();

    ControlArray<TextBox> txtWord_{QStringLiteral("txtWord")};
    Int16 blankCount_;
};

}  // namespace quizzes
