#include "quizzes/pool_quiz.h"

#include "catalogue/quizzes.h"
#include "platform/desktop/input_gate.h"
#include "quizzes/fitted_text.h"

namespace quizzes {

using catalogue::tableRows;

namespace {

// The places of the columns in the entry.
constexpr std::size_t question = 0;
constexpr std::size_t slot = 1;
constexpr std::size_t pool = 2;

}  // namespace

PoolQuiz::PoolQuiz(core::Context& context, const QuizEntry& entry) : TableQuiz(context, entry) {
    cmdReset_ = &addButton(QStringLiteral("cmdReset"), QRect(course::sideLeft, 264, 104, 40),
                           QStringLiteral("Re-Set"));
    cmdReset_->setAutoDefault(true);
    cmdReset_->onClick = [this] { emptySlots(); };
    for (int row = 0; row < tableRows; ++row) {
        cell(pool, row).onClick = [this, row] { poolClicked(row); };
        cell(slot, row).onClick = [this, row] { slotClicked(row); };
    }
    // Tab goes down the pool before it comes to the slots.
    for (int row = 1; row < tableRows; ++row)
        setTabOrder(&cell(pool, row - 1), &cell(pool, row));
    setTabOrder(&cell(pool, tableRows - 1), &cell(slot, 0));
    for (int row = 1; row < tableRows; ++row)
        setTabOrder(&cell(slot, row - 1), &cell(slot, row));
}

std::vector<QWidget*> PoolQuiz::afterAnswers() const {
    std::vector<QWidget*> controls = TableQuiz::afterAnswers();
    controls.insert(controls.begin(), cmdReset_);
    return controls;
}

void PoolQuiz::fillRows() {
    emptySlots();
    fillQuestions();
    quizRs.moveFirst();
    showAnswerLine();
    openRows("orderno2");
    fillPool();
}

void PoolQuiz::fillQuestions() {
    int row = 0;
    for (quizRs.moveFirst(); !quizRs.eof(); quizRs.moveNext(), ++row) {
        if (row >= tableRows)
            requireRoom();
        showNumber(row);
        fillRow(row, columns[question]);
    }
}

void PoolQuiz::fillPool() {
    int row = 0;
    for (quizRs.moveFirst(); !quizRs.eof(); quizRs.moveNext(), ++row) {
        fillRow(row, columns[pool]);
        cell(slot, row).show();
    }
}

void PoolQuiz::emptySlots() {
    for (int row = 0; row < tableRows; ++row) {
        cell(slot, row).setCaption(QString());
        cell(slot, row).setAccessibleName(QStringLiteral("Answer %1").arg(row + 1));
    }
    clearMarks();
    slotNo_ = 0;
}

void PoolQuiz::poolClicked(int row) {
    if (!gateOpen())
        return;
    Label& target = cell(slot, slotNo_);
    showFitted(target, cell(pool, row).caption(), TextRole::Row, scale());
    target.setForeColor(platform::colour::black);
    target.setMark(platform::BoxMark::None);
    slotNo_ += 1;
    // The next pick of the same word fills the next slot.
    platform::noteChange(cell(pool, row));
}

void PoolQuiz::chooseByDigit(int number) {
    if (cell(pool, number - 1).isVisible())
        poolClicked(number - 1);
}

void PoolQuiz::slotClicked(int row) {
    cell(slot, row).setForeColor(platform::colour::red);
    cell(pool, row).setForeColor(platform::colour::black);
}

void PoolQuiz::beforeJudging() {
    openRows("orderno");
}

void PoolQuiz::showWrong(std::size_t, int row, const QString& answer) {
    showFitted(cell(slot, row), answer, TextRole::Row, scale());
    cell(slot, row).setForeColor(platform::colour::red);
    if (!entry().marksWrongRows)
        return;
    quizRs.edit();
    quizRs.set(QStringLiteral("correct"), QStringLiteral("NO"));
    quizRs.update();
}

void PoolQuiz::begin() {
    shuffle(restartOrder);
    openRows("orderno");
    emptySlots();
    fillQuestions();
    quizRs.moveFirst();
    showAnswerLine();
    offerQuiz();
    setRunning(true);
}

}  // namespace quizzes
