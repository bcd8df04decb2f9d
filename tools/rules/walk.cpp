// The walk goes from number to number by rules of its own; the rows must be where it looks.

#include "catalogue/steps.h"
#include "tools/rules/check.h"

#include <algorithm>

namespace tools::check {

namespace {

int lastStep(const Course& course) {
    int last = 0;
    for (const Step& step : course.steps)
        last = std::max(last, step.record.value_or(0));
    return last;
}

void walkHole(const Course& course, Findings& findings) {
    const int last = lastStep(course);
    for (const Step& step : course.steps) {
        if (!step.record || *step.record >= last)
            continue;
        const int wanted = catalogue::nextRecord(*step.record).preliminary;
        if (course.step(wanted) == nullptr)
            findings.add(
                step.at("recordno"),
                QStringLiteral("from %1 the walk looks for step %2, which is not there, and the program ends")
                    .arg(step.called())
                    .arg(wanted),
                QStringLiteral("a step of the number %1").arg(wanted));
    }
}

void walkBack(const Course& course, Findings& findings) {
    const int last = lastStep(course);
    for (const Step& step : course.steps) {
        if (!step.record || *step.record >= last)
            continue;
        const catalogue::NextRecord next = catalogue::nextRecord(*step.record);
        if (next.taken != next.preliminary && course.step(next.taken) == nullptr)
            findings.add(
                step.at("recordno"),
                QStringLiteral("from %1 the walk goes to step %2, which is not there, and stays where it is")
                    .arg(step.called())
                    .arg(next.taken),
                QStringLiteral("a step of the number %1").arg(next.taken));
    }
}

void walkSkipped(const Course& course, Findings& findings) {
    for (const Step& step : course.steps) {
        // A skip begins at a number below this one and ends above it.
        for (int from = step.record.value_or(0) - 3; from < step.record.value_or(0); ++from)
            if (catalogue::nextRecord(from).preliminary > *step.record)
                findings.add(step.at("recordno"),
                             QStringLiteral("the walk steps over %1; only the course table reaches it")
                                 .arg(step.called()),
                             QStringLiteral("another number"));
    }
}

constexpr std::array rules{
    Rule{"walk-hole", Severity::Error, "the step that the walk looks for is there", walkHole},
    Rule{"walk-back", Severity::Error, "the step that the walk goes back to is there", walkBack},
    Rule{"walk-skipped", Severity::Warning, "no step stands at a number that the walk steps over",
         walkSkipped},
};

}  // namespace

std::span<const Rule> walkRules() {
    return rules;
}

}  // namespace tools::check
