#include "tools/setup/build_command.h"

#include "tools/setup/install.h"
#include "tools/support/command_line.h"
#include "tools/support/unfinished_file.h"

#include <QElapsedTimer>
#include <QFileInfo>

#include <cstdio>

namespace tools {

namespace {

const QCommandLineOption rootOption(QStringLiteral("root"),
                                    QStringLiteral("The install to make or to bring up to date."),
                                    QStringLiteral("folder"));

int build(const InstallPlan& plan) {
    QElapsedTimer timer;
    timer.start();
    const BuiltStores stores = makeStores(plan);
    std::printf("%d rows in %d stores below %s (%lld ms)\n", stores.rows, stores.stores,
                qUtf8Printable(plan.root), static_cast<long long>(timer.elapsed()));
    if (stores.warnings > 0)
        std::printf("%d warning%s; course check tells them.\n", stores.warnings,
                    stores.warnings == 1 ? "" : "s");
    return exitFine;
}

}  // namespace

int runBuild(const QStringList& arguments) {
    CommandLine line(
        QStringLiteral("course build"),
        QStringLiteral(
            "Makes the stores of an install from a course's text tables, without pictures, sounds and "
            "videos. A table with an error stops the build, and nothing is changed then. No score "
            "of a learner is ever lost."));
    QCommandLineParser& call = line.parser();
    call.addOption(rootOption);
    call.addPositionalArgument(QStringLiteral("folder"),
                               QStringLiteral("The course's text tables; the starter course without it."),
                               QStringLiteral("[folder]"));
    if (const auto status = line.parse(arguments))
        return *status;
    if (!call.isSet(rootOption) || call.positionalArguments().size() > 1)
        return line.wrongCall(QStringLiteral("it wants one course and --root FOLDER."));
    InstallPlan plan;
    plan.root = call.value(rootOption);
    plan.courseFolder = call.positionalArguments().value(0, starterFolder());
    if (const QString problem = folderProblem(plan.root); !problem.isEmpty())
        return line.wrongCall(QStringLiteral("--root: %1").arg(problem));
    if (!QFileInfo(plan.courseFolder).isDir())
        return line.wrongCall(QStringLiteral("there is no folder %1.").arg(plan.courseFolder));
    removeUnfinishedOnInterrupt();
    try {
        return build(plan);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "course build: %s\n", failure.what());
        return exitFindings;
    }
}

}  // namespace tools
