#pragma once

#include "catalogue/quizzes.h"
#include "quizzes/table_quiz.h"

namespace quizzes {

using catalogue::QuizEntry;

/// `frmQuiz11` and `frmQuiz12`: one pool of answers, in an order of its own, fills the answer slots from the
/// top down.
class PoolQuiz final : public TableQuiz {
    Q_OBJECT
   public:
    PoolQuiz(core::Context& context, const QuizEntry& entry);

   protected:
    std::vector<QWidget*> afterAnswers() const override;
    void begin() override;
    void fillRows() override;
    void beforeJudging() override;
    void showWrong(std::size_t column, int row, const QString& answer) override;
    void chooseByDigit(int number) override;

   private:
    Label& cell(std::size_t column, int row) const { return columns[column].labels(row); }
    void fillQuestions();
    void fillPool();
    void emptySlots();
    void poolClicked(int row);
    void slotClicked(int row);

    platform::CommandButton* cmdReset_ = nullptr;
    Int16 slotNo_;
};

}  // namespace quizzes
