#pragma once

#include "tests/support/desk.h"
#include "tools/rules/check.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

/// Tables of small courses that break one demand each, and the places where the check must tell it.
namespace check_cases {

/// A text table by its name in the course folder: "unit01/newword.csv".
using File = std::pair<std::string, std::string>;

struct Case {
    const char* name;  // the behaviour in a sentence
    const char* rule;
    std::vector<File> files;
    QStringList places;  // none where the demand is kept
};

/// `count` lines of a pattern, each % being the line's number.
inline std::string lines(int count, const std::string& pattern, int from = 1) {
    std::string text;
    for (int i = from; i < from + count; ++i) {
        for (const char c : pattern)
            text += c == '%' ? std::to_string(i) : std::string(1, c);
        text += '\n';
    }
    return text;
}

inline File topics(const std::string& rows) {
    return {"topic.csv", "topicno,Title\n" + rows};
}
/// Steps of a unit: number, kind, screen.
inline File steps(const std::string& rows, const std::string& unit = "unit01") {
    return {unit + "/tablework.csv", "recordno,Type,useform\n" + rows};
}
inline File words(const std::string& rows) {
    return {"unit01/newword.csv", "recordno,word,korean\n" + rows};
}
inline File drill(const std::string& rows) {
    return {"unit01/tovalin1_basic_data.csv", "recordno,word1,word2,word3\n" + rows};
}
inline File ruleLines(const std::string& rows) {
    return {"unit01/gram_tip2.csv", "recordno,tip2\n" + rows};
}
inline File tips(const std::string& rows, const std::string& unit = "unit01") {
    return {unit + "/tovalin1_gram_tip.csv", "recordno,autono,tips\n" + rows};
}
/// Questions with the fields that are named: questions("q1,a1", …).
inline File questions(const std::string& fields, const std::string& rows) {
    return {"unit01/tovalin1_quiz_data.csv", "recordno," + fields + "\n" + rows};
}

inline tools::CourseSource readFiles(const std::vector<File>& files) {
    tools::CourseSource source;
    for (const auto& [name, text] : files) {
        const QString shown = QString::fromStdString(name);
        const int unit = shown.startsWith(QStringLiteral("unit")) ? shown.mid(4, 2).toInt() : 0;
        source.tables.push_back({unit, tools::parseTable(QByteArray::fromStdString(text), shown)});
    }
    return source;
}

inline QStringList places(const std::vector<tools::check::Finding>& findings) {
    QStringList found;
    for (const auto& finding : findings)
        found.append(finding.place.text());
    return found;
}

inline std::set<std::string>& testedRules() {
    static std::set<std::string> rules;
    return rules;
}

/// Says that a test of its own breaks the rule.
struct Tested {
    explicit Tested(const char* rule) { testedRules().insert(rule); }
};

class CaseTest : public testing::Test {
   public:
    explicit CaseTest(Case wanted) : case_(std::move(wanted)) {}

    void TestBody() override {
        const tools::BuiltCourse built(readFiles(case_.files));
        const tools::check::Course course(built.tables());
        const auto findings = tools::check::checkCourse(course, case_.rule);
        EXPECT_EQ(places(findings), case_.places) << case_.rule;
        for (const auto& finding : findings) {
            EXPECT_FALSE(finding.wrong.isEmpty());
            EXPECT_FALSE(finding.right.isEmpty());
            EXPECT_FALSE(finding.text().contains(QStringLiteral("%1"))) << finding.text().toStdString();
        }
    }

   private:
    Case case_;
};

/// Makes a test of each case. A rule counts as tested when a case breaks it.
class Cases {
   public:
    Cases(const char* suite, const std::vector<Case>& cases) {
        for (const Case& wanted : cases) {
            if (!wanted.places.isEmpty())
                testedRules().insert(wanted.rule);
            testing::RegisterTest(suite, wanted.name, nullptr, nullptr, __FILE__, __LINE__,
                                  [wanted]() -> testing::Test* { return new CaseTest(wanted); });
        }
    }
};

/// A place in a table of unit 1: at("newword", 3, "word").
inline QString at(const char* table, int line, const char* field) {
    return QStringLiteral("unit01/%1.csv:%2, field '%3'")
        .arg(QLatin1String(table))
        .arg(line)
        .arg(QLatin1String(field));
}

}  // namespace check_cases
