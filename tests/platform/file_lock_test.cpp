#include "platform/file_lock.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>
#include <csignal>

using platform::FileLock;

namespace {

class FileLockTest : public testing::Test {
   protected:
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("mendori.lock"));
};

}  // namespace

TEST_F(FileLockTest, OneHoldsItAtATime) {
    FileLock second;
    {
        FileLock first;
        EXPECT_TRUE(first.tryTake(file));
        EXPECT_TRUE(first.tryTake(file)) << "whoever holds it keeps it";
        EXPECT_FALSE(second.tryTake(file));
    }
    EXPECT_TRUE(second.tryTake(file));
}

TEST_F(FileLockTest, AKilledHolderGivesItBack) {
    const pid_t holder = fork();
    if (holder == 0) {
        FileLock lock;
        if (lock.tryTake(file))
            std::raise(SIGKILL);
        _exit(1);
    }
    int status = 0;
    waitpid(holder, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status));
    FileLock lock;
    EXPECT_TRUE(lock.tryTake(file));
}

TEST_F(FileLockTest, WhereNoneCanBeMadeThereIsNoneToWaitFor) {
    FileLock lock;
    EXPECT_TRUE(lock.tryTake(folder.filePath(QStringLiteral("nowhere/mendori.lock"))));
}
