// Makes the videos of a course out of its units' tips.

#include "core/startup.h"
#include "platform/desktop/settings.h"
#include "platform/file_limit.h"
#include "tools/media/video_maker.h"
#include "tools/media/video_texts.h"
#include "tools/support/command_line.h"

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>

#include <cstdio>

namespace {

void showProgress(const QString& what, int done, int total) {
    std::printf("videos %d/%d  %s\n", done, total, qPrintable(what));
    std::fflush(stdout);
}

/// The media folder of an install: on the drive that holds the course, whose marker set-up put there.
QString videoFolder(const QString& root) {
    const platform::Drives drives(root);
    for (const char* drive : {"C:", "D:", "E:", "F:", "G:", "H:"})
        if (drives.fileLength(QLatin1String(drive) + QStringLiteral("\\A_Mendori\\ABCPicture\\Mendori.jpg")) >
            0)
            return drives.resolve(QLatin1String(drive) +
                                  QStringLiteral("\\A_Mendori\\Mendori_Program\\Tovalin1_Video"));
    return drives.resolve(QStringLiteral("D:\\A_Mendori\\Mendori_Program\\Tovalin1_Video"));
}

}  // namespace

int main(int argc, char** argv) {
    // Slides are drawn without a window, on machines without a desktop too.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    platform::ignoreFileLimitSignal();
    QGuiApplication::setApplicationName(QStringLiteral("make_videos"));
    const QCommandLineOption root(QStringLiteral("root"), QStringLiteral("Folder that plays the drives."),
                                  QStringLiteral("folder"));
    const QCommandLineOption course(
        QStringLiteral("course"), QStringLiteral("Folder with the course's text tables."),
        QStringLiteral("folder"),
        QDir::cleanPath(QGuiApplication::applicationDirPath() + QStringLiteral("/../../../starter")));
    const QCommandLineOption folder(QStringLiteral("folder"),
                                    QStringLiteral("Folder for the videos instead of the install's."),
                                    QStringLiteral("folder"));
    const QCommandLineOption only(QStringLiteral("only"), QStringLiteral("Make this video alone."),
                                  QStringLiteral("number"));
    const QCommandLineOption all(QStringLiteral("all"),
                                 QStringLiteral("Make also those whose text has not changed."));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Makes a video lesson for each unit of a course out of its tips. Videos of your own "
                       "are left alone."));
    parser.addHelpOption();
    parser.addOptions({root, course, folder, only, all});
    parser.process(app);

    const platform::UserSettings settings;
    const QString drives = parser.isSet(root) ? parser.value(root) : core::drivesRoot(settings);
    if (const QString problem = tools::folderProblem(parser.isSet(folder) ? parser.value(folder) : drives);
        !problem.isEmpty()) {
        std::fprintf(stderr, "make_videos: %s\n", qPrintable(problem));
        return tools::exitWrongCall;
    }
    tools::VideoPlan plan;
    plan.folder = parser.isSet(folder) ? parser.value(folder) : videoFolder(drives);
    plan.makeAll = parser.isSet(all);
    plan.progress = showProgress;
    try {
        std::vector<tools::VideoText> texts = tools::videoTexts(tools::readCourse(parser.value(course)));
        if (parser.isSet(only))
            std::erase_if(texts,
                          [&](const tools::VideoText& t) { return t.number != parser.value(only).toInt(); });
        const tools::VideoReport report = tools::makeVideos(texts, plan);
        std::printf("%d videos made, %d kept, in %s\n", report.made, report.kept, qPrintable(plan.folder));
        if (report.silent && report.made > 0)
            std::printf("They are silent: neither flite nor espeak-ng is installed.\n");
        else if (report.silentKorean && report.made > 0)
            std::printf("Their explanations are not spoken: espeak-ng is not installed.\n");
        for (const QString& failure : report.failures)
            std::fprintf(stderr, "%s\n", qPrintable(failure));
        return report.failures.isEmpty() ? 0 : 1;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
