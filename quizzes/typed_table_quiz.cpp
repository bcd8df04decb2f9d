#include "quizzes/typed_table_quiz.h"

#include "catalogue/quizzes.h"
#include "core/stores.h"
#include "quizzes/judges.h"

#include <algorithm>

namespace quizzes {

using catalogue::CountersShown;
using catalogue::tableRows;

TypedTableQuiz::TypedTableQuiz(core::Context& context, const QuizEntry& entry) : TableQuiz(context, entry) {
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (columns[i].isBoxes())
            boxColumns_.push_back({i, {}, 0});
    for (std::size_t i = 0; i < boxColumns_.size(); ++i)
        for (int row = 0; row < tableRows; ++row)
            box(i, row).onKeyDown = [this, i, row](int code) {
                if (code == platform::key::enter)
                    enterPressed(i, row);
            };
    if (entry.counters.shown != CountersShown::AtLoadAndTick)
        return;
    // This load step already does what the first tick does once more.
    contentDb = core::openCourse(context);
    TypedTableQuiz::openLists();
}

TextBox& TypedTableQuiz::box(std::size_t boxColumn, int row) const {
    return columns[boxColumns_[boxColumn].column].boxes(row);
}

platform::Recordset TypedTableQuiz::openList(const BoxColumn& boxColumn) const {
    return contentDb.openRecordset(QStringLiteral("Select * from ") +
                                   QLatin1String(columns[boxColumn.column].column->wrongList));
}

void TypedTableQuiz::openLists() {
    platform::Transaction transaction(contentDb);
    for (BoxColumn& boxColumn : boxColumns_) {
        boxColumn.wrong = openList(boxColumn);
        platform::deleteAll(boxColumn.wrong);
        boxColumn.wrongCount = 0;
    }
    transaction.commit();
}

void TypedTableQuiz::closeRecordsets() {
    TableQuiz::closeRecordsets();
    for (BoxColumn& boxColumn : boxColumns_)
        boxColumn.wrong.close();
}

void TypedTableQuiz::enterPressed(std::size_t boxColumn, int row) {
    if (firstPass_ == QStringLiteral("NO")) {
        walkOn(boxColumn, row);
        return;
    }
    if (boxColumn + 1 < boxColumns_.size())
        box(boxColumn + 1, row).setFocus();
    else if (row < itemTotal - 1)
        box(0, row + 1).setFocus();
    else if (entry().enterCheck != nullptr && !loading())
        checkTable(*entry().enterCheck);
}

void TypedTableQuiz::walkOn(std::size_t boxColumn, int row) {
    platform::Recordset& wrong = boxColumns_[boxColumn].wrong;
    wrong.findFirst(QStringLiteral("Blankno=%1").arg(row));
    if (wrong.noMatch())
        return;
    wrong.findFirst(QStringLiteral("orderno=%1").arg(wrong.integer(QStringLiteral("orderno")) + 1));
    if (!wrong.noMatch())
        box(boxColumn, wrong.integer(QStringLiteral("blankno"))).setFocus();
}

void TypedTableQuiz::beforeJudging() {
    openLists();
    int row = 0;
    for (quizRs.moveFirst(); !quizRs.eof(); quizRs.moveNext(), ++row) {
        quizRs.edit();
        for (std::size_t i = 0; i < boxColumns_.size(); ++i)
            quizRs.set(QLatin1String(columns[boxColumns_[i].column].column->stored),
                       box(i, row).text().trimmed());
        quizRs.update();
    }
}

QString TypedTableQuiz::given(const ColumnControls& controls, int) const {
    return quizRs.textOrEmpty(QLatin1String(controls.column->stored));
}

void TypedTableQuiz::showWrong(std::size_t column, int row, const QString& answer) {
    TextBox& wrongBox = columns[column].boxes(row);
    wrongBox.setText(answer);
    wrongBox.setForeColor(platform::colour::red);
    wrongBox.setLocked(true);
    const auto boxColumn =
        std::find_if(boxColumns_.begin(), boxColumns_.end(),
                     [&](const BoxColumn& candidate) { return candidate.column == column; });
    platform::Recordset& list = boxColumn->wrong;
    list.addNew();
    list.set(QStringLiteral("orderno"), boxColumn->wrongCount);
    list.set(QStringLiteral("blankno"), row);
    list.update();
    ++boxColumn->wrongCount;
}

void TypedTableQuiz::emptyWrongBoxes() {
    int row = 0;
    for (quizRs.moveFirst(); !quizRs.eof(); quizRs.moveNext(), ++row)
        for (const BoxColumn& boxColumn : boxColumns_) {
            const ColumnControls& controls = columns[boxColumn.column];
            if (matches(entry().compare, required(controls.column->judged), given(controls, row)))
                continue;
            TextBox& wrongBox = controls.boxes(row);
            wrongBox.setText(QString());
            wrongBox.setForeColor(platform::colour::black);
            wrongBox.setLocked(false);
        }
}

void TypedTableQuiz::begin() {
    emptyWrongBoxes();
    clearMarks();
    // Without a wrong box in the first column there is no row to go to, and the run ends here.
    BoxColumn& firstColumn = boxColumns_.front();
    firstColumn.wrong = openList(firstColumn);
    firstColumn.wrong.moveFirst();
    box(0, firstColumn.wrong.integer(QStringLiteral("blankno"))).setFocus();
    if (entry().check.failureStartsWalk)
        startWalk();
    offerQuiz();
    if (entry().counters.refreshedByBegin && isFinal())
        showCounters(session().finalItemNo, session().finalItemTotal);
}

}  // namespace quizzes
