// Points: what is asked was taught, and what is taught is asked.

#include "tools/rules/check.h"

#include <QMap>
#include <QRegularExpression>
#include <QSet>

namespace tools::check {

namespace {

/// Visits every row that can teach: tips, rule lines and drill rows.
template <typename Visit>
void eachTeachingRow(const Course& course, Visit visit) {
    for (const Tip& tip : course.tips)
        visit(tip);
    for (const RuleLine& line : course.lines)
        visit(line);
    for (const DrillRow& row : course.drill)
        visit(row);
}

bool namesPoints(const Course& course) {
    return std::any_of(course.questions.begin(), course.questions.end(),
                       [](const Question& question) { return !question.points().isEmpty(); });
}

/// Where a point is taught first.
struct Taught {
    const Row* row = nullptr;
    int unit = 0;
};

QMap<QString, Taught> taughtPoints(const Course& course) {
    QMap<QString, Taught> taught;
    eachTeachingRow(course, [&](const Row& row) {
        for (const QString& point : row.points()) {
            Taught& known = taught[point];
            const int unit = row.topic.value_or(0);
            if (known.row == nullptr || unit < known.unit)
                known = {&row, unit};
        }
    });
    return taught;
}

void pointMissing(const Course& course, Findings& findings) {
    if (!namesPoints(course))
        return;
    for (const Question& question : course.questions)
        if (question.points().isEmpty())
            findings.add(question.at("point"), QStringLiteral("the question does not say what it trains"),
                         QStringLiteral("the point that a tip, rule line or drill row of its unit, or an "
                                        "earlier one, teaches"));
}

void pointTaught(const Course& course, Findings& findings) {
    const QMap<QString, Taught> taught = taughtPoints(course);
    for (const Question& question : course.questions)
        for (const QString& point : question.points()) {
            const auto known = taught.constFind(point);
            if (known == taught.constEnd())
                findings.add(question.at("point"), QStringLiteral("'%1' is taught nowhere").arg(point),
                             QStringLiteral("a tip, rule line or drill row that names and teaches it"));
            else if (known->unit > question.topic.value_or(0))
                findings.add(
                    question.at("point"),
                    QStringLiteral("'%1' is taught later, at %2").arg(point, known->row->at("point").text()),
                    QStringLiteral("a point of this unit or an earlier one"));
        }
}

void pointUnused(const Course& course, Findings& findings) {
    QSet<QString> asked;
    for (const Question& question : course.questions)
        for (const QString& point : question.points())
            asked.insert(point);
    const QMap<QString, Taught> taught = taughtPoints(course);
    for (auto point = taught.cbegin(); point != taught.cend(); ++point)
        if (!asked.contains(point.key()))
            findings.add(point->row->at("point"),
                         QStringLiteral("'%1' is taught and asked nowhere").arg(point.key()),
                         QStringLiteral("questions that train it"));
}

void pointForm(const Course& course, Findings& findings) {
    static const QRegularExpression form(QStringLiteral("^[a-z0-9]+(-[a-z0-9]+)*$"));
    const auto checkKeys = [&](const Row& row) {
        for (const QString& point : row.points())
            if (!form.match(point).hasMatch())
                findings.add(row.at("point"), QStringLiteral("'%1' is no key of a point").arg(point),
                             QStringLiteral("small letters and digits, words joined by hyphens: plural-es"));
    };
    for (const Question& question : course.questions) {
        checkKeys(question);
        if (question.points().size() > 1)
            findings.add(question.at("point"),
                         QStringLiteral("the question names %1 points").arg(question.points().size()),
                         QStringLiteral("the one that it trains"));
    }
    eachTeachingRow(course, checkKeys);
}

constexpr std::array rules{
    Rule{"point-form", Severity::Error, "a point is a key such as plural-es, one for a question", pointForm},
    Rule{"point-missing", Severity::Error, "every question says what it trains, once one of them does",
         pointMissing},
    Rule{"point-taught", Severity::Error, "what a question trains is taught in this unit or before",
         pointTaught},
    Rule{"point-unused", Severity::Warning, "what is taught is asked", pointUnused},
};

}  // namespace

std::span<const Rule> pointRules() {
    return rules;
}

}  // namespace tools::check
