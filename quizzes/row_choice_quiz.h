#pragma once

#include "catalogue/quizzes.h"
#include "quizzes/table_quiz.h"

namespace quizzes {

using catalogue::QuizEntry;

/// `frmQuiz`: two choices beside each question; the one picked stands in the answer column.
class RowChoiceQuiz final : public TableQuiz {
    Q_OBJECT
   public:
    RowChoiceQuiz(core::Context& context, const QuizEntry& entry);

   protected:
    void begin() override;
    void showWrong(std::size_t column, int row, const QString& answer) override;
    void chooseByDigit(int number) override;

   private:
    Label& cell(std::size_t column, int row) const { return columns[column].labels(row); }
    void pick(std::size_t chosen, std::size_t other, int row);
};

}  // namespace quizzes
