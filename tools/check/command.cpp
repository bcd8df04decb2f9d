#include "tools/check/command.h"

#include "tools/check/install.h"
#include "tools/rules/check.h"
#include "tools/rules/figures.h"
#include "tools/support/command_line.h"

#include <QElapsedTimer>
#include <QFileInfo>

#include <cstdio>
#include <map>

namespace tools {

using check::Finding;
using check::Severity;

namespace {

const QCommandLineOption rootOption(
    QStringLiteral("root"),
    QStringLiteral("Check the finished install below this folder instead of text tables."),
    QStringLiteral("folder"));
const QCommandLineOption rulesOption(QStringLiteral("rules"), QStringLiteral("List the rules and end."));
const QCommandLineOption summaryOption(QStringLiteral("summary"),
                                       QStringLiteral("Count the findings by rule instead of listing them."));
const QCommandLineOption errorsOption(QStringLiteral("errors-only"), QStringLiteral("Leave warnings out."));
const QCommandLineOption figuresOption(
    QStringLiteral("figures"),
    QStringLiteral("Show the course in figures, unit by unit, instead of checking it."));

void print(const QString& text) {
    std::fputs(text.toUtf8().constData(), stdout);
}

int listRules() {
    const auto line = [](const char* name, Severity severity, const char* demand) {
        std::printf("%-22s %-8s %s\n", name, severity == Severity::Error ? "error" : "warning", demand);
    };
    line(check::unreadableRule, Severity::Error, "a table can be read");
    for (const check::Rule* rule : check::allRules())
        line(rule->name, rule->severity, rule->demand);
    return exitFine;
}

int showFigures(const QString& folder) {
    const BuiltCourse built(readCourse(folder));
    for (const QString& line : check::figures(check::Course(built.tables())))
        print(line + u'\n');
    return exitFine;
}

struct Checked {
    std::vector<Finding> findings;
    int rows = 0;
};

Checked checkTables(const std::vector<BuiltTable>& tables, const ReadErrors& damages,
                    std::optional<check::Media> media) {
    const check::Course course(tables, std::move(media));
    return {check::checkTables(course, damages), course.rowCount};
}

Checked checkFolder(const QString& folder) {
    ReadErrors damages;
    const CourseSource source = readCourse(folder, &damages);
    const BuiltCourse built(source, &damages);
    return checkTables(built.tables(), damages, {});
}

Checked checkInstall(const QString& root) {
    const check::InstallTables install = check::readInstall(root, picturesFolder());
    return checkTables(install.tables, install.damages, install.media);
}

void printSummary(const std::vector<Finding>& findings) {
    std::map<std::string, int> counts;
    for (const Finding& finding : findings)
        ++counts[finding.rule];
    for (const auto& [rule, count] : counts)
        std::printf("%6d %s\n", count, rule.c_str());
}

int report(Checked checked, const QCommandLineParser& call, qint64 milliseconds) {
    std::vector<Finding>& findings = checked.findings;
    if (call.isSet(errorsOption))
        std::erase_if(findings, [](const Finding& finding) { return finding.severity == Severity::Warning; });
    if (call.isSet(summaryOption))
        printSummary(findings);
    else
        for (const Finding& finding : findings)
            print(finding.text() + u'\n');
    const int errors = check::errorCount(findings);
    const int warnings = static_cast<int>(findings.size()) - errors;
    const auto s = [](int count) { return count == 1 ? "" : "s"; };
    std::printf("%d row%s: %d error%s, %d warning%s (%lld ms)\n", checked.rows, s(checked.rows), errors,
                s(errors), warnings, s(warnings), static_cast<long long>(milliseconds));
    return findings.empty() ? exitFine : exitFindings;
}

}  // namespace

int runCheck(const QStringList& arguments) {
    CommandLine line(
        QStringLiteral("course check"),
        QStringLiteral(
            "Tells what a screen of the program would stumble over: for each finding the place, what is "
            "wrong and what would be right. Ends with 0 without findings and 1 with some."));
    QCommandLineParser& call = line.parser();
    call.addOptions({rootOption, rulesOption, summaryOption, errorsOption, figuresOption});
    call.addPositionalArgument(QStringLiteral("folder"),
                               QStringLiteral("The course's text tables; the starter course without it."),
                               QStringLiteral("[folder]"));
    if (const auto status = line.parse(arguments))
        return *status;
    if (call.isSet(rulesOption))
        return listRules();
    const QStringList folders = call.positionalArguments();
    if (folders.size() > 1 || (!folders.isEmpty() && call.isSet(rootOption)))
        return line.wrongCall(QStringLiteral("one course is checked at a time."));
    if (call.isSet(figuresOption) && call.isSet(rootOption))
        return line.wrongCall(QStringLiteral("figures are those of text tables."));
    const QString folder =
        call.isSet(rootOption) ? call.value(rootOption) : folders.value(0, starterFolder());
    if (!QFileInfo(folder).isDir())
        return line.wrongCall(QStringLiteral("there is no folder %1.").arg(folder));
    QElapsedTimer timer;
    timer.start();
    try {
        if (call.isSet(figuresOption))
            return showFigures(folder);
        Checked checked = call.isSet(rootOption) ? checkInstall(folder) : checkFolder(folder);
        return report(std::move(checked), call, timer.elapsed());
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "course check: %s\n", failure.what());
        return exitFindings;
    }
}

}  // namespace tools
