// Set-up run again over an install: after a run that was cut short, and while others are at work in it.

#include "core/turn.h"
#include "platform/letter_case.h"
#include "tests/support/desk.h"
#include "tools/media/speech.h"
#include "tools/setup/install.h"
#include "tools/setup/store_writer.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace {

class Rebuild : public testing::Test {
   protected:
    Rebuild() {
        const QString example = QStringLiteral(MENDORI_SOURCE "/docs/example-course");
        QDir().mkpath(course + QStringLiteral("/unit01"));
        for (const char* part : {"", "/unit01"})
            for (const QString& name :
                 QDir(example + QLatin1String(part)).entryList({QStringLiteral("*.csv")}))
                QFile::copy(example + QLatin1String(part) + u'/' + name,
                            course + QLatin1String(part) + u'/' + name);
        make(example);
    }
    /// What the set-up refuses with, empty where it does its work.
    QString make(const QString& from, const std::function<void()>& meanwhile = {}) const {
        tools::InstallPlan plan;
        if (meanwhile)
            plan.progress = [&](const QString&, int done, int) { done == 1 ? meanwhile() : void(); };
        plan.root = root;
        plan.courseFolder = from;
        try {
            tools::makeStores(plan);
        } catch (const std::exception& failure) {
            return QString::fromUtf8(failure.what());
        }
        return {};
    }
    void rename(const char* before, const char* after) const {
        QFile table(course + QStringLiteral("/topic.csv"));
        ASSERT_TRUE(table.open(QIODevice::ReadWrite));
        const QByteArray text = table.readAll();
        ASSERT_TRUE(text.contains(before));
        table.resize(0);
        table.write(QByteArray(text).replace(before, after));
    }
    QString title(const char* store) const {
        const SQLite::Database opened(root.toStdString() + store, SQLite::OPEN_READONLY);
        SQLite::Statement query(opened, "select Title from topic where topicno=1");
        query.executeStep();
        return QString::fromUtf8(query.getColumn(0).getText());
    }
    QByteArray firstTitle() const { return title("/D/tovalin.mdb").toUtf8(); }

    QTemporaryDir folder;
    const QString course = folder.filePath(QStringLiteral("course"));
    const QString root = folder.filePath(QStringLiteral("install"));
};

}  // namespace

TEST_F(Rebuild, AfterARunThatWasCutShortTheNextMakesEveryStoreAnewWhicheverCourseItIsOf) {
    const QByteArray before = firstTitle();
    rename(before.constData(), "Another title");
    const QString store = root + QStringLiteral("/C/Larkfield/Larkfield2013/Tovalin1/tovalin.mdb");
    QFile::rename(store, folder.filePath(QStringLiteral("kept")));
    QFile foreign(store);
    ASSERT_TRUE(foreign.open(QIODevice::WriteOnly));
    foreign.write("no store at all");
    foreign.close();
    EXPECT_TRUE(make(course).contains("is left as it is"));
    ASSERT_EQ(title("/D/tovalin.mdb"), "Another title") << "the first store was made before the refusal";
    ASSERT_TRUE(QFile::remove(store));
    ASSERT_TRUE(QFile::rename(folder.filePath(QStringLiteral("kept")), store));
    rename("Another title", before.constData());
    EXPECT_EQ(make(course), QString());
    EXPECT_EQ(title("/D/tovalin.mdb").toUtf8(), before);
    EXPECT_EQ(title("/C/Larkfield/Larkfield2013/Tovalin1/tovalin.mdb").toUtf8(), before);
}

TEST_F(Rebuild, StoresThatAProgramHasOpenAreNotReplaced) {
    platform::FileLock program;
    ASSERT_TRUE(program.tryTake(root + QStringLiteral("/D/") + core::turnFileName));
    const QByteArray before = firstTitle();
    EXPECT_EQ(make(course), QString()) << "nothing has changed, so nothing is replaced";
    rename(before.constData(), "Another title");
    EXPECT_TRUE(make(course).contains("is open. Close the program"));
    EXPECT_EQ(firstTitle(), before);
}

TEST_F(Rebuild, ASecondSetUpLeavesTheRootToTheFirst) {
    platform::FileLock first;
    ASSERT_TRUE(first.tryTake(root + QStringLiteral("/.mendori-setup.lock")));
    EXPECT_TRUE(make(course).contains("Another set-up is at work"));
}

TEST_F(Rebuild, ATableThatIsSavedWhileTheSetUpIsAtWorkIsBuiltTheNextTime) {
    const QByteArray before = firstTitle();
    rename(before.constData(), "Another title");
    EXPECT_EQ(make(course, [&] { rename("Another title", "A later title"); }), QString());
    EXPECT_EQ(firstTitle(), "Another title");
    EXPECT_EQ(make(course), QString());
    EXPECT_EQ(firstTitle(), "A later title");
}

TEST_F(Rebuild, ACourseThatIsOpenOnAnotherDriveIsNotReplacedEither) {
    QDir().mkpath(root + QStringLiteral("/E"));
    ASSERT_TRUE(
        QFile::copy(root + QStringLiteral("/D/tovalin.mdb"), root + QStringLiteral("/E/tovalin.mdb")));
    platform::FileLock program;
    ASSERT_TRUE(program.tryTake(root + QStringLiteral("/E/") + core::turnFileName));
    rename(firstTitle().constData(), "Another title");
    EXPECT_TRUE(make(course).contains("is open. Close the program"));
}

TEST_F(Rebuild, WhatAKilledSetUpLeftBesideTheStoresIsSwept) {
    for (const char* name : {"/D/tovalin.mdb.new", "/D/tovalin.mdb.new-journal",
                             "/C/A_Mendori/Main/DbScore_1001.mdb.new-journal"}) {
        QFile left(root + QLatin1String(name));
        ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    }
    make(course);
    EXPECT_EQ(QDir(root + QStringLiteral("/D")).entryList({QStringLiteral("*.new*")}), QStringList());
    EXPECT_EQ(QDir(root + QStringLiteral("/C/A_Mendori/Main")).entryList({QStringLiteral("*.new*")}),
              QStringList());
}

TEST_F(Rebuild, TheScoresAreReadByTheirOwnerAlone) {
    const QFile::Permissions others =
        QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther;
    tools::InstallPlan plan;
    plan.root = root;
    plan.courseFolder = course;
    plan.pictureFolder = QStringLiteral(MENDORI_PICTURES);
    plan.userId = QStringLiteral("1001");
    plan.speakWords = false;
    const QString scores = root + QStringLiteral("/C/A_Mendori/Main/DbScore_1001.mdb");
    for (int i = 0; i < 2; ++i) {
        tools::makeInstall(plan);
        EXPECT_EQ(QFile::permissions(scores) & others, QFile::Permissions());
        QFile::setPermissions(scores, QFile::permissions(scores) | QFile::ReadOther);
    }
}

TEST_F(Rebuild, WordsAreSpokenIntoTheirOwnFolderAlone) {
    const QString sounds = folder.filePath(QStringLiteral("sounds"));
    QDir().mkpath(sounds + QStringLiteral("/deeper"));
    const QStringList before = QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden);
    const QStringList words{"../cat", "deeper/cat", "..\\cat", "C:cat", "", "ca\nt", folder.filePath("cat")};
    EXPECT_EQ(tools::speakWords(words, sounds, {}), words.size());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden), before);
    EXPECT_TRUE(QDir(sounds + QStringLiteral("/deeper")).isEmpty());
    EXPECT_TRUE(QDir(sounds).entryList(QDir::Files | QDir::Hidden).isEmpty());
}

TEST_F(Rebuild, AStepThatHasGotWordsLetsThoseDoThemWhoFinishedItBefore) {
    const QString words = course + QStringLiteral("/unit01/newword.csv");
    ASSERT_TRUE(QFile::rename(words, folder.filePath(QStringLiteral("newword.csv"))));
    tools::InstallPlan plan;
    plan.root = root;
    plan.courseFolder = course;
    plan.pictureFolder = QStringLiteral(MENDORI_PICTURES);
    plan.userId = QStringLiteral("1001");
    plan.speakWords = false;
    tools::makeInstall(plan);
    const std::string scores = root.toStdString() + "/C/A_Mendori/Main/DbScore_1001.mdb";
    SQLite::Database store(scores, SQLite::OPEN_READWRITE);
    store.exec(
        "insert into score(recordno,s1,s2,s3,s4,program) values (45,'','','',100,'Tovalin1'),"
        "(46,'N/A','N/A','N/A',85,'Tovalin1')");
    ASSERT_TRUE(QFile::rename(folder.filePath(QStringLiteral("newword.csv")), words));
    EXPECT_EQ(make(course), QString());
    SQLite::Statement row(store, "select group_concat(s1||s2||s3||' '||s4,';') from score");
    ASSERT_TRUE(row.executeStep());
    EXPECT_STREQ(row.getColumn(0).getText(), "000 100.0;N/AN/AN/A 85.0");
}

TEST_F(Rebuild, IndexesStandInTheOrderThatTheProgramComparesBy) {
    const QString file = folder.filePath(QStringLiteral("dicword.mdb"));
    tools::writeStore(file, QStringLiteral("dicword.mdb"),
                      {{QStringLiteral("dicword.mdb"),
                        QStringLiteral("dicword"),
                        {QStringLiteral("word")},
                        {{{"Éz"}, {}}, {{"éa"}, {}}, {{"zoo"}, {}}}}});
    const SQLite::Database store(file.toStdString(), SQLite::OPEN_READONLY);
    platform::compareStoredTextsButForCase(store.getHandle());
    SQLite::Statement check(store, "PRAGMA integrity_check");
    ASSERT_TRUE(check.executeStep());
    EXPECT_STREQ(check.getColumn(0).getText(), "ok");
}
