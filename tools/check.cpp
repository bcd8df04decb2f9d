#include "tools/check.h"

#include <algorithm>
#include <cstring>

namespace tools::check {

namespace {

constexpr std::array subjects{tableRules,       stepRules,     walkRules,      wordRules,   drillRules,
                              drillAnswerRules, ruleLineRules, tipRules,       quizRules,   choiceRules,
                              poolRules,        typedRules,    wrongWordRules, buttonRules, sheetRules,
                              finalRules,       repeatRules};

}  // namespace

QString Finding::text() const {
    const QString kind = severity == Severity::Error ? QStringLiteral("error") : QStringLiteral("warning");
    return QStringLiteral("%1: %2: %3 [%4]\n    right: %5")
        .arg(place.text(), kind, wrong, QLatin1String(rule), right);
}

void Findings::add(const SourcePlace& place, const QString& wrong, const QString& right) {
    all_.push_back({severity_, rule_, place, wrong, right});
}

std::vector<const Rule*> allRules() {
    std::vector<const Rule*> rules;
    for (const auto subject : subjects)
        for (const Rule& rule : subject())
            rules.push_back(&rule);
    return rules;
}

std::vector<Finding> checkCourse(const Course& course, const char* onlyRule) {
    Findings findings;
    for (const Rule* rule : allRules()) {
        if (onlyRule != nullptr && std::strcmp(onlyRule, rule->name) != 0)
            continue;
        findings.begin(rule->name, rule->severity);
        rule->check(course, findings);
    }
    return std::move(findings.all());
}

std::vector<Finding> unreadable(const Damages& damages) {
    std::vector<Finding> findings;
    for (const SourceError& damage : damages)
        findings.push_back({Severity::Error, unreadableRule, damage.place(), damage.sentence(),
                            QStringLiteral("a table as the author's guide tells, in UTF-8")});
    return findings;
}

int errorCount(const std::vector<Finding>& findings) {
    return static_cast<int>(std::count_if(findings.begin(), findings.end(),
                                          [](const Finding& f) { return f.severity == Severity::Error; }));
}

}  // namespace tools::check
