#include "quizzes/table_quiz.h"

#include "catalogue/quizzes.h"
#include "quizzes/fitted_text.h"
#include "quizzes/judges.h"

namespace quizzes {

using catalogue::CountersShown;
using catalogue::Look;
using catalogue::TableCounters;
using catalogue::tableRows;

namespace {

constexpr int hintTop = 121;
constexpr int headingTop = 149;
constexpr int rowTop = 170;
constexpr int rowPitch = 35;
constexpr int rowHeight = 32;
constexpr int numberLeft = 20;
constexpr int boxMargin = 8;
// The sign of right and wrong stands at the right edge of an answer.
constexpr int markSpace = 28;
constexpr int fullScore = 100;

bool isPlain(ColumnKind kind) {
    return kind == ColumnKind::Text || kind == ColumnKind::LowerText;
}

bool isClickable(ColumnKind kind) {
    return kind == ColumnKind::Choice || kind == ColumnKind::Pool || kind == ColumnKind::Slot;
}

}  // namespace

TableQuiz::TableQuiz(core::Context& context, const QuizEntry& entry) : QuizScreen(context, entry) {
    const auto places = placesOf(entry.form).columns;
    for (std::size_t i = 0; i < entry.columns.size(); ++i) {
        const Column& column = entry.columns[i];
        const QString name = QLatin1String(column.array);
        columns.push_back({&column, places[i], ControlArray<Label>(name), ControlArray<TextBox>(name)});
    }
    addHint(hintTop);
    buildHeadings();
    for (int row = 0; row < tableRows; ++row)
        buildRow(row);
    hideRows();
    setCountersVisible(false);
    const CountersShown shown = entry.counters.shown;
    if (isFinal() && (shown == CountersShown::AtLoad || shown == CountersShown::AtLoadAndTick))
        showFinalCounters();
}

void TableQuiz::buildHeadings() {
    ControlArray<Label> headings(QStringLiteral("lblHeading"));
    for (const ColumnControls& controls : columns) {
        const Column& column = *controls.column;
        Label& heading = addLabel(headings, QRect(controls.place.left, headingTop, controls.place.width, 18),
                                  TextRole::Caption);
        heading.setCaption(QLatin1String(column.heading));
        heading.setForeColor(platform::colour::accent);
        if (!isPlain(column.kind))
            heading.setAlignment(Qt::AlignCenter);
    }
}

void TableQuiz::buildRow(int row) {
    const int top = rowTop + row * rowPitch;
    Label& number = addLabel(lblNo_, QRect(numberLeft, top, 28, rowHeight), TextRole::Caption);
    number.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    number.setForeColor(platform::colour::accent);
    number.setCaption(QString::number(row + 1));
    for (ColumnControls& controls : columns) {
        const Column& column = *controls.column;
        const QRect place(controls.place.left, top, controls.place.width, rowHeight);
        if (controls.isBoxes()) {
            TextBox& box = addTextBox(controls.boxes, place, TextRole::Row);
            box.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
            box.setTextMargins(boxMargin, 0, markSpace, 0);
            box.setAccessibleName(
                QStringLiteral("%1, row %2").arg(QLatin1String(column.heading)).arg(row + 1));
            continue;
        }
        Label& label = addLabel(controls.labels, place, TextRole::Row);
        applyLook(label, isPlain(column.kind) ? Look::Line
                         : column.kind == ColumnKind::Answer || column.kind == ColumnKind::Slot
                             ? Look::Slot
                             : Look::Choice);
        if (isPlain(column.kind))
            label.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        if (column.judged != nullptr)
            label.setContentsMargins(boxMargin, 0, markSpace, 0);
        if (isClickable(column.kind))
            makeClickable(label);
    }
}

void TableQuiz::hideRows() {
    for (Label* number : lblNo_)
        number->hide();
    for (const ColumnControls& controls : columns) {
        for (Label* label : controls.labels)
            label->hide();
        for (TextBox* box : controls.boxes)
            box->hide();
    }
}

void TableQuiz::start() {
    const CountersShown shown = entry().counters.shown;
    if (isFinal() && (shown == CountersShown::AtLoadAndTick || shown == CountersShown::BeforeShuffle))
        showFinalCounters();
    openLists();
    openRows();
    shuffle(entry().shuffled, entry().emptied);
    hideRows();
    openRows("orderno");
    raiseItemNo();
    fillRows();
    if (isFinal() && shown == CountersShown::AfterFill)
        showFinalCounters();
    setRunning(true);
}

void TableQuiz::raiseItemNo() {
    const TableCounters& counters = entry().counters;
    session().finalItemNo += counters.risesByRows ? static_cast<int>(itemTotal) : 1;
    if (counters.showsLastItem)
        currentCounter().setCaption(QString::number(session().finalItemNo - 1));
}

void TableQuiz::requireRoom() const {
    if (itemTotal > tableRows)
        failRows(platform::ErrorCode::SubscriptOutOfRange,
                 QStringLiteral("it has %1 questions, and the screen has room for %2.")
                     .arg(itemTotal)
                     .arg(tableRows));
}

void TableQuiz::fillRows() {
    int row = 0;
    for (quizRs.moveFirst(); !quizRs.eof(); quizRs.moveNext(), ++row) {
        if (row >= tableRows)
            requireRoom();
        showNumber(row);
        for (const ColumnControls& controls : columns)
            fillRow(row, controls);
    }
}

void TableQuiz::fillRow(int row, const ColumnControls& controls) {
    const Column& column = *controls.column;
    if (controls.isBoxes()) {
        TextBox& box = controls.boxes(row);
        box.setText(fillsForTeacher() ? required(column.judged) : QString());
        box.show();
        return;
    }
    Label& label = controls.labels(row);
    QString text = column.shown == nullptr ? QString() : required(column.shown);
    if (column.kind == ColumnKind::LowerText)
        text = text.toLower();
    showFitted(label, text, TextRole::Row, scale());
    if (text.isEmpty())
        label.setAccessibleName(QStringLiteral("Answer %1").arg(row + 1));
    label.show();
}

QString TableQuiz::given(const ColumnControls& controls, int row) const {
    return controls.labels(row).caption();
}

void TableQuiz::setMark(const ColumnControls& controls, int row, platform::BoxMark mark) {
    if (controls.isBoxes())
        controls.boxes(row).setMark(mark);
    else
        controls.labels(row).setMark(mark);
}

void TableQuiz::clearMarks() {
    for (const ColumnControls& controls : columns)
        for (int row = 0; row < tableRows; ++row)
            setMark(controls, row, platform::BoxMark::None);
}

void TableQuiz::check() {
    if (gateOpen())
        checkTable(entry().check);
}

int TableQuiz::judgeRows() {
    int wrong = 0;
    int row = 0;
    for (quizRs.moveFirst(); !quizRs.eof(); quizRs.moveNext(), ++row)
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const ColumnControls& controls = columns[i];
            if (controls.column->judged == nullptr)
                continue;
            const QString answer = required(controls.column->judged);
            const bool right = matches(entry().compare, given(controls, row), answer);
            setMark(controls, row, right ? platform::BoxMark::Right : platform::BoxMark::Wrong);
            if (right)
                continue;
            ++wrong;
            showWrong(i, row, answer);
        }
    return wrong;
}

void TableQuiz::checkTable(const CheckManner& manner) {
    platform::Transaction transaction(contentDb);
    beforeJudging();
    const int wrong = judgeRows();
    transaction.commit();
    if (wrong == 0) {
        finish(manner, fullScore);
        return;
    }
    context().boxes.notice(QString::fromUtf8(manner.failure));
    showQuizButton(false);
    showBegin(true);
    if (manner.failureStartsWalk)
        startWalk();
    if (manner.failureClosesGate)
        setRunning(false);
}

}  // namespace quizzes
