#include "quizzes/row_choice_quiz.h"

#include "catalogue/quizzes.h"
#include "quizzes/fitted_text.h"

namespace quizzes {

using catalogue::tableRows;

namespace {

// The places of the columns in the entry.
constexpr std::size_t first = 1;
constexpr std::size_t second = 2;
constexpr std::size_t answered = 3;

}  // namespace

RowChoiceQuiz::RowChoiceQuiz(core::Context& context, const QuizEntry& entry) : TableQuiz(context, entry) {
    for (int row = 0; row < tableRows; ++row) {
        cell(first, row).onClick = [this, row] { pick(first, second, row); };
        cell(second, row).onClick = [this, row] { pick(second, first, row); };
    }
}

void RowChoiceQuiz::pick(std::size_t chosen, std::size_t other, int row) {
    cell(chosen, row).setForeColor(platform::colour::red);
    cell(other, row).setForeColor(platform::colour::black);
    showFitted(cell(answered, row), cell(chosen, row).caption(), TextRole::Row, scale());
    cell(answered, row).setMark(platform::BoxMark::None);
}

void RowChoiceQuiz::chooseByDigit(int number) {
    for (int row = 0; row < tableRows; ++row) {
        if (!cell(first, row).hasFocus() && !cell(second, row).hasFocus())
            continue;
        if (number == 1)
            pick(first, second, row);
        if (number == 2)
            pick(second, first, row);
        return;
    }
}

void RowChoiceQuiz::showWrong(std::size_t, int row, const QString& answer) {
    cell(first, row).setForeColor(platform::colour::black);
    cell(second, row).setForeColor(platform::colour::black);
    showFitted(cell(answered, row), answer, TextRole::Row, scale());
    cell(answered, row).setForeColor(platform::colour::red);
}

void RowChoiceQuiz::begin() {
    offerQuiz();
    shuffle(restartOrder);
    openRows("orderno");
    clearMarks();
    for (int row = 0; row < tableRows; ++row)
        for (const std::size_t column : {first, second, answered})
            cell(column, row).setForeColor(platform::colour::black);
    fillRows();
}

}  // namespace quizzes
