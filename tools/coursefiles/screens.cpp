#include "tools/coursefiles/screens.h"

#include "catalogue/drills.h"
#include "catalogue/judging.h"
#include "catalogue/quizzes.h"
#include "catalogue/sheets.h"
#include "catalogue/steps.h"

#include <algorithm>
#include <string>
#include <vector>

namespace tools::check {

namespace {

using catalogue::Drill;
using catalogue::QuizEntry;
using catalogue::SetUse;

/// A set that is opened and not read is wanted all the same: another screen of the step reads it.
Need needOf(SetUse use) {
    switch (use) {
        case SetUse::Absent: return Need::None;
        case SetUse::Opened:
        case SetUse::Guarded: return Need::Wanted;
        case SetUse::Needed: return Need::Demanded;
    }
    return Need::None;
}

/// A row with no prompt gets its second word from its first.
bool answersByFirstWord(const Drill& drill) {
    return drill.rightWord == catalogue::Field::Word1 || drill.plainFromOrder == catalogue::always;
}

DrillShape shapeOf(const Drill& drill) {
    DrillShape shape;
    shape.form = drill.name;
    shape.least = drill.countsRows ? 1 : drill.boxes;
    shape.boxes = drill.boxes;
    shape.lines = drill.ruleLines;
    shape.linesNeed = drill.ruleLines > 0 ? needOf(drill.rules) : Need::None;
    shape.tip = needOf(drill.tip);
    shape.secondWordRead = !answersByFirstWord(drill);
    shape.answer = shape.secondWordRead ? 2 : 1;
    shape.prompt = drill.promptSource == catalogue::Prompts::Rows ? 1 : 0;
    shape.lastPrompted = shape.prompt == 1 && drill.prompts < drill.boxes ? drill.prompts : 0;
    if (drill.wordAloneFromBox != catalogue::never)
        shape.listFrom = drill.wordAloneFromBox == catalogue::always ? 1 : drill.wordAloneFromBox + 1;
    return shape;
}

/// The digit of a question field, "q3" being 3; 0 for another field.
int digitOf(const char* field) {
    return field != nullptr && field[0] == 'q' ? field[1] - '0' : 0;
}

void addDigit(std::string& digits, const char* field) {
    if (const int digit = digitOf(field); digit != 0)
        digits += static_cast<char>('0' + digit);
}

void addShown(const QuizEntry& quiz, QuizShape& shape) {
    for (const catalogue::ShownField& field : quiz.shown) {
        addDigit(shape.shown, field.field);
        if (field.look == catalogue::Look::Choice)
            addDigit(shape.choices, field.field);
    }
    for (const catalogue::Column& column : quiz.columns) {
        addDigit(shape.shown, column.shown);
        if (column.kind == catalogue::ColumnKind::Choice)
            addDigit(shape.choices, column.shown);
        shape.secondAnswer =
            shape.secondAnswer || (column.judged != nullptr && std::string_view(column.judged) == "a2");
    }
    // The count of boxes is read and not shown.
    if (quiz.answering == catalogue::Answering::WordBoxes)
        shape.shown += '3';
    if (quiz.answering == catalogue::Answering::TwoPicks) {
        shape.secondAnswer = true;
        shape.secondPair = shape.choices.substr(shape.choices.size() / 2);
        shape.choices.resize(shape.choices.size() / 2);
    }
}

QuizShape shapeOf(const QuizEntry& quiz) {
    QuizShape shape;
    shape.form = quiz.form;
    shape.table = quiz.shape == catalogue::Shape::Table;
    addShown(quiz, shape);
    shape.exact = quiz.compare == catalogue::Compare::Exact ||
                  quiz.compare == catalogue::Compare::LetterByLetter ||
                  quiz.answering == catalogue::Answering::Button;
    shape.questionColumns = quiz.room.question;
    shape.choiceColumns = quiz.room.choice;
    shape.answerColumns = quiz.room.answer;
    shape.gap = quiz.hasGap;
    return shape;
}

template <typename Shape, typename Rows>
std::vector<Shape> shapesOf(const Rows& rows) {
    std::vector<Shape> shapes;
    for (const auto& row : rows)
        shapes.push_back(shapeOf(row));
    return shapes;
}

template <typename Shape>
const Shape* findShape(std::span<const Shape> shapes, const QString& form) {
    const std::string name = form.toStdString();
    const auto found =
        std::find_if(shapes.begin(), shapes.end(), [&](const Shape& shape) { return shape.form == name; });
    return found == shapes.end() ? nullptr : &*found;
}

}  // namespace

std::span<const DrillShape> drillShapes() {
    static const std::vector<DrillShape> shapes = [] {
        auto all = shapesOf<DrillShape>(catalogue::drillCatalogue());
        // The reading page asks for nothing.
        std::erase_if(all, [](const DrillShape& shape) { return shape.boxes == 0; });
        return all;
    }();
    return shapes;
}

const DrillShape* findDrillShape(const QString& form) {
    return findShape(drillShapes(), form);
}

const DrillShape* drillOfStep(const QString& form, int record) {
    if (form == QStringLiteral("frmLesson3") && record == catalogue::clozeStep)
        return findDrillShape(QStringLiteral("frmLesson3_2"));
    return findDrillShape(form);
}

std::span<const QuizShape> quizShapes() {
    static const std::vector<QuizShape> shapes = shapesOf<QuizShape>(catalogue::quizEntries());
    return shapes;
}

const QuizShape* findQuizShape(const QString& form) {
    return findShape(quizShapes(), form);
}

QStringList buttonAnswers(int record) {
    if (buttonsAreArticles(record))
        return {QStringLiteral("a"), QStringLiteral("an"), QStringLiteral("the"), QStringLiteral("Blank")};
    QStringList answers;
    for (const char* caption : catalogue::buttonSet(record).captions)
        answers.append(QString::fromUtf8(caption));
    return answers;
}

bool buttonsAreArticles(int record) {
    return !catalogue::comparesCaptions(record);
}

int wrongWordField(int record) {
    const catalogue::CorrectionRule* rule = catalogue::correctionRule(record);
    if (rule == nullptr)
        return 0;
    switch (rule->field) {
        case catalogue::AnswerField::First: return 1;
        case catalogue::AnswerField::Second: return 2;
        case catalogue::AnswerField::Either: return 12;
    }
    return 0;
}

bool takesSecondChoice(int record) {
    const auto quizzes = catalogue::quizEntries();
    return std::any_of(quizzes.begin(), quizzes.end(),
                       [&](const QuizEntry& quiz) { return quiz.eitherAnswer.holds(record); });
}

bool hasSheet(int record) {
    return !catalogue::isRefused(record) && catalogue::templateOf(record) != nullptr;
}

}  // namespace tools::check
