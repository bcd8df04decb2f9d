// The guided tour: the real program, walked by real events through a learner's first steps, with a picture
// of every screen left behind. It plays on an install of its own and touches nobody's scores.

#include "platform/desktop/application.h"
#include "platform/desktop/look.h"
#include "tools/media/video_maker.h"
#include "tools/media/video_texts.h"
#include "tools/setup/install.h"
#include "tools/support/offscreen.h"
#include "tools/tour/guide.h"

#include <QCommandLineParser>
#include <QTemporaryDir>

#include <cstdio>

namespace {

/// The tour plays the first video alone, so only that one is made.
void makeFirstVideo(const tools::InstallPlan& plan) {
    auto texts = tools::videoTexts(tools::readCourse(plan.courseFolder));
    std::erase_if(texts, [](const tools::VideoText& text) { return text.number != 1; });
    tools::VideoPlan video;
    video.folder = plan.root + QStringLiteral("/D/A_Mendori/Mendori_Program/Tovalin1_Video");
    tools::makeVideos(texts, video);
}

void walk(const QString& pictureFolder) {
    app::Program program;
    if (!program.start())
        throw std::runtime_error("Nobody is logged in.");
    tools::TourGuide guide(program, pictureFolder);
    for (const tools::TourChapter& chapter : tools::tourChapters()) {
        std::printf("%s\n", chapter.name);
        chapter.walk(guide);
    }
    std::printf("%d pictures are in %s\n", guide.pictureCount(), qPrintable(pictureFolder));
}

}  // namespace

int main(int argc, char** argv) {
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.filePath(QStringLiteral("config")).toUtf8());
    qputenv("MENDORI_ROOT", home.filePath(QStringLiteral("install")).toUtf8());
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        tools::useOffscreenDesktop(home.path(), QSize(1280, 800));
    platform::Application application(argc, argv);
    application.onFailure = [](const std::exception& failure) {
        std::fprintf(stderr, "%s\n", qPrintable(platform::failureText(failure)));
        std::_Exit(1);
    };
    platform::setUpLook();

    const QString beside = QCoreApplication::applicationDirPath();
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Plays the guided tour and leaves pictures behind."));
    parser.addHelpOption();
    const QCommandLineOption pictures(QStringLiteral("pictures"), QStringLiteral("Folder for the pictures."),
                                      QStringLiteral("folder"), QStringLiteral("tour"));
    const QCommandLineOption source(QStringLiteral("source"),
                                    QStringLiteral("The checkout, for course and reports."),
                                    QStringLiteral("folder"), beside + QStringLiteral("/../../.."));
    parser.addOptions({pictures, source});
    parser.process(application);

    tools::InstallPlan plan;
    plan.root = home.filePath(QStringLiteral("install"));
    plan.courseFolder = QDir::cleanPath(parser.value(source) + QStringLiteral("/starter"));
    plan.pictureFolder = QDir::cleanPath(beside + QStringLiteral("/../pictures"));
    plan.reportFolder = QDir::cleanPath(parser.value(source) + QStringLiteral("/reports"));
    plan.userId = QStringLiteral("1001");
    plan.speakWords = false;
    try {
        tools::makeInstall(plan);
        makeFirstVideo(plan);
        platform::UserSettings().write(QStringLiteral("Mendori"), QStringLiteral("General Information"),
                                       QStringLiteral("UserID"), plan.userId);
        platform::UserSettings().write(QStringLiteral("Mendori"), QStringLiteral("General Information"),
                                       QStringLiteral("Name"), QStringLiteral("김하늘"));
        walk(parser.value(pictures));
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
    return 0;
}
