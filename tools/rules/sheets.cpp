// Worksheets are built by step number from the rows of the step.

#include "catalogue/sheets.h"
#include "tools/rules/quiz_visit.h"

namespace tools::check {

namespace {

void refusedSteps(const Course& course, Findings& findings) {
    for (const Step& step : course.steps) {
        const bool refused = catalogue::isRefused(step.record.value_or(0));
        if (refused != (step.use == QStringLiteral("NO")))
            findings.add(step.at("usedata"),
                         refused
                             ? QStringLiteral("the worksheet of %1 is refused, but its number is not red")
                                   .arg(step.called())
                             : QStringLiteral("%1 has a worksheet, but its number is red").arg(step.called()),
                         refused ? QStringLiteral("NO") : QStringLiteral("YES"));
    }
}

void unknownStep(const Course& course, Findings& findings) {
    for (const Step& step : course.steps)
        if (!catalogue::isRefused(step.record.value_or(0)) && !hasSheet(step.record.value_or(0)) &&
            step.use != QStringLiteral("NO"))
            findings.add(step.at("recordno"),
                         QStringLiteral("no worksheet is made for %1; a click prints the one before")
                             .arg(step.called()),
                         QStringLiteral("a number of 1 to 257 that a worksheet is made for"));
}

void sentenceRows(const Course& course, Findings& findings) {
    for (const Step& step : course.steps)
        if (catalogue::builderOf(step.record.value_or(0)) == catalogue::Builder::SentenceMasks &&
            course.of(step.record).sheet.empty())
            findings.add(step.at("recordno"),
                         QStringLiteral("the worksheet of %1 prints no sentence").arg(step.called()),
                         QStringLiteral("rows in basic_data3"));
}

void sentenceRowsUnread(const Course& course, Findings& findings) {
    for (const Step& step : course.steps)
        if (const auto& rows = course.of(step.record).sheet;
            !rows.empty() &&
            catalogue::builderOf(step.record.value_or(0)) != catalogue::Builder::SentenceMasks)
            findings.add(rows.front()->at("recordno"),
                         QStringLiteral("no worksheet of %1 prints these rows").arg(step.called()),
                         QStringLiteral("step 15, 21 or 45"));
}

void sentenceFields(const Course& course, Findings& findings) {
    for (const SheetRow& row : course.sheet) {
        if (folded(row.word[1]).isEmpty() || row.word[1] == QStringLiteral("Blank"))
            findings.add(row.at("word1"), QStringLiteral("the row has nothing to learn by heart"),
                         QStringLiteral("an English phrase or sentence"));
        constexpr std::array fields{"word2", "word3", "word4"};
        for (std::size_t i = 0; i < fields.size(); ++i)
            if (row.word[i + 2].isEmpty())
                findings.add(row.at(fields[i]), QStringLiteral("an empty field prints an empty mask"),
                             QStringLiteral("Blank"));
        if (folded(row.heading).isEmpty())
            findings.add(row.at("vtitle"), QStringLiteral("the row has no heading"),
                         QStringLiteral("a Korean heading"));
    }
}

void secondLine(const Course& course, Findings& findings) {
    eachQuiz(course, [&](const Step& step, const QuizShape&, const std::vector<const Question*>& questions) {
        if (catalogue::builderOf(step.record.value_or(0)) != catalogue::Builder::TwoColumns)
            return;
        for (const Question* question : questions)
            if (folded(question->q[2]).isEmpty())
                findings.add(question->at("q2"),
                             QStringLiteral("the worksheet of %1 prints this field as a second line")
                                 .arg(step.called()),
                             QStringLiteral("the sentence in Korean, or a hint"));
    });
}

void secondLineIsChoice(const Course& course, Findings& findings) {
    eachQuiz(
        course, [&](const Step& step, const QuizShape& shape, const std::vector<const Question*>& questions) {
            const catalogue::Builder sheet = catalogue::builderOf(step.record.value_or(0));
            if ((sheet != catalogue::Builder::TwoColumns && sheet != catalogue::Builder::SwappedColumns) ||
                shape.choices.empty() || questions.empty())
                return;
            findings.add(
                questions.front()->at("q2"),
                QStringLiteral("the worksheet of %1 prints q2 as a line of its own, and here it is a choice")
                    .arg(step.called()),
                QStringLiteral("a screen whose q2 is a sentence, such as frmQuiz6 or frmQuiz10"));
        });
}

constexpr std::array rules{
    Rule{"sheet-refused", Severity::Warning, "usedata tells which steps have a worksheet", refusedSteps},
    Rule{"sheet-unknown", Severity::Warning, "a step's number is one that a worksheet is made for",
         unknownStep},
    Rule{"sheet-sentences", Severity::Warning, "a sentence worksheet has sentences", sentenceRows},
    Rule{"sheet-unread", Severity::Warning, "worksheet sentences belong to a step that prints them",
         sentenceRowsUnread},
    Rule{"sheet-fields", Severity::Warning, "a worksheet sentence has all its fields", sentenceFields},
    Rule{"sheet-second-line", Severity::Warning, "a worksheet with second lines has them", secondLine},
    Rule{"sheet-line-choice", Severity::Warning, "a worksheet's second line is no choice",
         secondLineIsChoice},
};

}  // namespace

std::span<const Rule> sheetRules() {
    return rules;
}

}  // namespace tools::check
