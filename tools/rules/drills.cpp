// A drill has a fixed number of boxes; its rows, prompts and fields must be what the screen expects.

#include "catalogue/steps.h"
#include "tools/coursefiles/screens.h"
#include "tools/rules/check.h"

#include <QStringList>

namespace tools::check {

namespace {

QString nameOf(const DrillShape& shape) {
    return QLatin1String(shape.form.data(), static_cast<qsizetype>(shape.form.size()));
}

/// Visits each drill page of the course with its rows; the first drill has a second page.
template <typename Visit>
void eachDrill(const Course& course, Visit visit) {
    for (const Step& step : course.steps) {
        const DrillShape* shape = drillOfStep(step.form, step.record.value_or(0));
        if (shape == nullptr || course.step(step.record) != &step)
            continue;
        visit(step, *shape, course.of(step.record).drill);
        if (step.form == QStringLiteral("frmLesson2"))
            visit(step, *findDrillShape(QStringLiteral("frmLesson2_2")),
                  course.of(catalogue::secondPageRows).drill);
    }
}

void drillRows(const Course& course, Findings& findings) {
    eachDrill(
        course, [&](const Step& step, const DrillShape& shape, const std::vector<const DrillRow*>& rows) {
            const int count = static_cast<int>(rows.size());
            const QString right = shape.least == shape.boxes
                                      ? QStringLiteral("exactly %1 rows").arg(shape.boxes)
                                      : QStringLiteral("%1 to %2 rows").arg(shape.least).arg(shape.boxes);
            if (count > shape.boxes)
                findings.add(rows[static_cast<std::size_t>(shape.boxes)]->at("recordno"),
                             QStringLiteral("%1 has %2 rows, and %3 has %4 boxes and ends the program")
                                 .arg(step.called())
                                 .arg(count)
                                 .arg(nameOf(shape))
                                 .arg(shape.boxes),
                             right);
            else if (count < shape.least)
                findings.add(count == 0 ? step.at("useform") : rows.back()->at("recordno"),
                             QStringLiteral("%1 has %2 rows for the %3 boxes of %4")
                                 .arg(step.called())
                                 .arg(count)
                                 .arg(shape.boxes)
                                 .arg(nameOf(shape)),
                             right);
        });
}

void drillOrder(const Course& course, Findings& findings) {
    eachDrill(course, [&](const Step&, const DrillShape&, const std::vector<const DrillRow*>& rows) {
        int place = 0;
        for (const DrillRow* row : rows)
            if (++place; row->order != place)
                findings.add(row->at("orderno"),
                             QStringLiteral("the row does not stand in box %1, its place").arg(place),
                             QStringLiteral("%1, or an empty field, which is counted").arg(place));
    });
}

void drillPrompt(const Course& course, Findings& findings) {
    eachDrill(course, [&](const Step&, const DrillShape& shape, const std::vector<const DrillRow*>& rows) {
        for (const DrillRow* row : rows) {
            const bool prompted =
                shape.prompt != 0 && (shape.lastPrompted == 0 || row->order <= shape.lastPrompted);
            if (prompted && folded(row->word[1]).isEmpty())
                findings.add(row->at("word1"), QStringLiteral("the box has no prompt"),
                             QStringLiteral("the word that the answer is formed from"));
        }
    });
}

void drillRowsUnread(const Course& course, Findings& findings) {
    for (const Step& step : course.steps) {
        const Content& content = course.of(step.record);
        const bool secondPage = step.record == catalogue::secondPageRows &&
                                course.step(catalogue::doubleStep) != nullptr &&
                                course.step(catalogue::doubleStep)->form == QStringLiteral("frmLesson2");
        if (!content.drill.empty() && !secondPage &&
            drillOfStep(step.form, step.record.value_or(0)) == nullptr)
            findings.add(
                content.drill.front()->at("recordno"),
                QStringLiteral("%1 opens %2, which reads no drill rows").arg(step.called(), step.form),
                QStringLiteral("a drill screen in useform, or no rows"));
    }
}

void drillFieldUnread(const Course& course, Findings& findings) {
    eachDrill(course, [&](const Step&, const DrillShape& shape, const std::vector<const DrillRow*>& rows) {
        for (const DrillRow* row : rows) {
            const auto unread = [&](const char* field) {
                findings.add(row->at(field),
                             QStringLiteral("%1 overwrites or leaves out this field").arg(nameOf(shape)),
                             QStringLiteral("an empty field"));
            };
            const bool listed = shape.listFrom > 1 && row->order >= shape.listFrom;
            if ((!shape.secondWordRead || listed) && !row->word[2].isEmpty() && row->word[2] != row->word[1])
                unread("word2");
            if (nameOf(shape) != QStringLiteral("frmLesson3_2") && !row->word[3].isEmpty())
                unread("word3");
        }
    });
}

void drillWidth(const Course& course, Findings& findings) {
    eachDrill(course, [&](const Step&, const DrillShape& shape, const std::vector<const DrillRow*>& rows) {
        for (const DrillRow* row : rows) {
            if (shape.prompt != 0 && columnsOf(row->word[1]) > 14)
                findings.add(row->at("word1"),
                             QStringLiteral("the prompt takes %1 columns").arg(columnsOf(row->word[1])),
                             QStringLiteral("at most 14, a Korean character counting 2"));
            const QString& answer = row->word[static_cast<std::size_t>(shape.answer)];
            if (columnsOf(answer) > 22)
                findings.add(row->at(shape.answer == 1 ? "word1" : "word2"),
                             QStringLiteral("the answer takes %1 columns of its box").arg(columnsOf(answer)),
                             QStringLiteral("at most 22"));
        }
    });
}

constexpr std::size_t secondListLabels = 13;

void secondList(const Course& course, Findings& findings) {
    for (const Step& step : course.steps) {
        if (step.form != QStringLiteral("frmLesson11") || course.prompts.size() == secondListLabels)
            continue;
        const bool more = course.prompts.size() > secondListLabels;
        findings.add(more ? course.prompts[secondListLabels].at("word") : step.at("useform"),
                     QStringLiteral("the second list of %1 has %2 prompts for 13 labels")
                         .arg(step.called())
                         .arg(course.prompts.size()),
                     QStringLiteral("exactly 13 rows in tovalin1_basicdata_115"));
    }
}

void clozeGiven(const Course& course, Findings& findings) {
    eachDrill(
        course, [&](const Step& step, const DrillShape& shape, const std::vector<const DrillRow*>& rows) {
            if (nameOf(shape) != QStringLiteral("frmLesson3_2") || rows.empty())
                return;
            std::size_t given = 0;
            for (const DrillRow* row : rows)
                given += row->word[3] == QStringLiteral("NONE") ? 1 : 0;
            if (given == rows.size())
                findings.add(
                    rows.front()->at("word3"),
                    QStringLiteral("every box of %1 is given, and Begin ends the program").arg(step.called()),
                    QStringLiteral("rows without NONE, which the learner fills in"));
        });
}

void clozeMark(const Course& course, Findings& findings) {
    eachDrill(course, [&](const Step&, const DrillShape& shape, const std::vector<const DrillRow*>& rows) {
        if (nameOf(shape) != QStringLiteral("frmLesson3_2"))
            return;
        for (const DrillRow* row : rows)
            if (!row->word[3].isEmpty() && row->word[3] != QStringLiteral("NONE"))
                findings.add(row->at("word3"),
                             QStringLiteral("'%1' does not mark the row as given").arg(row->word[3]),
                             QStringLiteral("NONE for a given row, otherwise an empty field"));
    });
}

constexpr std::array rules{
    Rule{"drill-rows", Severity::Error, "a drill has as many rows as its screen has boxes", drillRows},
    Rule{"drill-order", Severity::Error, "orderno counts the rows of a drill from 1 without gaps",
         drillOrder},
    Rule{"drill-prompt", Severity::Error, "a box with a prompt has one", drillPrompt},
    Rule{"drill-rows-unread", Severity::Warning, "drill rows belong to a step with a drill", drillRowsUnread},
    Rule{"drill-field-unread", Severity::Warning, "fields that the drill does not read are empty",
         drillFieldUnread},
    Rule{"drill-width", Severity::Warning, "prompts and answers fit into labels and boxes", drillWidth},
    Rule{"drill-second-list", Severity::Error, "the comparison drill has its 13 prompts", secondList},
    Rule{"drill-cloze-given", Severity::Error, "the cloze leaves something to fill in", clozeGiven},
    Rule{"drill-cloze-mark", Severity::Warning, "given rows of the cloze are marked NONE", clozeMark},
};

}  // namespace

std::span<const Rule> drillRules() {
    return rules;
}

}  // namespace tools::check
