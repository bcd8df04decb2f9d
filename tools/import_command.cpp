#include "tools/import_command.h"

#include "core/startup.h"
#include "platform/settings.h"
#include "tools/import_isolated.h"
#include "tools/import_jet.h"
#include "tools/import_run.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <unistd.h>

#include <cstdio>

namespace tools {

namespace {

constexpr int success = 0;
constexpr int incomplete = 1;
constexpr int wrongCall = 2;
constexpr int lineWidth = 78;

/// A line on a terminal that the next one replaces; nothing where the output goes elsewhere.
void showProgress(const QString& line) {
    if (isatty(STDERR_FILENO) == 0)
        return;
    std::fprintf(stderr, "\r%s\r%s", QByteArray(lineWidth, ' ').constData(),
                 qUtf8Printable(line.left(lineWidth)));
    std::fflush(stderr);
}

struct Call {
    QCommandLineParser parser;
    QCommandLineOption root{QStringLiteral("root"), QStringLiteral("Folder that plays the drives."),
                            QStringLiteral("folder")};
    QCommandLineOption dryRun{QStringLiteral("dry-run"),
                              QStringLiteral("Read and prove everything, write nothing.")};
    QCommandLineOption salvage{QStringLiteral("salvage"),
                               QStringLiteral("Keep what could be read of a damaged file.")};
    QCommandLineOption codePage{
        QStringLiteral("code-page"),
        QStringLiteral("Code page of the texts of Access 97 files, where it is not told rightly."),
        QStringLiteral("number"), QStringLiteral("0")};

    Call() {
        parser.setApplicationDescription(
            QStringLiteral("Brings an existing install over from its Access files."));
        parser.addHelpOption();
        parser.addPositionalArgument(QStringLiteral("FROM"),
                                     QStringLiteral("Folder of the existing install."));
        parser.addOptions({root, dryRun, salvage, codePage});
    }
};

int refuse(const QString& sentence) {
    std::fprintf(stderr, "course import: %s\n", qUtf8Printable(sentence));
    return wrongCall;
}

}  // namespace

int runImport(const QStringList& args) {
    return runImport(args, {});
}

int runImport(const QStringList& args, const InstallCheck& check) {
    Call call;
    if (!call.parser.parse(QStringList{QStringLiteral("course import")} + args))
        return refuse(call.parser.errorText());
    if (call.parser.isSet(QStringLiteral("help"))) {
        QString help = call.parser.helpText();
        help.replace(0, help.indexOf(u'\n'), QStringLiteral("Usage: course import FROM [options]"));
        std::printf("%s", qUtf8Printable(help));
        return success;
    }
    if (call.parser.positionalArguments().size() != 1)
        return refuse(QStringLiteral("one folder to import from is needed."));
    ImportOptions options;
    options.from = call.parser.positionalArguments().first();
    options.root = call.parser.isSet(call.root) ? call.parser.value(call.root)
                                                : core::drivesRoot(platform::UserSettings());
    options.dryRun = call.parser.isSet(call.dryRun);
    options.salvage = call.parser.isSet(call.salvage);
    bool number = false;
    options.codePage = call.parser.value(call.codePage).toInt(&number);
    if (!number || options.codePage < 0)
        return refuse(QStringLiteral("'%1' is no code page.").arg(call.parser.value(call.codePage)));
    if (!QFileInfo::exists(options.from))
        return refuse(QStringLiteral("there is no '%1'.").arg(options.from));

    QTextStream out(stdout);
    const bool whole = Importer(options, isolatedMaker(openJetFile), out, showProgress).run();
    int checked = success;
    if (check && !options.dryRun) {
        out << QStringLiteral("\nChecking the course in %1\n").arg(options.root) << Qt::flush;
        checked = check(options.root);
    }
    return whole ? checked : incomplete;
}

}  // namespace tools
