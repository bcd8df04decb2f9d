#pragma once

#include "tools/coursefiles/course.h"

#include <QString>

#include <span>
#include <string>
#include <vector>

namespace tools::check {

/// An error keeps a screen from running or a question from being judged right, and stops a build. A warning
/// tells of something that a learner would stumble over.
enum class Severity { Error, Warning };

struct Finding {
    Severity severity = Severity::Error;
    const char* rule = "";
    SourcePlace place;
    QString wrong;
    QString right;

    /// Two lines: the place with what is wrong, and what would be right. Characters that nobody sees stand as
    /// their codes.
    QString text() const;
};

/// Where the rule in hand tells what it finds.
class Findings {
   public:
    void add(const SourcePlace& place, const QString& wrong, const QString& right);
    void begin(const char* rule, Severity severity) { rule_ = rule, severity_ = severity; }

    const std::vector<Finding>& all() const { return all_; }
    std::vector<Finding>& all() { return all_; }

   private:
    const char* rule_ = "";
    Severity severity_ = Severity::Error;
    std::vector<Finding> all_;
};

/// One demand on the content of a course.
struct Rule {
    const char* name;
    Severity severity;
    /// The demand in one line, as a list of rules shows it.
    const char* demand;
    void (*check)(const Course& course, Findings& findings);
};

/// The rules by subject.
std::span<const Rule> tableRules();
std::span<const Rule> stepRules();
std::span<const Rule> walkRules();
std::span<const Rule> wordRules();
std::span<const Rule> drillRules();
std::span<const Rule> drillAnswerRules();
std::span<const Rule> ruleLineRules();
std::span<const Rule> tipRules();
std::span<const Rule> quizRules();
std::span<const Rule> choiceRules();
std::span<const Rule> giveawayRules();
std::span<const Rule> poolRules();
std::span<const Rule> typedRules();
std::span<const Rule> wrongWordRules();
std::span<const Rule> buttonRules();
std::span<const Rule> sheetRules();
std::span<const Rule> finalRules();
std::span<const Rule> repeatRules();
std::span<const Rule> pointRules();
std::span<const Rule> climbRules();
std::span<const Rule> varietyRules();
std::span<const Rule> guideRules();

/// All of them, subject by subject.
std::vector<const Rule*> allRules();
/// The rule that stands for text tables that cannot be read.
inline constexpr const char* unreadableRule = "table-unreadable";

/// Holds a course against every rule, or against those of one name. Findings come in the order of the rules,
/// each rule's in the order of the rows.
std::vector<Finding> checkCourse(const Course& course, const char* onlyRule = nullptr);

/// Places that could not be read, as findings.
std::vector<Finding> unreadable(const ReadErrors& damages);

/// Places that could not be read, and behind them what the rules find elsewhere.
std::vector<Finding> checkTables(const Course& course, const ReadErrors& damages);

int errorCount(const std::vector<Finding>& findings);

}  // namespace tools::check
