#include "tools/rules/check.h"

#include <QSet>

#include <algorithm>
#include <cstring>

namespace tools::check {

namespace {

using Subject = std::span<const Rule> (*)();

constexpr std::array<Subject, 18> subjects{
    tableRules,    stepRules,      walkRules,   wordRules,   drillRules,    drillAnswerRules,
    ruleLineRules, tipRules,       quizRules,   choiceRules, giveawayRules, poolRules,
    typedRules,    wrongWordRules, buttonRules, sheetRules,  finalRules,    repeatRules};

// How a course teaches is its author's to mend. An install, which may come from elsewhere, is not held
// against these.
constexpr std::array<Subject, 4> authorsSubjects{pointRules, climbRules, varietyRules, guideRules};

std::vector<const Rule*> rulesOf(std::span<const Subject> wanted) {
    std::vector<const Rule*> rules;
    for (const Subject subject : wanted)
        for (const Rule& rule : subject())
            rules.push_back(&rule);
    return rules;
}

/// Text tables may hold line breaks and worse; a finding is to keep its two lines.
QString visible(const QString& text) {
    QString shown;
    for (const QChar c : text)
        if (c.unicode() < 0x20 || c.unicode() == 0x7F)
            shown += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
        else
            shown += c;
    return shown;
}

}  // namespace

QString Finding::text() const {
    const QString kind = severity == Severity::Error ? QStringLiteral("error") : QStringLiteral("warning");
    return QStringLiteral("%1: %2: %3 [%4]\n    right: %5")
        .arg(visible(place.text()), kind, visible(wrong), QLatin1String(rule), visible(right));
}

void Findings::add(const SourcePlace& place, const QString& wrong, const QString& right) {
    all_.push_back({severity_, rule_, place, wrong, right});
}

std::vector<const Rule*> allRules() {
    std::vector<const Rule*> rules = rulesOf(subjects);
    const std::vector<const Rule*> authors = rulesOf(authorsSubjects);
    rules.insert(rules.end(), authors.begin(), authors.end());
    return rules;
}

std::vector<Finding> checkCourse(const Course& course, const char* onlyRule) {
    Findings findings;
    for (const Rule* rule : course.media ? rulesOf(subjects) : allRules()) {
        if (onlyRule != nullptr && std::strcmp(onlyRule, rule->name) != 0)
            continue;
        findings.begin(rule->name, rule->severity);
        rule->check(course, findings);
    }
    return std::move(findings.all());
}

std::vector<Finding> unreadable(const ReadErrors& damages) {
    std::vector<Finding> findings;
    for (const SourceError& damage : damages)
        findings.push_back(
            {Severity::Error, unreadableRule, damage.place(), damage.sentence(), damage.right()});
    return findings;
}

std::vector<Finding> checkTables(const Course& course, const ReadErrors& damages) {
    std::vector<Finding> findings = unreadable(damages);
    QSet<QString> told;
    for (const SourceError& damage : damages)
        told.insert(damage.place().text());
    for (Finding& finding : checkCourse(course))
        if (!told.contains(finding.place.text()))
            findings.push_back(std::move(finding));
    return findings;
}

int errorCount(const std::vector<Finding>& findings) {
    return static_cast<int>(std::count_if(findings.begin(), findings.end(),
                                          [](const Finding& f) { return f.severity == Severity::Error; }));
}

}  // namespace tools::check
