#include "tools/support/unfinished_file.h"

#include <QDir>
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

TEST(UnfinishedFile, TakesTheJournalBesideItAlong) {
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("tovalin.mdb.new"));
    const QString journal = name + QStringLiteral("-journal");
    {
        const UnfinishedFile file(name);
        write(journal);
    }
    EXPECT_FALSE(QFile::exists(journal));
    EXPECT_EXIT(
        {
            tools::removeUnfinishedOnInterrupt();
            const UnfinishedFile file(name);
            write(name);
            write(journal);
            std::raise(SIGTERM);
        },
        testing::ExitedWithCode(128 + SIGTERM), "");
    EXPECT_FALSE(QFile::exists(journal));
}

TEST(UnfinishedFile, OfAKilledToolIsSweptAndNothingElseIs) {
    const QTemporaryDir folder;
    QDir(folder.path()).mkpath(QStringLiteral("D"));
    for (const char* name : {"D/tovalin.mdb.new", "D/tovalin.mdb.new-journal", "D/tovalin.mdb", "D/mine.new",
                             "D/tovalin.mdb-journal"})
        write(folder.filePath(QLatin1String(name)));
    tools::sweepUnfinishedStores(folder.path());
    EXPECT_EQ(QDir(folder.filePath(QStringLiteral("D"))).entryList(QDir::Files),
              (QStringList{"mine.new", "tovalin.mdb", "tovalin.mdb-journal"}));
}

}  // namespace
