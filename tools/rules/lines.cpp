// Rule lines beside a drill: as many as the screen has labels, each as long as a label.

#include "catalogue/steps.h"
#include "tools/coursefiles/screens.h"
#include "tools/rules/check.h"

namespace tools::check {

namespace {

constexpr int lineColumns = 44;

QString nameOf(const DrillShape& shape) {
    return QLatin1String(shape.form.data(), static_cast<qsizetype>(shape.form.size()));
}

template <typename Visit>
void eachPage(const Course& course, Visit visit) {
    for (const Step& step : course.steps) {
        const DrillShape* shape = drillOfStep(step.form, step.record.value_or(0));
        if (shape == nullptr || course.step(step.record) != &step)
            continue;
        visit(step, *shape, course.of(step.record).lines);
        if (step.form == QStringLiteral("frmLesson2"))
            visit(step, *findDrillShape(QStringLiteral("frmLesson2_2")),
                  course.of(catalogue::secondPageRows).lines);
    }
}

void tooMany(const Course& course, Findings& findings) {
    eachPage(
        course, [&](const Step& step, const DrillShape& shape, const std::vector<const RuleLine*>& lines) {
            const auto room = static_cast<std::size_t>(shape.lines);
            if (shape.lines > 0 && lines.size() > room)
                findings.add(lines[room]->at("recordno"),
                             QStringLiteral("%1 has %2 rule lines, and %3 has %4 labels and ends the program")
                                 .arg(step.called())
                                 .arg(lines.size())
                                 .arg(nameOf(shape))
                                 .arg(room),
                             QStringLiteral("at most %1 rows").arg(room));
        });
}

void missing(const Course& course, Findings& findings, Need need, const QString& wrong) {
    eachPage(course,
             [&](const Step& step, const DrillShape& shape, const std::vector<const RuleLine*>& lines) {
                 if (shape.linesNeed == need && lines.empty())
                     findings.add(step.at("useform"), wrong.arg(step.called(), nameOf(shape)),
                                  QStringLiteral("1 to %1 rows in gram_tip2").arg(shape.lines));
             });
}

void demandedMissing(const Course& course, Findings& findings) {
    missing(course, findings, Need::Demanded,
            QStringLiteral("%1 has no rule line, and %2 ends the program without one"));
}

void wantedMissing(const Course& course, Findings& findings) {
    missing(course, findings, Need::Wanted, QStringLiteral("%1 has no rule line where %2 has room for some"));
}

void order(const Course& course, Findings& findings) {
    eachPage(course, [&](const Step&, const DrillShape&, const std::vector<const RuleLine*>& lines) {
        int place = 0;
        for (const RuleLine* line : lines)
            if (++place; line->order != place)
                findings.add(line->at("orderno"),
                             QStringLiteral("the line does not stand in its place, %1").arg(place),
                             QStringLiteral("%1, or an empty field, which is counted").arg(place));
    });
}

void width(const Course& course, Findings& findings) {
    for (const RuleLine& line : course.lines)
        if (line.text.contains(u'\n'))
            findings.add(line.at("tip2"), QStringLiteral("the label has one line, and the text two"),
                         QStringLiteral("a row for each line"));
        else if (columnsOf(line.text) > lineColumns)
            findings.add(line.at("tip2"),
                         QStringLiteral("the line takes %1 columns").arg(columnsOf(line.text)),
                         QStringLiteral("at most %1, a Korean character counting 2").arg(lineColumns));
}

void unread(const Course& course, Findings& findings) {
    for (const Step& step : course.steps) {
        const auto& lines = course.of(step.record).lines;
        const DrillShape* shape = drillOfStep(step.form, step.record.value_or(0));
        const bool secondPage = step.record == catalogue::secondPageRows &&
                                course.step(catalogue::doubleStep) != nullptr &&
                                course.step(catalogue::doubleStep)->form == QStringLiteral("frmLesson2");
        // One screen opens its lines without showing them.
        const bool shown = shape != nullptr && (shape->lines > 0 || shape->form == "frmLesson24");
        if (!lines.empty() && !shown && !secondPage)
            findings.add(
                lines.front()->at("recordno"),
                QStringLiteral("%1 opens %2, which shows no rule lines").arg(step.called(), step.form),
                QStringLiteral("no rows in gram_tip2"));
    }
}

constexpr std::array rules{
    Rule{"rule-line-room", Severity::Error, "a drill has no more rule lines than labels for them", tooMany},
    Rule{"rule-line-missing", Severity::Error, "a drill that reads rule lines has at least one",
         demandedMissing},
    Rule{"rule-line-wanted", Severity::Warning, "a drill with room for rule lines has some", wantedMissing},
    Rule{"rule-line-order", Severity::Error, "orderno counts the rule lines of a step from 1", order},
    Rule{"rule-line-width", Severity::Warning, "a rule line fits on its label", width},
    Rule{"rule-line-unread", Severity::Warning, "rule lines belong to a step that shows them", unread},
};

}  // namespace

std::span<const Rule> ruleLineRules() {
    return rules;
}

}  // namespace tools::check
