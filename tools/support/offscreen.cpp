#include "tools/support/offscreen.h"

#include <QByteArray>
#include <QFile>

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

void useOffscreenDesktop(const QString& folder, QSize screen) {
    const QString settings = folder + QStringLiteral("/screen.json");
    QFile file(settings);
    if (file.open(QIODevice::WriteOnly))
        file.write(QStringLiteral(R"({"synchronousWindowSystemEvents": true, "windowFrameMargins": false,
            "screens": [{"name": "memory", "x": 0, "y": 0, "width": %1, "height": %2, "logicalDpi": 96,
                         "logicalBaseDpi": 96, "dpr": 1}]})")
                       .arg(screen.width())
                       .arg(screen.height())
                       .toUtf8());
    file.close();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + settings.toUtf8());
    qputenv("SDL_AUDIODRIVER", "dummy");
    qputenv("XDG_RUNTIME_DIR", folder.toUtf8());
    qInstallMessageHandler(dropDesktopChatter);
}

}  // namespace tools
