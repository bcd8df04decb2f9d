#include "platform/application.h"
#include "platform/look.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdio>

int main(int argc, char** argv) {
    const QTemporaryDir home;
    const QString screen = home.filePath(QStringLiteral("screen.json"));
    QFile file(screen);
    if (file.open(QIODevice::WriteOnly))
        file.write(
            R"({"synchronousWindowSystemEvents": true, "windowFrameMargins": false, "screens": [{"name": "bench",
                      "x": 0, "y": 0, "width": 1280, "height": 1024, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    file.close();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.toUtf8());
    qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
    qputenv("SDL_AUDIODRIVER", "dummy");
    platform::Application application(argc, argv);
    application.onFailure = [](const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
    };
    platform::setUpLook();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
