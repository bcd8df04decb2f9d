#include "tools/support/replace_store.h"

#include "tests/support/store.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/wait.h>
#include <unistd.h>
#include <csignal>

using support::TemporaryStore;
using tools::moveIntoPlace;

namespace {

/// A store of so many rows, each filling a good part of a page.
std::string filled(const char* word, int rows) {
    return "create table words(word TEXT); with recursive n(i) as (select 1 union all select i+1 from n "
           "where "
           "i<" +
           std::to_string(rows) + ") insert into words select '" + word + "' || hex(zeroblob(1500)) from n";
}

/// A program is killed while it rewrites every row, and leaves its journal beside the store.
void writeAndDie(const QString& file) {
    const pid_t writer = fork();
    if (writer == 0) {
        SQLite::Database store(file.toStdString(), SQLite::OPEN_READWRITE);
        store.exec("pragma cache_size=1; begin; update words set word='x' || word");
        std::raise(SIGKILL);
    }
    int status = 0;
    waitpid(writer, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status));
    ASSERT_TRUE(QFile::exists(file + "-journal"));
}

}  // namespace

TEST(ReplaceStore, WhatAKilledProgramLeftBehindIsNotPlayedBackIntoTheNewStore) {
    const TemporaryStore older(filled("pear", 40));
    const TemporaryStore newer(filled("fig", 7));
    writeAndDie(older.file());
    moveIntoPlace(newer.file(), older.file());
    EXPECT_EQ(older.rows("pragma integrity_check"), QStringList{"ok"});
    EXPECT_EQ(older.rows("select count(*),substr(min(word),1,3) from words"), QStringList{"7|fig"});
}

TEST(ReplaceStore, AJournalWithoutItsStoreIsNotPlayedBackEither) {
    const TemporaryStore older(filled("pear", 40));
    const TemporaryStore newer(filled("fig", 7));
    writeAndDie(older.file());
    QFile::remove(older.file());
    moveIntoPlace(newer.file(), older.file());
    EXPECT_EQ(older.rows("pragma integrity_check"), QStringList{"ok"});
    EXPECT_EQ(older.rows("select count(*) from words"), QStringList{"7"});
}

TEST(ReplaceStore, AStoreThatIsDamagedGivesItsPlaceAway) {
    const TemporaryStore older(filled("pear", 1));
    const TemporaryStore newer(filled("fig", 7));
    QFile file(older.file());
    ASSERT_TRUE(file.resize(3000));
    moveIntoPlace(newer.file(), older.file());
    EXPECT_EQ(older.rows("select count(*) from words"), QStringList{"7"});
}

TEST(ReplaceStore, AStoreThatCannotBeOpenedForAnotherReasonThanDamageKeepsItsPlace) {
    const TemporaryStore newer(filled("fig", 7));
    const QTemporaryDir folder;
    const QString place = folder.filePath(QStringLiteral("tovalin.mdb"));
    ASSERT_TRUE(QDir().mkpath(place)) << "a folder is no damaged store";
    EXPECT_THROW(moveIntoPlace(newer.file(), place), std::runtime_error);
    EXPECT_TRUE(QFileInfo(place).isDir());
    EXPECT_TRUE(QFile::exists(newer.file()));
}

TEST(ReplaceStore, TheOlderStoreIsKeptBesideTheNewOneWhereAsked) {
    const TemporaryStore older(filled("pear", 1));
    for (const char* expected : {".before-import", ".before-import-2"}) {
        const TemporaryStore newer(filled("fig", 7));
        const QString kept = moveIntoPlace(newer.file(), older.file(), tools::Older::Kept);
        EXPECT_EQ(kept, older.file() + QLatin1String(expected));
    }
    const SQLite::Database kept(older.file().toStdString() + ".before-import", SQLite::OPEN_READONLY);
    SQLite::Statement word(kept, "select count(*) || substr(min(word),1,4) from words");
    ASSERT_TRUE(word.executeStep());
    EXPECT_EQ(word.getColumn(0).getString(), "1pear");
}
