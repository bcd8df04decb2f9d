#include "tools/offscreen.h"

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

namespace tools {

namespace {

/// The offscreen desktop tells of things it cannot do that nobody here asked for.
void dropDesktopChatter(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtFatalMsg || type == QtCriticalMsg ||
        !text.startsWith(QStringLiteral("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

}  // namespace

void useOffscreenDesktop() {
    // The folder must last as long as the program.
    static const QTemporaryDir folder;
    const QString screen = folder.filePath(QStringLiteral("screen.json"));
    QFile file(screen);
    if (file.open(QIODevice::WriteOnly))
        file.write(
            R"({"synchronousWindowSystemEvents": true, "windowFrameMargins": false, "screens": [{"name": "tool",
                      "x": 0, "y": 0, "width": 1280, "height": 1024, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    file.close();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.toUtf8());
    qputenv("SDL_AUDIODRIVER", "dummy");
    qputenv("XDG_RUNTIME_DIR", folder.path().toUtf8());
    qInstallMessageHandler(dropDesktopChatter);
}

}  // namespace tools
