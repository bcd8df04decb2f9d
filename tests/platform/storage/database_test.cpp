#include "platform/storage/database.h"
#include "platform/storage/store_errors.h"

#include "platform/storage/query.h"
#include "tests/platform/storage/two_words.h"
#include "tests/support/stranger.h"

#include <QFile>

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using platform::Database;
using platform::StoreFormat;
using platform::Transaction;
using support::errorOf;
using support::TemporaryStore;
using two_words::add;
using two_words::twoWords;

namespace {

class BrokenStore : public testing::Test {
   protected:
    QTemporaryDir folder;
    QString file = folder.filePath(QStringLiteral("tovalin.mdb"));
    QString sentence;

    void write(const QByteArray& bytes) const {
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(bytes);
    }
    QByteArray content() const {
        QFile in(file);
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
    }
    int openError() {
        return errorOf([&] { Database::open(file, QStringLiteral("D:\\tovalin.mdb")); }, &sentence);
    }
};

}  // namespace

TEST_F(BrokenStore, AMissingStoreIsNamed) {
    EXPECT_EQ(openError(), 3024);
    EXPECT_TRUE(sentence.contains("'D:\\tovalin.mdb'"));
    EXPECT_FALSE(QFile::exists(file)) << "opening makes no store";
}

TEST_F(BrokenStore, AFolderUnderTheNameIsNoStore) {
    QDir().mkpath(file);
    EXPECT_EQ(openError(), 3024);
    EXPECT_TRUE(sentence.contains("'D:\\tovalin.mdb' is a folder")) << sentence.toStdString();
}

TEST_F(BrokenStore, AnEmptyFileIsToldAsDamaged) {
    write({});
    EXPECT_EQ(openError(), 3343);
    EXPECT_TRUE(sentence.contains("'D:\\tovalin.mdb' is damaged"));
}

TEST_F(BrokenStore, AnyOtherFileIsToldAsDamagedAndStaysAsItIs) {
    write("once upon a time there was a text file");
    EXPECT_EQ(openError(), 3343);
    EXPECT_EQ(content(), "once upon a time there was a text file");
}

TEST_F(BrokenStore, AGenuineAccessFileIsRefusedWithTheImportToolAndStaysAsItIs) {
    for (const char* engine : {"Standard Jet DB", "Standard ACE DB"}) {
        const QByteArray bytes = QByteArray("\x00\x01\x00\x00", 4) + engine + QByteArray(200, 'x');
        write(bytes);
        EXPECT_EQ(platform::storeFormat(file), StoreFormat::AccessFile);
        EXPECT_EQ(openError(), 3343);
        EXPECT_TRUE(sentence.contains("genuine Access file") && sentence.contains("course import"));
        EXPECT_EQ(content(), bytes);
    }
}

TEST_F(BrokenStore, AStoreWithAGoodHeadAndABrokenBodyIsToldAsDamaged) {
    write("SQLite format 3" + QByteArray(1, '\0') + QByteArray(4000, 'x'));
    const int code = errorOf(
        [&] {
            const Database database = Database::open(file, QStringLiteral("D:\\tovalin.mdb"));
            database.openRecordset(QStringLiteral("Select * from words"));
        },
        &sentence);
    EXPECT_EQ(code, 3343);
    EXPECT_TRUE(sentence.contains("'D:\\tovalin.mdb' is damaged"));
}

TEST(Database, ATableThatTheStoreLacksIsNamed) {
    const TemporaryStore store(twoWords);
    QString sentence;
    EXPECT_EQ(errorOf([&] { store.open().openRecordset("Select * from fruit"); }, &sentence), 3078);
    EXPECT_TRUE(sentence.contains("D:\\tovalin.mdb") && sentence.contains("'fruit'"));
}

TEST(Database, AFieldThatAQueryNamesAndTheTableLacksIsAnError) {
    const TemporaryStore store(twoWords);
    EXPECT_EQ(errorOf([&] { store.open().openRecordset("Select * from words where colour=3"); }), 3265);
    EXPECT_EQ(errorOf([&] { store.open().openRecordset("Select * from words order by colour"); }), 3265);
}

TEST(Database, TableNamesAreFoundInAnyCase) {
    const TemporaryStore store(twoWords);
    EXPECT_EQ(store.open().openRecordset("Select * from WORDS").text("word"), "pear");
}

TEST(Database, AHandleLetsItsFileGoWhenItCloses) {
    const TemporaryStore store(twoWords);
    Database database = store.open();
    platform::Recordset set = database.openRecordset("Select * from words");
    set.close();
    database.close();
    QFile::remove(store.file());
    SQLite::Database made(store.file().toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    made.exec("create table words(word TEXT); insert into words values('new')");
    EXPECT_EQ(store.open().openRecordset("Select * from words").text("word"), "new");
}

TEST(Database, AnEditThatTheStoreRefusesIsToldWithTheReason) {
    const TemporaryStore store(twoWords);
    const Database holder = store.open();
    SQLite::Database other(store.file().toStdString(), SQLite::OPEN_READWRITE);
    other.exec("create trigger guard before update on words begin select raise(abort, 'kept as it is'); end");
    platform::Recordset set = holder.openRecordset("Select * from words");
    set.edit();
    set.set("word", "plum");
    QString sentence;
    EXPECT_EQ(errorOf([&] { set.update(); }, &sentence), 3049);
    EXPECT_TRUE(sentence.contains("kept as it is"));
}

TEST_F(BrokenStore, AStoreThatMayNotBeReadIsNotToldAsMissing) {
    write("SQLite format 3");
    QFile::setPermissions(file, {});
    support::openToOthers(folder.path());
    const support::Stranger stranger;
    if (QFile opened(file); opened.open(QIODevice::ReadOnly))
        GTEST_SKIP() << "nothing is closed to this user";
    EXPECT_EQ(openError(), 3049);
    EXPECT_TRUE(sentence.startsWith("'D:\\tovalin.mdb' cannot be opened: ")) << sentence.toStdString();
}

TEST(Database, OpeningAStoreAgainKeepsTheLocksThatARunOfEditsHolds) {
    const TemporaryStore store(twoWords);
    const Database database = store.open();
    const Transaction transaction(database);
    const Database again = store.open();
    const pid_t onlooker = fork();
    if (onlooker == 0) {
        // The byte that the engine locks for whoever is about to write.
        struct flock lock {};
        lock.l_type = F_WRLCK;
        lock.l_whence = SEEK_SET;
        lock.l_start = 0x40000001;
        lock.l_len = 1;
        const int file = open(store.file().toLocal8Bit().constData(), O_RDWR);
        fcntl(file, F_GETLK, &lock);
        _exit(lock.l_type == F_UNLCK ? 1 : 0);
    }
    int status = 0;
    waitpid(onlooker, &status, 0);
    EXPECT_EQ(WEXITSTATUS(status), 0) << "another program could write into the middle of the run";
}

TEST(Database, AFieldThatAConditionOrAnOrderMissesIsToldWithItsTableAndStore) {
    const TemporaryStore store(twoWords);
    const Database database = store.open();
    for (const char* sql : {"Select * from words where page=1", "Select * from words order by page"}) {
        QString sentence;
        EXPECT_EQ(errorOf([&] { database.openRecordset(QLatin1String(sql)); }, &sentence), 3265);
        EXPECT_EQ(sentence, "There is no field 'page' in table 'words' of 'D:\\tovalin.mdb'.");
    }
    auto rows = database.openRecordset(QStringLiteral("Select * from words"));
    QString sentence;
    EXPECT_EQ(errorOf([&] { rows.findFirst(QStringLiteral("page=1")); }, &sentence), 3265);
    EXPECT_EQ(sentence, "There is no field 'page' in table 'words' of 'D:\\tovalin.mdb'.");
}

TEST(Database, AStoreThatWasReplacedWhileItWasInUseIsToldAsSuch) {
    const TemporaryStore store(twoWords);
    const TemporaryStore newer(twoWords);
    const Database database = store.open();
    auto rows = database.openRecordset(QStringLiteral("Select * from words"));
    ASSERT_EQ(std::rename(newer.file().toLocal8Bit().constData(), store.file().toLocal8Bit().constData()), 0);
    QString sentence;
    EXPECT_EQ(errorOf(
                  [&] {
                      rows.edit();
                      rows.set(QStringLiteral("word"), QStringLiteral("plum"));
                      rows.update();
                  },
                  &sentence),
              3049);
    EXPECT_EQ(sentence, "'D:\\tovalin.mdb' was replaced while it was in use. Start the program again.");
}

TEST_F(BrokenStore, AFolderThatIsClosedOrIsAFileIsNotToldAsAMissingStore) {
    QDir().mkpath(folder.filePath("main"));
    file = folder.filePath("main/tovalin.mdb");
    write("SQLite format 3");
    support::openToOthers(folder.path());
    QFile::setPermissions(folder.filePath("main"), {});
    {
        const support::Stranger stranger;
        if (!QFile(file).open(QIODevice::ReadOnly)) {
            EXPECT_EQ(openError(), 3049);
            EXPECT_EQ(sentence, "'D:\\tovalin.mdb' cannot be reached: the folder '" +
                                    folder.filePath("main") + "' is closed to you. Let its owner open it.");
        }
    }
    file = folder.filePath("course/tovalin.mdb");
    QFile plain(folder.filePath("course"));
    ASSERT_TRUE(plain.open(QIODevice::WriteOnly));
    EXPECT_EQ(openError(), 3024);
    EXPECT_TRUE(sentence.contains("course' is a file and no folder")) << sentence.toStdString();
}

TEST_F(BrokenStore, DamageIsToldWhenTheStoreOpensAndNothingIsWrittenToIt) {
    {
        SQLite::Database made(file.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        made.exec(
            "create table words(word TEXT); create index by_word on words(word);"
            "with recursive n(i) as (select 1 union all select i+1 from n where i<400) "
            "insert into words select 'word' || i from n");
    }
    QByteArray bytes = content();
    ASSERT_GT(bytes.size(), 4 * 4096);
    bytes.replace(3 * 4096, 4096, QByteArray(4096, '\0'));
    write(bytes);
    EXPECT_EQ(openError(), 3343);
    EXPECT_TRUE(sentence.startsWith("'D:\\tovalin.mdb' is damaged (") && sentence.contains(file))
        << sentence.toStdString();
    EXPECT_EQ(openError(), 3343) << "a store is sound only once it was found so";
    EXPECT_EQ(content(), bytes);
}

TEST_F(BrokenStore, AnIndexThatDoesNotFitItsTableIsDamage) {
    {
        SQLite::Database made(file.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        made.exec(
            "create table words(word TEXT); create index by_word on words(word);"
            "insert into words values('pear'),('fig')");
    }
    QByteArray bytes = content();
    const qsizetype inTable = bytes.indexOf("pear");
    ASSERT_GT(inTable, 0);
    bytes[inTable] = 'b';
    write(bytes);
    EXPECT_EQ(openError(), 3343);
}

TEST(Database, AStoreThatSortsByRulesOfItsOwnIsNoSyntaxError) {
    const TemporaryStore store("create table words(word TEXT COLLATE NOCASE)");
    {
        SQLite::Database other(store.file().toStdString(), SQLite::OPEN_READWRITE);
        other.exec(
            "pragma writable_schema=on; update sqlite_master set sql='create table words(word TEXT COLLATE "
            "KOREAN)'");
    }
    QString sentence;
    EXPECT_EQ(errorOf([&] { store.open().openRecordset("Select * from words where word='a' order by word"); },
                      &sentence),
              3343);
    EXPECT_TRUE(sentence.contains("D:\\tovalin.mdb") && sentence.contains("KOREAN"))
        << sentence.toStdString();
}

TEST(Database, AStoreOfSomebodyElseIsToldWithItsOwnerAndWhatToDo) {
    const TemporaryStore store(twoWords);
    support::openToOthers(QFileInfo(store.file()).path());
    const support::Stranger stranger;
    const Database database = store.open();
    if (QFile(store.file()).open(QIODevice::ReadWrite))
        GTEST_SKIP() << "nothing is closed to this user";
    QString sentence;
    EXPECT_EQ(errorOf([&] { database.requireWritable(); }, &sentence), 3049);
    EXPECT_TRUE(sentence.startsWith("'D:\\tovalin.mdb' cannot be written: the file belongs to '"))
        << sentence.toStdString();
    EXPECT_TRUE(sentence.contains("setup"));
    EXPECT_EQ(errorOf([&] { add(database, "plum"); }), 3049);
}

TEST(Database, AFolderThatTakesNoJournalIsFoundBeforeAnythingIsWritten) {
    const TemporaryStore store(twoWords);
    const QString folder = QFileInfo(store.file()).path();
    support::openToOthers(folder);
    ASSERT_EQ(chmod(QFile::encodeName(store.file()).constData(), 0666), 0);
    const support::Stranger stranger;
    if (QFile(folder + "/new").open(QIODevice::WriteOnly))
        GTEST_SKIP() << "nothing is closed to this user";
    QString sentence;
    EXPECT_EQ(errorOf([&] { store.open().requireWritable(); }, &sentence), 3049);
    EXPECT_TRUE(sentence.contains("its folder belongs to '")) << sentence.toStdString();
}

TEST(Database, TryingToWriteChangesNothing) {
    const TemporaryStore store(twoWords);
    QFile file(store.file());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    file.close();
    const Database database = store.open();
    database.requireWritable();
    EXPECT_FALSE(QFile::exists(store.file() + "-journal"));
    add(database, "plum");
    EXPECT_EQ(store.rows("select count(*) from words"), QStringList{"3"});
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(store.rows("pragma user_version"), QStringList{"0"});
    EXPECT_EQ(file.readAll().size(), before.size());
}

TEST(Database, AnIndexInTheEnginesOwnOrderOfLettersIsNoDamageAndIsPutRight) {
    const TemporaryStore store(
        "create table words(word TEXT COLLATE NOCASE); create index by_word on words(word);"
        "insert into words values('\u00C9z'),('\u00E9a'),('\u00C9c'),('zoo'),('\u00E9b'),('\u00C9d')");
    const Database database = store.open();
    for (const char* word : {"\u00E9z", "\u00C9A", "\u00E9c", "\u00C9B", "\u00E9d"}) {
        const auto rows = database.openRecordset(
            QStringLiteral("Select * from words where word='%1'").arg(QString::fromUtf8(word)));
        EXPECT_FALSE(rows.isEmpty()) << word;
    }
}
