#pragma once

#include "catalogue/quizzes.h"
#include "quizzes/table_quiz.h"

namespace quizzes {

using catalogue::QuizEntry;

/// `frmQuiz2` and `frmQuiz9`: boxes to type in, one or two a row. A failed check shows the right answers and
/// locks their boxes; a retry empties those alone.
class TypedTableQuiz final : public TableQuiz {
    Q_OBJECT
   public:
    TypedTableQuiz(core::Context& context, const QuizEntry& entry);

   protected:
    void begin() override;
    void openLists() override;
    void beforeJudging() override;
    QString given(const ColumnControls& controls, int row) const override;
    void showWrong(std::size_t column, int row, const QString& answer) override;
    void startWalk() override { firstPass_ = QStringLiteral("NO"); }
    void closeRecordsets() override;

   private:
    /// A column of boxes, and the list of its wrong ones.
    struct BoxColumn {
        std::size_t column;
        platform::Recordset wrong;
        int wrongCount = 0;
    };

    TextBox& box(std::size_t boxColumn, int row) const;
    void enterPressed(std::size_t boxColumn, int row);
    /// Goes to the wrong box after this one.
    void walkOn(std::size_t boxColumn, int row);
    void emptyWrongBoxes();
    platform::Recordset openList(const BoxColumn& boxColumn) const;

    std::vector<BoxColumn> boxColumns_;
    QString firstPass_ = QStringLiteral("YES");
};

}  // namespace quizzes
