// Rows must belong to a step, and lie under the unit that the step lies under: screens ask for both numbers.

#include "catalogue/steps.h"
#include "tools/rules/check.h"

#include <algorithm>

namespace tools::check {

namespace {

/// The step whose screen reads the rows of a number. The second page of step 15 reads those of 16.
const Step* reader(const Course& course, Number record) {
    const Step* step = course.step(record);
    if (record == catalogue::secondPageRows)
        if (const Step* first = course.step(catalogue::doubleStep);
            first != nullptr && first->form == QStringLiteral("frmLesson2"))
            return step != nullptr && !step->isQuiz() ? step : first;
    return step;
}

template <typename Kind, typename Visit>
void eachRow(const std::vector<Kind>& rows, Visit visit) {
    for (const Kind& row : rows)
        visit(static_cast<const Row&>(row));
}

void rowsOfNoStep(const Course& course, Findings& findings) {
    // A table of steps that cannot be read is told as such.
    if (course.steps.empty())
        return;
    const auto visit = [&](const Row& row) {
        if (!row.record)
            findings.add(row.at("recordno"), QStringLiteral("the row names no step"),
                         QStringLiteral("the number of the step that it belongs to"));
        else if (reader(course, row.record) == nullptr)
            findings.add(row.at("recordno"), QStringLiteral("no step has the number %1").arg(*row.record),
                         QStringLiteral("the number of a row of tablework"));
    };
    eachRow(course.questions, visit);
    eachRow(course.drill, visit);
    eachRow(course.words, visit);
    eachRow(course.tips, visit);
    eachRow(course.lines, visit);
    eachRow(course.sheet, visit);
}

void rowsOfOtherUnit(const Course& course, Findings& findings) {
    const auto visit = [&](const Row& row) {
        const Step* step = reader(course, row.record);
        if (step == nullptr || !step->topic || row.topic == step->topic)
            return;
        const QString unit =
            row.topic ? QStringLiteral("unit %1").arg(*row.topic) : QStringLiteral("no unit");
        findings.add(
            row.at("topicno"),
            QStringLiteral("the row lies under %1, so that %2 does not find it").arg(unit, step->called()),
            QStringLiteral("%1, the unit of the step").arg(*step->topic));
    };
    eachRow(course.questions, visit);
    eachRow(course.drill, visit);
    eachRow(course.tips, visit);
    eachRow(course.lines, visit);
    eachRow(course.sheet, visit);
}

/// Fields of a row that a screen reads and that no store may leave without a value.
void missingValues(const Course& course, Findings& findings) {
    const auto need = [&](const Row& row, const char* field, const QString& text) {
        if (text.isNull())
            findings.add(row.at(field),
                         QStringLiteral("the value is missing, and a screen that reads it ends the program"),
                         QStringLiteral("a text, if only an empty one"));
    };
    for (const Step& step : course.steps) {
        need(step, "Type", step.type);
        need(step, "Title", step.title);
        need(step, "Data", step.data);
    }
    for (const Topic& topic : course.topics)
        need(topic, "Title", topic.title);
    for (const Question& question : course.questions) {
        need(question, "q1", question.q[1]);
        need(question, "a1", question.a1);
        need(question, "a2", question.a2);
    }
    for (const DrillRow& row : course.drill)
        need(row, "word1", row.word[1]);
    for (const Word& word : course.words) {
        need(word, "word", word.word);
        need(word, "korean", word.korean);
    }
    for (const Tip& tip : course.tips)
        need(tip, "tips", tip.tips);
    for (const RuleLine& line : course.lines)
        need(line, "tip2", line.text);
}

bool isHidden(QChar c) {
    const auto code = c.unicode();
    return code < 0x20 || code == 0x7F || code == 0xA0 || (code >= 0x200B && code <= 0x200F) ||
           code == 0xFEFF;
}

/// Characters that nobody sees spoil comparisons and break lines where a label has one.
void hiddenCharacters(const Course& course, Findings& findings) {
    const auto look = [&](const Row& row, const char* field, const QString& text) {
        if (const auto found = std::find_if(text.begin(), text.end(), isHidden); found != text.end())
            findings.add(row.at(field),
                         QStringLiteral("the text holds a character that nobody sees (U+%1)")
                             .arg(found->unicode(), 4, 16, QLatin1Char('0')),
                         QStringLiteral("a plain blank, or nothing"));
    };
    constexpr std::array fields{"", "q1", "q2", "q3", "q4", "q5", "q6", "q7"};
    for (const Question& question : course.questions) {
        for (std::size_t i = 1; i < fields.size(); ++i)
            look(question, fields[i], question.q[i]);
        look(question, "a1", question.a1);
        look(question, "a2", question.a2);
    }
    for (const DrillRow& row : course.drill) {
        look(row, "word1", row.word[1]);
        look(row, "word2", row.word[2]);
    }
    for (const Word& word : course.words) {
        look(word, "word", word.word);
        look(word, "korean", word.korean);
    }
    for (const Step& step : course.steps) {
        look(step, "Title", step.title);
        look(step, "Data", step.data);
        look(step, "guide", step.guide);
    }
}

constexpr std::array rules{
    Rule{"row-of-no-step", Severity::Error, "every row belongs to a step", rowsOfNoStep},
    Rule{"row-of-other-unit", Severity::Error, "a row lies under the unit of its step", rowsOfOtherUnit},
    Rule{"value-missing", Severity::Error, "no field that a screen reads is without a value", missingValues},
    Rule{"text-hidden", Severity::Warning, "no text of one line holds a character that nobody sees",
         hiddenCharacters},
};

}  // namespace

std::span<const Rule> tableRules() {
    return rules;
}

}  // namespace tools::check
