// The tools of a course under one name: course build, course check, course import …

#include "platform/desktop/application.h"
#include "platform/file_limit.h"
#include "tools/check/command.h"
#include "tools/export/command.h"
#include "tools/import/command.h"
#include "tools/play/command.h"
#include "tools/setup/build_command.h"
#include "tools/support/offscreen.h"

#include <QTemporaryDir>

#include <array>
#include <cstdio>
#include <memory>

namespace {

struct Subcommand {
    const char* name;
    const char* purpose;
    int (*run)(const QStringList& args);
    bool draws;  // needs fonts, though no window of the desktop
};

/// An import ends with the check of what it made.
int importAndCheck(const QStringList& args) {
    return tools::runImport(args, [](const QString& root) {
        return tools::runCheck({QStringLiteral("--root"), root});
    });
}

constexpr std::array subcommands{
    Subcommand{"build", "make the stores of an install from a course's text tables", tools::runBuild, false},
    Subcommand{"check", "hold a course against every demand of the screens", tools::runCheck, false},
    Subcommand{"import", "bring an existing install over from its Access files", importAndCheck, false},
    Subcommand{"export-scores", "give the scores of learners as a table and as a printable page",
               tools::runExportScores, true},
    Subcommand{"play", "play every step through the real screens and tell the scores", tools::runPlay, true},
};

int showUsage(std::FILE* stream, int status) {
    std::fprintf(stream, "Usage: course COMMAND [options]\n\n");
    for (const Subcommand& command : subcommands)
        std::fprintf(stream, "  %-14s %s\n", command.name, command.purpose);
    std::fprintf(stream, "\ncourse COMMAND --help tells the options of a command.\n");
    return status;
}

std::unique_ptr<QCoreApplication> makeApplication(const Subcommand& command, int& argc, char** argv) {
    if (!command.draws)
        return std::make_unique<QCoreApplication>(argc, argv);
    static const QTemporaryDir folder;  // lasts as long as the desktop
    tools::useOffscreenDesktop(folder.path());
    return std::make_unique<platform::Application>(argc, argv);
}

}  // namespace

int main(int argc, char** argv) {
    platform::ignoreFileLimitSignal();
    const QByteArray name = argc > 1 ? argv[1] : "";
    if (name.isEmpty() || name == "--help" || name == "-h")
        return showUsage(name.isEmpty() ? stderr : stdout, name.isEmpty() ? 2 : 0);
    for (const Subcommand& command : subcommands)
        if (name == command.name) {
            const auto application = makeApplication(command, argc, argv);
            return command.run(QCoreApplication::arguments().mid(2));
        }
    std::fprintf(stderr, "course: there is no command '%s'.\n\n", name.constData());
    return showUsage(stderr, 2);
}
