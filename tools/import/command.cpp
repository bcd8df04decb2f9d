#include "tools/import/command.h"

#include "core/startup.h"
#include "platform/desktop/settings.h"
#include "tools/access/jet.h"
#include "tools/import/isolated.h"
#include "tools/import/run.h"
#include "tools/support/command_line.h"
#include "tools/support/unfinished_file.h"

#include <QFileInfo>

#include <unistd.h>

#include <cstdio>

namespace tools {

namespace {

constexpr int lineWidth = 78;

/// A line on a terminal that the next one replaces; nothing where the output goes elsewhere.
void showProgress(const QString& line) {
    if (isatty(STDERR_FILENO) == 0)
        return;
    std::fprintf(stderr, "\r%s\r%s", QByteArray(lineWidth, ' ').constData(),
                 qUtf8Printable(line.left(lineWidth)));
    std::fflush(stderr);
}

const QCommandLineOption rootOption(QStringLiteral("root"), QStringLiteral("Folder that plays the drives."),
                                    QStringLiteral("folder"));
const QCommandLineOption dryRunOption(QStringLiteral("dry-run"),
                                      QStringLiteral("Read and prove everything, write nothing."));
const QCommandLineOption salvageOption(QStringLiteral("salvage"),
                                       QStringLiteral("Keep what could be read of a damaged file."));
const QCommandLineOption codePageOption(
    QStringLiteral("code-page"),
    QStringLiteral("Code page of the texts of Access 97 files, where it is not told rightly."),
    QStringLiteral("number"), QStringLiteral("0"));

void addOptions(QCommandLineParser& parser) {
    parser.addOptions({rootOption, dryRunOption, salvageOption, codePageOption});
    parser.addPositionalArgument(QStringLiteral("FROM"),
                                 QStringLiteral("Folder of the existing install, one drive, or one store."));
}

/// The pages that texts can be read in; 0 leaves the choice to the file.
bool isCodePage(const QString& text, int& page) {
    bool number = false;
    page = text.toInt(&number);
    return number && page >= 0 && page <= 65535;
}

}  // namespace

int runImport(const QStringList& args) {
    return runImport(args, {});
}

int runImport(const QStringList& args, const InstallCheck& check) {
    CommandLine line(
        QStringLiteral("course import"),
        QStringLiteral("Brings an existing install over from its Access files, proves each table "
                       "and checks the course. Ends with 0 when everything came over whole and the "
                       "check finds nothing."));
    addOptions(line.parser());
    if (const auto status = line.parse(args))
        return *status;
    const QCommandLineParser& call = line.parser();
    if (call.positionalArguments().size() != 1)
        return line.wrongCall(QStringLiteral("it wants one folder to import from."));
    ImportOptions options;
    options.from = call.positionalArguments().first();
    options.root =
        call.isSet(rootOption) ? call.value(rootOption) : core::drivesRoot(platform::UserSettings());
    options.dryRun = call.isSet(dryRunOption);
    options.salvage = call.isSet(salvageOption);
    if (!isCodePage(call.value(codePageOption), options.codePage))
        return line.wrongCall(QStringLiteral("'%1' is no code page.").arg(call.value(codePageOption)));
    if (const QString problem = folderProblem(options.root); !problem.isEmpty())
        return line.wrongCall(QStringLiteral("--root: %1").arg(problem));
    if (!QFileInfo::exists(options.from))
        return line.wrongCall(QStringLiteral("there is no %1.").arg(options.from));

    removeUnfinishedOnInterrupt();
    QTextStream out(stdout);
    Importer importer(options, isolatedMaker(openJetFile), out, showProgress);
    const bool whole = importer.run();
    int checked = exitFine;
    if (check && importer.wrote()) {
        out << QStringLiteral("\nChecking the course in %1\n").arg(options.root) << Qt::flush;
        checked = check(options.root);
    }
    return whole ? checked : exitFindings;
}

}  // namespace tools
