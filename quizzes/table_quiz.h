#pragma once

#include "catalogue/quizzes.h"
#include "quizzes/quiz_places.h"
#include "quizzes/quiz_screen.h"

#include <vector>

namespace quizzes {

using catalogue::CheckManner;
using catalogue::Column;
using catalogue::ColumnKind;
using catalogue::QuizEntry;

/// The shape that shows all rows at once and judges them by one press. Until all of them are right nothing is
/// stored; then it is full marks.
class TableQuiz : public QuizScreen {
    Q_OBJECT
   protected:
    /// The controls of a column; a column of boxes has boxes, any other labels.
    struct ColumnControls {
        const Column* column;
        ColumnPlace place;
        ControlArray<Label> labels;
        ControlArray<TextBox> boxes;
        bool isBoxes() const { return column->kind == ColumnKind::Box; }
    };

    TableQuiz(core::Context& context, const QuizEntry& entry);

    void start() override;
    void check() override;

    /// Opens what the screen needs beside its rows.
    virtual void openLists() {}
    /// Shows the rows in their order; `quizRs` stands at the first.
    virtual void fillRows();
    /// Gets ready to judge: stores what was typed, puts the rows in order.
    virtual void beforeJudging() {}
    /// The answer given in a judged column of the current row.
    virtual QString given(const ColumnControls& controls, int row) const;
    /// Shows the right answer at a wrong one.
    virtual void showWrong(std::size_t column, int row, const QString& answer) = 0;

    void checkTable(const CheckManner& manner);
    /// Ends the run where the step has more rows than the table.
    void requireRoom() const;
    void fillRow(int row, const ColumnControls& controls);
    void showNumber(int row) { lblNo_(row).show(); }
    void clearMarks();
    void setMark(const ColumnControls& controls, int row, platform::BoxMark mark);

    std::vector<ColumnControls> columns;

   private:
    void buildRow(int row);
    void buildHeadings();
    void hideRows();
    void raiseItemNo();
    int judgeRows();

    ControlArray<Label> lblNo_{QStringLiteral("lblNo")};
};

}  // namespace quizzes
