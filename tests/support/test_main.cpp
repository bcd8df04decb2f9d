// Runs the tests of a room on windows of the offscreen platform, on a screen that every form fits on.

#include "platform/application.h"
#include "platform/look.h"
#include "tests/support/ended_run.h"

#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace {

/// Temporary installs lie in memory where there is room: flushing their many small stores to a disk takes
/// longer than the tests themselves.
void keepTemporaryFilesInMemory() {
    const QString memory = QStringLiteral("/dev/shm");
    constexpr qint64 room = 256LL * 1024 * 1024;
    if (QFileInfo(memory).isWritable() && QStorageInfo(memory).bytesAvailable() >= room)
        qputenv("TMPDIR", memory.toUtf8());
}

}  // namespace

int main(int argc, char** argv) {
    keepTemporaryFilesInMemory();
    QTemporaryDir home;
    const QString screen = home.filePath(QStringLiteral("screen.json"));
    QFile file(screen);
    if (file.open(QIODevice::WriteOnly))
        file.write(
            R"({"synchronousWindowSystemEvents": true, "windowFrameMargins": false, "screens": [{"name": "test",
                      "x": 0, "y": 0, "width": 1280, "height": 1024, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    file.close();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.toUtf8());
    qputenv("XDG_CONFIG_HOME", home.filePath(QStringLiteral("config")).toUtf8());
    qputenv("XDG_DATA_HOME", home.filePath(QStringLiteral("data")).toUtf8());
    qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
    qputenv("SDL_AUDIODRIVER", "dummy");
    qunsetenv("MENDORI_ROOT");

    ::testing::InitGoogleTest(&argc, argv);
    platform::Application application(argc, argv);
    application.onFailure = [](const std::exception& failure) { ADD_FAILURE() << failure.what(); };
    platform::setUpLook();
    const int result = RUN_ALL_TESTS();
    if (support::runHasEnded()) {
        home.remove();
        std::fflush(nullptr);
        std::_Exit(result);
    }
    return result;
}
