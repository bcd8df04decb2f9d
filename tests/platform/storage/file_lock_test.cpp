#include "platform/storage/file_lock.h"

#include "tests/support/store.h"
#include "tests/support/stranger.h"

#include <QDir>
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

TEST_F(FileLockTest, AFolderInItsPlaceIsTold) {
    QString sentence;
    ASSERT_TRUE(QDir().mkpath(file));
    FileLock lock;
    EXPECT_EQ(support::errorOf([&] { lock.tryTake(file); }, &sentence), 3049);
    EXPECT_TRUE(sentence.contains(file)) << sentence.toStdString();
    ASSERT_TRUE(QDir().rmdir(file));
    EXPECT_TRUE(lock.tryTake(file)) << "once it is gone the lock is made";
}

TEST_F(FileLockTest, AFileThatCannotBeReadIsToldAndDisablesNoLock) {
    QFile made(file);
    ASSERT_TRUE(made.open(QIODevice::WriteOnly));
    made.setPermissions({});
    support::openToOthers(folder.path());
    const support::Stranger stranger;
    if (QFile(file).open(QIODevice::ReadOnly))
        GTEST_SKIP() << "nothing is closed to this user";
    FileLock lock;
    QString sentence;
    EXPECT_EQ(support::errorOf([&] { lock.tryTake(file); }, &sentence), 3049);
    EXPECT_TRUE(sentence.contains(file) && sentence.contains("Permission denied")) << sentence.toStdString();
}
