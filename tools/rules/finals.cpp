// A Final draws questions from the quizzes of its unit, and some Finals print from a list of ranges.

#include "catalogue/sheets.h"
#include "core/session.h"
#include "tools/rules/quiz_visit.h"

#include <QHash>

#include <map>

namespace tools::check {

namespace {

constexpr int finalSteps = core::finalStepLimit;

template <typename Visit>
void eachFinal(const Course& course, Visit visit) {
    for (const Step& step : course.steps)
        if (step.isFinal())
            visit(step, course.drawnBy(step));
}

void finalEmpty(const Course& course, Findings& findings) {
    eachFinal(course, [&](const Step& final, const std::vector<const Step*>& drawn) {
        if (drawn.empty())
            findings.add(final.at("Type"),
                         QStringLiteral("the Final of %1 has no quiz to draw from").arg(final.called()),
                         QStringLiteral("quizzes in its unit, or another kind of step"));
    });
}

void finalRoom(const Course& course, Findings& findings) {
    eachFinal(course, [&](const Step& final, const std::vector<const Step*>& drawn) {
        if (drawn.size() > finalSteps)
            findings.add(drawn[finalSteps]->at("Type"),
                         QStringLiteral("the Final of %1 runs %2 quizzes, and the 21st ends the program")
                             .arg(final.called())
                             .arg(drawn.size()),
                         QStringLiteral("at most %1 quizzes under one Final").arg(finalSteps));
    });
}

void finalScreens(const Course& course, Findings& findings) {
    eachFinal(course, [&](const Step& final, const std::vector<const Step*>& drawn) {
        for (const Step* step : drawn)
            if (findQuizShape(step->form) == nullptr)
                findings.add(step->at("useform"),
                             QStringLiteral("the Final of %1 draws from %2, which opens %3")
                                 .arg(final.called(), step->called(), step->form),
                             QStringLiteral("a quiz screen"));
    });
}

void finalQuestions(const Course& course, Findings& findings) {
    eachFinal(course, [&](const Step& final, const std::vector<const Step*>& drawn) {
        for (const Step* step : drawn)
            if (const int count = step->quizzes.value_or(0); count < 5 && count != 1)
                findings.add(
                    step->at("quizno"),
                    QStringLiteral(
                        "the Final of %1 takes nothing from the %2 questions of %3, and its screen then "
                        "ends the program")
                        .arg(final.called())
                        .arg(count)
                        .arg(step->called()),
                    QStringLiteral("5 questions or more, or a single one"));
    });
}

/// The ranges of a Final's unit, and the Final itself, by unit.
struct Printed {
    const Step* final = nullptr;
    std::vector<const FinalRange*> ranges;
};

std::map<int, Printed> printedFinals(const Course& course) {
    std::map<int, Printed> finals;
    for (const FinalRange& range : course.finals)
        finals[range.topic.value_or(0)].ranges.push_back(&range);
    for (const Step& step : course.steps)
        if (step.topic && catalogue::builderOf(step.record.value_or(0)) == catalogue::Builder::Final)
            finals[*step.topic].final = &step;
    return finals;
}

void listMissing(const Course& course, Findings& findings) {
    for (const auto& [topic, printed] : printedFinals(course))
        if (printed.final != nullptr && printed.ranges.empty())
            findings.add(printed.final->at("recordno"),
                         QStringLiteral("the worksheet of %1 has no list to print from and shows an error")
                             .arg(printed.final->called()),
                         QStringLiteral("rows of unit %1 in tablework_final_data").arg(topic));
}

void listUnread(const Course& course, Findings& findings) {
    for (const auto& [topic, printed] : printedFinals(course))
        if (printed.final == nullptr)
            findings.add(printed.ranges.front()->at("recordno"),
                         QStringLiteral("no Final prints from the list of unit %1").arg(topic),
                         QStringLiteral("the unit of step 94, 126, 145, 169, 205, 215 or 252"));
}

void rangeOrder(const Course& course, Findings& findings) {
    for (const FinalRange& range : course.finals)
        if (!range.record || !range.last || *range.record > *range.last)
            findings.add(range.at("recordno2"), QStringLiteral("the range takes in no step"),
                         QStringLiteral("recordno and recordno2: the first and the last step of the range"));
}

void rangeCover(const Course& course, Findings& findings) {
    for (const auto& [topic, printed] : printedFinals(course)) {
        if (printed.final == nullptr || printed.ranges.empty())
            continue;
        for (const Step* step : course.drawnBy(*printed.final)) {
            const auto times =
                std::count_if(printed.ranges.begin(), printed.ranges.end(), [&](const FinalRange* range) {
                    return range->record && range->last && *range->record <= *step->record &&
                           *step->record <= *range->last;
                });
            if (times != 1)
                findings.add(printed.ranges.front()->at("recordno"),
                             QStringLiteral("the printed Final takes in %1 %2")
                                 .arg(step->called(), times == 0 ? QStringLiteral("nowhere")
                                                                 : QStringLiteral("%1 times").arg(times)),
                             QStringLiteral("every quiz of the Final in one range"));
        }
    }
}

void rangeStart(const Course& course, Findings& findings) {
    for (const FinalRange& range : course.finals)
        for (const int start : catalogue::secondLineStarts())
            if (range.record && range.last && *range.record < start && start <= *range.last &&
                course.step(start) != nullptr)
                findings.add(
                    range.at("recordno"),
                    QStringLiteral("step %1 lies inside the range, so that its second lines are not printed")
                        .arg(start),
                    QStringLiteral("a range of its own that begins at %1").arg(start));
}

constexpr std::array rules{
    Rule{"final-empty", Severity::Error, "a Final has quizzes to draw from", finalEmpty},
    Rule{"final-room", Severity::Error, "at most 20 quizzes stand under one Final", finalRoom},
    Rule{"final-screen", Severity::Error, "a Final draws from quizzes alone", finalScreens},
    Rule{"final-questions", Severity::Error, "a quiz under a Final has 1 question, or 5 and more",
         finalQuestions},
    Rule{"final-list", Severity::Error, "a Final that prints from a list has one", listMissing},
    Rule{"final-list-unread", Severity::Warning, "a list belongs to a unit whose Final prints from it",
         listUnread},
    Rule{"final-range", Severity::Error, "a range of the list has a first and a last step", rangeOrder},
    Rule{"final-cover", Severity::Warning, "the list takes in every quiz of the Final once", rangeCover},
    Rule{"final-start", Severity::Warning, "steps with second lines begin a range", rangeStart},
};

}  // namespace

std::span<const Rule> finalRules() {
    return rules;
}

}  // namespace tools::check
