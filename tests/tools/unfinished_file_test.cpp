#include "tools/unfinished_file.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

namespace {

using tools::UnfinishedFile;

void write(const QString& name) {
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("half");
}

TEST(UnfinishedFile, GoesAwayWithItsScope) {
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("tovalin.mdb.new"));
    {
        const UnfinishedFile file(name);
        write(name);
    }
    EXPECT_FALSE(QFile::exists(name));
}

TEST(UnfinishedFile, LeavesWhatWasMovedToItsPlace) {
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("tovalin.mdb.new"));
    const QString place = folder.filePath(QStringLiteral("tovalin.mdb"));
    {
        const UnfinishedFile file(name);
        write(name);
        QFile::rename(name, place);
    }
    EXPECT_TRUE(QFile::exists(place));
}

TEST(UnfinishedFile, IsTakenAwayByAnInterruption) {
    const QTemporaryDir folder;
    const QString outer = folder.filePath(QStringLiteral("tovalin.mdb.new"));
    const QString inner = folder.filePath(QStringLiteral("copy.new"));
    EXPECT_EXIT(
        {
            tools::removeUnfinishedOnInterrupt();
            const UnfinishedFile first(outer);
            const UnfinishedFile second(inner);
            write(outer);
            write(inner);
            std::raise(SIGTERM);
        },
        testing::ExitedWithCode(128 + SIGTERM), "");
    EXPECT_FALSE(QFile::exists(outer));
    EXPECT_FALSE(QFile::exists(inner));
}

}  // namespace
