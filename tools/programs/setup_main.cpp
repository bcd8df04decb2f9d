// Makes an install of the starter course, or of a course of one's own, in a folder that plays the drives.

#include "core/startup.h"
#include "platform/desktop/settings.h"
#include "platform/file_limit.h"
#include "tools/setup/install.h"
#include "tools/support/command_line.h"
#include "tools/support/unfinished_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>

#include <unistd.h>

#include <cstdio>

namespace {

const QString application = QStringLiteral("Mendori");

/// One line that grows: "word sounds 120/432".
void showProgress(const QString& what, int done, int total) {
    static const bool terminal = isatty(STDOUT_FILENO) != 0;
    if (terminal)
        std::printf("\r%-14s %d/%d ", qPrintable(what), done, total);
    if (done == total)
        std::printf(terminal ? "\n" : "%s %d/%d\n", qPrintable(what), done, total);
    std::fflush(stdout);
}

QString folderBeside(const QString& relative) {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u'/' + relative);
}

struct Options {
    QCommandLineOption root{QStringLiteral("root"), QStringLiteral("Folder that plays the drives."),
                            QStringLiteral("folder")};
    QCommandLineOption course{QStringLiteral("course"),
                              QStringLiteral("Folder with the course's text tables."),
                              QStringLiteral("folder"), folderBeside(QStringLiteral("../../../starter"))};
    QCommandLineOption pictures{QStringLiteral("pictures"),
                                QStringLiteral("Folder with the rendered pictures."),
                                QStringLiteral("folder"), folderBeside(QStringLiteral("../pictures"))};
    QCommandLineOption reports{QStringLiteral("reports"), QStringLiteral("Folder with the report templates."),
                               QStringLiteral("folder"), folderBeside(QStringLiteral("../../../reports"))};
    QCommandLineOption userId{QStringLiteral("user-id"), QStringLiteral("Student number."),
                              QStringLiteral("number")};
    QCommandLineOption name{QStringLiteral("name"), QStringLiteral("Name on scores and worksheets."),
                            QStringLiteral("name")};
    QCommandLineOption teacher{QStringLiteral("teacher"), QStringLiteral("Log in as a teacher.")};
    QCommandLineOption guest{QStringLiteral("guest"),
                             QStringLiteral("Where nobody is logged in yet, log in as student 1001.")};
    QCommandLineOption silent{QStringLiteral("no-sounds"), QStringLiteral("Leave the words unspoken.")};
    QCommandLineOption noVideos{QStringLiteral("no-videos"), QStringLiteral("Make no video lessons.")};
};

void writeIdentity(const QString& userId, const QCommandLineParser& parser, const Options& options) {
    platform::UserSettings settings;
    const QString section = QStringLiteral("General Information");
    settings.write(application, section, QStringLiteral("UserID"), userId);
    settings.write(application, section, QStringLiteral("Name"),
                   parser.isSet(options.name) ? parser.value(options.name) : userId);
    settings.write(application, section, QStringLiteral("Teacher"),
                   parser.isSet(options.teacher) ? QStringLiteral("Teacher") : QString());
}

/// The maker of videos draws, which takes a program with fonts; it tells its own progress. A course without
/// videos still runs, so that nothing here stops the set-up.
void makeVideos(const tools::InstallPlan& plan) {
    std::fflush(stdout);
    const QString maker = folderBeside(QStringLiteral("make_videos"));
    if (QProcess::execute(
            maker, {QStringLiteral("--root"), plan.root, QStringLiteral("--course"), plan.courseFolder}) != 0)
        std::fprintf(stderr, "Not all video lessons could be made; the lessons run without them.\n");
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication app(argc, argv);
    platform::ignoreFileLimitSignal();
    QCoreApplication::setApplicationName(QStringLiteral("setup"));
    const Options options;
    tools::CommandLine line(
        QStringLiteral("setup"),
        QStringLiteral("Makes a complete install of a course. Can be run again: no score is ever lost."));
    QCommandLineParser& parser = line.parser();
    parser.addOptions({options.root, options.course, options.pictures, options.reports, options.userId,
                       options.name, options.teacher, options.guest, options.silent, options.noVideos});
    if (const auto status = line.parse(QCoreApplication::arguments().mid(1)))
        return *status;
    if (!parser.positionalArguments().isEmpty())
        return line.wrongCall(
            QStringLiteral("'%1' belongs to no option.").arg(parser.positionalArguments().constFirst()));
    if (!QFileInfo(parser.value(options.course)).isDir())
        return line.wrongCall(QStringLiteral("there is no folder %1.").arg(parser.value(options.course)));

    const platform::UserSettings settings;
    const QString knownUser = settings.read(application, QStringLiteral("General Information"),
                                            QStringLiteral("UserID"), QString());
    tools::InstallPlan plan;
    plan.root = parser.isSet(options.root) ? parser.value(options.root) : core::drivesRoot(settings);
    plan.courseFolder = parser.value(options.course);
    plan.pictureFolder = parser.value(options.pictures);
    plan.reportFolder = parser.value(options.reports);
    QString newUser = parser.value(options.userId);
    if (newUser.isEmpty() && knownUser.isEmpty() && parser.isSet(options.guest))
        newUser = QStringLiteral("1001");
    plan.userId = newUser.isEmpty() ? knownUser : newUser;
    plan.speakWords = !parser.isSet(options.silent);
    plan.progress = showProgress;
    if (const QString problem = tools::folderProblem(plan.root); !problem.isEmpty())
        return line.wrongCall(QStringLiteral("--root: %1").arg(problem));
    if (parser.isSet(options.userId) || !plan.userId.isEmpty())
        if (const QString problem = tools::studentNumberProblem(
                parser.isSet(options.userId) ? parser.value(options.userId) : plan.userId);
            !problem.isEmpty())
            return line.wrongCall(problem);
    tools::removeUnfinishedOnInterrupt();
    try {
        tools::makeInstall(plan);
        if (!newUser.isEmpty())
            writeIdentity(newUser, parser, options);
        if (!parser.isSet(options.noVideos))
            makeVideos(plan);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "\n%s\n", failure.what());
        return 1;
    }
    std::printf("The course is ready in %s\n", qPrintable(plan.root));
    return 0;
}
