// Runs the tests of a room on windows of the offscreen platform, on a screen that every form fits on.

#include "platform/desktop/application.h"
#include "platform/desktop/look.h"
#include "tests/support/ended_run.h"
#include "tools/support/offscreen.h"

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
    tools::useOffscreenDesktop(home.path());
    qputenv("XDG_CONFIG_HOME", home.filePath(QStringLiteral("config")).toUtf8());
    qputenv("XDG_DATA_HOME", home.filePath(QStringLiteral("data")).toUtf8());
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
