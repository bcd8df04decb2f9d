#include "tests/tools/import/fake.h"

#include "tools/import/command.h"
#include "tools/import/run.h"

#include <QDirIterator>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

using namespace tools;
using namespace import_test;

/// An old install of stubs, whose tables a test makes.
class ImportRun : public ::testing::Test {
   protected:
    void SetUp() override {
        writeAccessStub(from_.filePath(QStringLiteral("D/tovalin.mdb")));
        tables_[QStringLiteral("tovalin.mdb")] = {newWords()};
    }

    void addScores(std::vector<SourceRow> rows) {
        writeAccessStub(from_.filePath(QStringLiteral("C/A_Mendori/Main/DbScore_1001.mdb")));
        FakeTable table = scores(std::move(rows));
        for (const core::FieldShape& field : core::findTable("DbScore", "score")->fields) {
            const QString name =
                QString::fromUtf8(field.name.data(), static_cast<qsizetype>(field.name.size()));
            const bool there = std::any_of(table.shape.columns.begin(), table.shape.columns.end(),
                                           [&](const SourceColumn& c) { return c.name == name; });
            if (!there)
                table.shape.columns.push_back({name, SourceType::Text, 10});
        }
        tables_[QStringLiteral("DbScore_1001.mdb")] = {table};
    }

    bool import(bool dryRun = false, bool salvage = false) {
        ImportOptions options;
        options.from = from_.path();
        options.root = root();
        options.dryRun = dryRun;
        options.salvage = salvage;
        report_.clear();
        QTextStream out(&report_);
        Importer importer(
            options,
            [this](const QString& file, int) {
                return std::make_unique<FakeReader>(tables_.at(QFileInfo(file).fileName()));
            },
            out, [](const QString&) {});
        const bool whole = importer.run();
        problems_ = importer.problems();
        wrote_ = importer.wrote();
        return whole;
    }

    QString root() const { return to_.filePath(QStringLiteral("root")); }
    QString target(const QString& path) const { return root() + u'/' + path; }

    static QString ask(const QString& file, const char* sql) {
        SQLite::Database store(file.toStdString(), SQLite::OPEN_READONLY);
        SQLite::Statement query(store, sql);
        return query.executeStep() ? QString::fromUtf8(query.getColumn(0).getText()) : QString();
    }

    QStringList filesUnder(const QString& folder) const {
        QStringList files;
        QDirIterator walk(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (walk.hasNext())
            if (const QString file = walk.next(); !file.endsWith(QStringLiteral(".lock")))
                files.append(QDir(folder).relativeFilePath(file));
        files.sort();
        return files;
    }

    QTemporaryDir from_;
    QTemporaryDir to_;
    std::map<QString, std::vector<FakeTable>> tables_;
    QString report_;
    QStringList problems_;
    bool wrote_ = false;
};

const QString worksheetStore = QStringLiteral("C/Larkfield/Larkfield2013/Tovalin1/tovalin.mdb");
const QString scoreStore = QStringLiteral("C/A_Mendori/Main/DbScore_1001.mdb");

TEST_F(ImportRun, WritesTheStoreAndTheWorksheetsCopyOfIt) {
    EXPECT_TRUE(import());
    EXPECT_EQ(ask(target(QStringLiteral("D/tovalin.mdb")), "SELECT group_concat(word) FROM newword"),
              QStringLiteral("lantern,air"));
    EXPECT_EQ(ask(target(worksheetStore), "SELECT count(*) FROM newword"), QStringLiteral("2"));
    EXPECT_EQ(filesUnder(root()), (QStringList{worksheetStore, QStringLiteral("D/tovalin.mdb")}));
}

TEST_F(ImportRun, PrintsTheProofOfEachTable) {
    import();
    EXPECT_TRUE(report_.contains(QStringLiteral("checksum")));
    EXPECT_TRUE(
        report_.contains(QRegularExpression(QStringLiteral("newword +2 +2 +([0-9a-f]{16}) +\\1 +same"))));
}

TEST_F(ImportRun, WritesNothingInADryRun) {
    addScores({row({qlonglong{1}, 80.0, 46037.0, QStringLiteral("1001"), QStringLiteral("Tovalin1")})});
    EXPECT_TRUE(import(true));
    EXPECT_FALSE(QFileInfo::exists(root()));
    EXPECT_TRUE(report_.contains(QStringLiteral("Nothing was written.")));
}

TEST_F(ImportRun, LeavesNoHalfMadeStoreAndGoesOnWithTheOthers) {
    tables_[QStringLiteral("tovalin.mdb")][0].rows[0].problems.push_back(
        {QStringLiteral("word"), QStringLiteral("the text is not valid Unicode"), false});
    addScores({row({qlonglong{1}, 80.0, 46037.0, QStringLiteral("1001"), QStringLiteral("Tovalin1")})});
    EXPECT_FALSE(import());
    EXPECT_EQ(filesUnder(root()), QStringList{scoreStore});
    EXPECT_TRUE(problems_.contains(
        QStringLiteral("D/tovalin.mdb, table newword, row 1, column word: the text is not valid Unicode.")));
}

TEST_F(ImportRun, KeepsTheStoreThatIsThereWhenTheNewOneIsDamaged) {
    import();
    tables_[QStringLiteral("tovalin.mdb")][0].rows.clear();
    tables_[QStringLiteral("tovalin.mdb")][0].endError =
        QStringLiteral("the file is damaged: reading it broke down");
    EXPECT_FALSE(import());
    EXPECT_EQ(ask(target(QStringLiteral("D/tovalin.mdb")), "SELECT count(*) FROM newword"),
              QStringLiteral("2"));
}

TEST_F(ImportRun, KeepsWhatCouldBeReadWhenToldTo) {
    tables_[QStringLiteral("tovalin.mdb")][0].endError =
        QStringLiteral("the file is damaged: reading it broke down");
    EXPECT_FALSE(import(false, true));
    EXPECT_EQ(ask(target(QStringLiteral("D/tovalin.mdb")), "SELECT count(*) FROM newword"),
              QStringLiteral("2"));
}

TEST_F(ImportRun, JoinsScoresWithThoseInUse) {
    addScores({row({qlonglong{1}, 80.0, 46037.0, QStringLiteral("1001"), QStringLiteral("Tovalin1")}),
               row({qlonglong{2}, 60.0, 46037.0, QStringLiteral("1001"), QStringLiteral("Tovalin1")})});
    EXPECT_TRUE(import());
    {
        SQLite::Database inUse(target(scoreStore).toStdString(), SQLite::OPEN_READWRITE);
        inUse.exec("UPDATE score SET s4=95, vDate='2026-03-01' WHERE recordno=1");
        inUse.exec("DELETE FROM score WHERE recordno=2");
        inUse.exec("INSERT INTO score (studentno, program, recordno, s4) VALUES ('1001', 'Tovalin1', 3, 50)");
    }
    EXPECT_TRUE(import());
    EXPECT_EQ(ask(target(scoreStore), "SELECT group_concat(recordno || ' ' || s4) FROM score"),
              QStringLiteral("1 95.0,3 50.0,2 60.0"));
    EXPECT_TRUE(
        report_.contains(QStringLiteral("joined with the scores in use: 1 new, 0 renewed, 1 kept, 0 alike")));
    EXPECT_TRUE(report_.contains(QStringLiteral("student 1001, Tovalin1, step 1: kept as it is")));
}

TEST_F(ImportRun, TriesAMergeInADryRunAndLeavesTheScoresAlone) {
    addScores({row({qlonglong{1}, 80.0, 46037.0, QStringLiteral("1001"), QStringLiteral("Tovalin1")})});
    import();
    {
        SQLite::Database inUse(target(scoreStore).toStdString(), SQLite::OPEN_READWRITE);
        inUse.exec("DELETE FROM score");
    }
    EXPECT_TRUE(import(true));
    EXPECT_TRUE(report_.contains(QStringLiteral("1 new, 0 renewed")));
    EXPECT_EQ(ask(target(scoreStore), "SELECT count(*) FROM score"), QStringLiteral("0"));
}

TEST_F(ImportRun, LeavesAGenuineAccessFileInTheWayAsItIs) {
    writeAccessStub(target(worksheetStore));
    EXPECT_FALSE(import());
    EXPECT_EQ(filesUnder(root()), QStringList{worksheetStore});
    ASSERT_EQ(problems_.size(), 1);
    EXPECT_TRUE(problems_[0].contains(QStringLiteral("is a genuine Access file and was left as it is")));
}

TEST_F(ImportRun, TellsAFileThatIsNoAccessFile) {
    writeText(from_.filePath(QStringLiteral("D/testword_im.mdb")), "no database at all");
    writeText(from_.filePath(QStringLiteral("D/dicword_K.mdb")), "SQLite format 3 and more behind");
    EXPECT_FALSE(import());
    EXPECT_TRUE(problems_.contains(
        QStringLiteral("D/testword_im.mdb: it is not an Access file, or its first page is damaged.")));
    EXPECT_TRUE(problems_.contains(
        QStringLiteral("D/dicword_K.mdb: it is a store of this program already, not an Access file.")));
    EXPECT_TRUE(QFileInfo::exists(target(QStringLiteral("D/tovalin.mdb"))));
}

TEST_F(ImportRun, CopiesPicturesAndSoundsAndNoReportTemplates) {
    writeText(from_.filePath(QStringLiteral("D/button/next1.jpg")), "picture");
    writeText(from_.filePath(QStringLiteral("D/A_Mendori/ABCSound/air.wav")), "sound");
    writeText(from_.filePath(QStringLiteral("D/gram1.rpt")), "report");
    EXPECT_TRUE(import());
    EXPECT_TRUE(QFileInfo::exists(target(QStringLiteral("D/button/next1.jpg"))));
    EXPECT_TRUE(QFileInfo::exists(target(QStringLiteral("D/A_Mendori/ABCSound/air.wav"))));
    EXPECT_FALSE(QFileInfo::exists(target(QStringLiteral("D/gram1.rpt"))));
    EXPECT_TRUE(report_.contains(QStringLiteral("1 report templates were left out")));
    EXPECT_TRUE(import());
    EXPECT_TRUE(report_.contains(QStringLiteral("0 copied, 2 there already")));
}

TEST_F(ImportRun, KnowsWhetherItWroteAnything) {
    EXPECT_TRUE(import());
    EXPECT_TRUE(wrote_);
    EXPECT_TRUE(import(true));
    EXPECT_FALSE(wrote_);
}

TEST_F(ImportRun, NeverMakesAStoreOfAFileWithoutATableOfTheCourse) {
    tables_[QStringLiteral("tovalin.mdb")][0].shape.name = QStringLiteral("Customers");
    EXPECT_FALSE(import());
    EXPECT_EQ(problems_,
              QStringList{QStringLiteral(
                  "D/tovalin.mdb: it holds no table that the course uses, and no store is made of it.")});
    EXPECT_FALSE(report_.contains(QStringLiteral("made empty")));
    EXPECT_FALSE(import(false, true));
    EXPECT_TRUE(filesUnder(root()).isEmpty());
    EXPECT_FALSE(wrote_);
}

TEST_F(ImportRun, KeepsEveryStoreThatItReplacesAndTellsWhere) {
    EXPECT_TRUE(import());
    EXPECT_FALSE(report_.contains(QStringLiteral("before-import")));
    tables_[QStringLiteral("tovalin.mdb")][0].rows.pop_back();
    EXPECT_TRUE(import());
    EXPECT_TRUE(report_.contains(
        target(QStringLiteral("D/tovalin.mdb was there; it is kept as tovalin.mdb.before-import."))));
    const QString kept = QStringLiteral(".before-import");
    for (const QString& store : {QStringLiteral("D/tovalin.mdb"), worksheetStore}) {
        EXPECT_EQ(ask(target(store), "SELECT count(*) FROM newword"), QStringLiteral("1"));
        EXPECT_EQ(ask(target(store + kept), "SELECT count(*) FROM newword"), QStringLiteral("2"));
    }
}

TEST_F(ImportRun, KeepsTheScoresAsTheyWereBeforeOthersCameIn) {
    const auto score = [](int step) {
        return row({qlonglong{step}, 80.0, 46037.0, QStringLiteral("1001"), QStringLiteral("Tovalin1")});
    };
    addScores({score(1)});
    EXPECT_TRUE(import());
    EXPECT_TRUE(import());
    const QString kept = target(scoreStore + QStringLiteral(".before-import"));
    EXPECT_FALSE(QFileInfo::exists(kept)) << "nothing changed";
    addScores({score(1), score(2)});
    EXPECT_TRUE(import());
    EXPECT_EQ(ask(kept, "SELECT count(*) FROM score"), QStringLiteral("1"));
    EXPECT_EQ(ask(target(scoreStore), "SELECT count(*) FROM score"), QStringLiteral("2"));
}

TEST_F(ImportRun, LetsNobodyElseReadTheScores) {
    const QFile::Permissions others =
        QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther;
    addScores({row({qlonglong{1}, 80.0, 46037.0, QStringLiteral("1001"), QStringLiteral("Tovalin1")})});
    EXPECT_TRUE(import());
    EXPECT_EQ(QFile::permissions(target(scoreStore)) & others, QFile::Permissions());
}

TEST_F(ImportRun, TouchesNothingWhileTheCourseIsOpen) {
    EXPECT_TRUE(import());
    platform::FileLock program;
    ASSERT_TRUE(program.tryTake(target(QStringLiteral("D/mendori.lock"))));
    tables_[QStringLiteral("tovalin.mdb")][0].rows.clear();
    EXPECT_FALSE(import());
    ASSERT_EQ(problems_.size(), 1);
    EXPECT_TRUE(problems_[0].contains(QStringLiteral("is open. Close the program and run this again.")));
    EXPECT_EQ(ask(target(QStringLiteral("D/tovalin.mdb")), "SELECT count(*) FROM newword"),
              QStringLiteral("2"));
    EXPECT_TRUE(import(true)) << "a dry run only reads";
}

TEST_F(ImportRun, LeavesAForeignFileUnderAStoresNameAsItIs) {
    writeText(target(QStringLiteral("D/tovalin.mdb")), "a letter to my mother");
    EXPECT_FALSE(import());
    ASSERT_EQ(problems_.size(), 1);
    EXPECT_TRUE(problems_[0].contains(QStringLiteral("is no store of this program and was left as it is")));
    QFile::remove(target(QStringLiteral("D/tovalin.mdb")));
    {
        SQLite::Database other(target(QStringLiteral("D/tovalin.mdb")).toStdString(),
                               SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        other.exec("CREATE TABLE bookmarks(url TEXT)");
    }
    EXPECT_FALSE(import());
    ASSERT_EQ(problems_.size(), 1);
    EXPECT_TRUE(problems_[0].contains(QStringLiteral("holds no table of the course and was left as it is")));
}

TEST_F(ImportRun, WritesNothingBehindALinkThatLeadsOutOfTheRoot) {
    const QTemporaryDir elsewhere;
    QDir().mkpath(target(QStringLiteral("D")));
    ASSERT_TRUE(QFile::link(elsewhere.path(), target(QStringLiteral("D/button"))));
    ASSERT_TRUE(QFile::link(elsewhere.path(), target(QStringLiteral("C"))));
    writeText(from_.filePath(QStringLiteral("D/button/next1.jpg")), "picture");
    EXPECT_FALSE(import());
    ASSERT_EQ(problems_.size(), 1);
    EXPECT_TRUE(problems_[0].contains(QStringLiteral("lies behind a link that leads out of its drive")));
    EXPECT_FALSE(QFileInfo::exists(elsewhere.filePath(QStringLiteral("next1.jpg"))));
    EXPECT_TRUE(QFileInfo::exists(elsewhere.filePath(QStringLiteral("Larkfield"))))
        << "a drive may be a link";
}

TEST_F(ImportRun, KeepsAPictureThatItReplaces) {
    writeText(from_.filePath(QStringLiteral("D/button/next1.jpg")), "their picture");
    writeText(target(QStringLiteral("D/button/next1.jpg")), "my own");
    EXPECT_TRUE(import());
    QFile kept(target(QStringLiteral("D/button/next1.jpg.before-import")));
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), "my own");
    EXPECT_TRUE(report_.contains(QStringLiteral("1 pictures, sounds or videos were there")));
}

TEST_F(ImportRun, NeverWritesOutsideItsRootWhateverTheFilesAreCalled) {
    const QString outside = to_.filePath(QStringLiteral(".profile"));
    writeText(outside, "mine");
    for (const char* name : {"D/button/..\\..\\..\\.profile", "D/button/..\\..\\.profile",
                             "D/A_Mendori/ABCSound/..\\..\\..\\..\\.profile", "D/Sound/C:\\..\\..\\.profile"})
        writeText(from_.filePath(QLatin1String(name)), "theirs");
    import();
    QFile kept(outside);
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), "mine");
    EXPECT_EQ(QDir(to_.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              (QStringList{".profile", "root"}));
    EXPECT_EQ(filesUnder(root()), (QStringList{worksheetStore, QStringLiteral("D/tovalin.mdb")}));
}

TEST_F(ImportRun, NotesAFileThatEndsInsideAPage) {
    EXPECT_TRUE(import());
    EXPECT_TRUE(report_.contains(QStringLiteral("D/tovalin.mdb: the file ends inside its page 0")))
        << report_.toStdString();
    QFile file(from_.filePath(QStringLiteral("D/tovalin.mdb")));
    ASSERT_TRUE(file.resize(8192));
    EXPECT_TRUE(import());
    EXPECT_FALSE(report_.contains(QStringLiteral("ends inside")));
}

TEST_F(ImportRun, SaysWhatToGiveWhereNothingIsFound) {
    ImportOptions options;
    const QTemporaryDir empty;
    options.from = empty.path();
    options.root = root();
    QTextStream out(&report_);
    EXPECT_FALSE(Importer(options, {}, out, [](const QString&) {}).run());
    EXPECT_TRUE(report_.contains(QStringLiteral("holds no store of the course")));
}

TEST(ImportCommand, RefusesAWrongCall) {
    EXPECT_EQ(runImport({}), 2);
    EXPECT_EQ(runImport({QStringLiteral("/no/such/folder")}), 2);
    EXPECT_EQ(runImport({QStringLiteral("/tmp"), QStringLiteral("--nonsense")}), 2);
    EXPECT_EQ(runImport({QStringLiteral("/tmp"), QStringLiteral("--code-page"), QStringLiteral("korean")}),
              2);
    EXPECT_EQ(runImport({QStringLiteral("--help")}), 0);
}

TEST(ImportCommand, ChecksNothingWhereNothingCameOver) {
    const QTemporaryDir from;
    writeText(from.filePath(QStringLiteral("D/tovalin.mdb")), "no database");
    const QTemporaryDir root;
    bool checked = false;
    const auto check = [&](const QString&) {
        checked = true;
        return 0;
    };
    EXPECT_EQ(runImport({from.path(), QStringLiteral("--root"), root.path()}, check), 1);
    EXPECT_FALSE(checked);
}

}  // namespace
