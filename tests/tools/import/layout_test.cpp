#include "tests/tools/import/fake.h"

#include "tools/import/layout.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <algorithm>

namespace {

using namespace tools;

class ImportLayout : public ::testing::Test {
   protected:
    void put(const QString& path) { import_test::writeAccessStub(folder_.filePath(path)); }
    FoundInstall search() { return findInstall(folder_.path()); }

    static QString targetsOf(const FoundInstall& install, const QString& shownName) {
        for (const FoundStore& store : install.stores)
            if (store.shownName == shownName)
                return store.targets.join(u' ');
        return QStringLiteral("not found");
    }
    static QString mediaTarget(const FoundInstall& install, const QString& shownName) {
        for (const FoundMedia& media : install.media)
            if (media.shownName == shownName)
                return media.target;
        return QStringLiteral("not found");
    }

    QTemporaryDir folder_;
};

TEST_F(ImportLayout, FindsTheStoresOfAFolderThatHoldsDrives) {
    put(QStringLiteral("C/A_Mendori/Main/dicword.mdb"));
    put(QStringLiteral("C/A_Mendori/Main/DbScore_1001.mdb"));
    put(QStringLiteral("E/tovalin.mdb"));
    put(QStringLiteral("E/Tovalin_Data.mdb"));
    const FoundInstall install = search();
    EXPECT_EQ(targetsOf(install, QStringLiteral("C/A_Mendori/Main/dicword.mdb")),
              QStringLiteral("C:\\A_Mendori\\Main\\dicword.mdb"));
    EXPECT_EQ(targetsOf(install, QStringLiteral("C/A_Mendori/Main/DbScore_1001.mdb")),
              QStringLiteral("C:\\A_Mendori\\Main\\DbScore_1001.mdb"));
    EXPECT_EQ(targetsOf(install, QStringLiteral("E/Tovalin_Data.mdb")),
              QStringLiteral("E:\\Tovalin_Data.mdb"));
}

TEST_F(ImportLayout, GivesWorksheetsACopyOfTheCourseStore) {
    put(QStringLiteral("D/tovalin.mdb"));
    EXPECT_EQ(targetsOf(search(), QStringLiteral("D/tovalin.mdb")),
              QStringLiteral("D:\\tovalin.mdb C:\\Larkfield\\Larkfield2013\\Tovalin1\\tovalin.mdb"));
}

TEST_F(ImportLayout, FindsStoresInAnyFolderAndInAnyCase) {
    put(QStringLiteral("backup of pc/Program Files/Course/TOVALIN.MDB"));
    put(QStringLiteral("backup of pc/Program Files/Course/tovalin_data.mdb"));
    put(QStringLiteral("backup of pc/a_mendori/main/dbscore_77.MDB"));
    const FoundInstall install = search();
    EXPECT_TRUE(targetsOf(install, QStringLiteral("backup of pc/Program Files/Course/TOVALIN.MDB"))
                    .startsWith(QStringLiteral("D:\\tovalin.mdb ")));
    EXPECT_EQ(targetsOf(install, QStringLiteral("backup of pc/Program Files/Course/tovalin_data.mdb")),
              QStringLiteral("D:\\Tovalin_Data.mdb"));
    EXPECT_EQ(targetsOf(install, QStringLiteral("backup of pc/a_mendori/main/dbscore_77.MDB")),
              QStringLiteral("C:\\A_Mendori\\Main\\DbScore_77.mdb"));
}

TEST_F(ImportLayout, TakesTheCourseStoreWithTheOtherStoresBesideItAndTellsWhatItLeavesAside) {
    put(QStringLiteral("tovalin.mdb"));
    put(QStringLiteral("program/tovalin.mdb"));
    put(QStringLiteral("program/Tovalin_Data.mdb"));
    const FoundInstall install = search();
    EXPECT_NE(targetsOf(install, QStringLiteral("program/tovalin.mdb")), QStringLiteral("not found"));
    EXPECT_EQ(targetsOf(install, QStringLiteral("tovalin.mdb")), QStringLiteral("not found"));
    EXPECT_TRUE(
        install.notes.contains(QStringLiteral("tovalin.mdb was left aside, program/tovalin.mdb is taken.")));
}

TEST_F(ImportLayout, FindsPicturesSoundsAndVideos) {
    put(QStringLiteral("C/Course/tovalin.mdb"));
    put(QStringLiteral("C/Course/button/next1.jpg"));
    put(QStringLiteral("C/Course/Interface/table.jpg"));
    put(QStringLiteral("C/Course/click.wav"));
    put(QStringLiteral("C/Course/harrow.cur"));
    put(QStringLiteral("E/A_Mendori/ABCSound/air.wav"));
    put(QStringLiteral("E/A_Mendori/Mendori_Program/Tovalin1_Video/Lesson_1.wmv"));
    const FoundInstall install = search();
    EXPECT_EQ(mediaTarget(install, QStringLiteral("C/Course/button/next1.jpg")),
              QStringLiteral("D:\\button\\next1.jpg"));
    EXPECT_EQ(mediaTarget(install, QStringLiteral("C/Course/Interface/table.jpg")),
              QStringLiteral("D:\\Interface\\table.jpg"));
    EXPECT_EQ(mediaTarget(install, QStringLiteral("C/Course/click.wav")), QStringLiteral("D:\\click.wav"));
    EXPECT_EQ(mediaTarget(install, QStringLiteral("C/Course/harrow.cur")), QStringLiteral("D:\\harrow.cur"));
    EXPECT_EQ(mediaTarget(install, QStringLiteral("E/A_Mendori/ABCSound/air.wav")),
              QStringLiteral("E:\\A_Mendori\\ABCSound\\air.wav"));
    EXPECT_EQ(mediaTarget(install, QStringLiteral("E/A_Mendori/Mendori_Program/Tovalin1_Video/Lesson_1.wmv")),
              QStringLiteral("E:\\A_Mendori\\Mendori_Program\\Tovalin1_Video\\Lesson_1.wmv"));
}

TEST_F(ImportLayout, LeavesReportTemplatesOutAndCountsWhatTheCourseDoesNotUse) {
    put(QStringLiteral("D/tovalin.mdb"));
    put(QStringLiteral("D/gram1.rpt"));
    put(QStringLiteral("D/letter.doc"));
    const FoundInstall install = search();
    EXPECT_EQ(install.reports, QStringList{QStringLiteral("D/gram1.rpt")});
    EXPECT_TRUE(install.notes.contains(QStringLiteral(
        "1 other files were left aside, since the course does not use them; the first is D/letter.doc.")));
}

TEST_F(ImportLayout, TellsTheStoresThatAreNotThere) {
    put(QStringLiteral("D/tovalin.mdb"));
    const QStringList missing = search().missing;
    EXPECT_TRUE(missing.contains(QStringLiteral("Tovalin_Data.mdb")));
    EXPECT_TRUE(missing.contains(QStringLiteral("DbScore_<student number>.mdb")));
    EXPECT_FALSE(missing.contains(QStringLiteral("tovalin.mdb")));
}

TEST_F(ImportLayout, TakesASingleFileToo) {
    put(QStringLiteral("DbScore_5.mdb"));
    const FoundInstall install = findInstall(folder_.filePath(QStringLiteral("DbScore_5.mdb")));
    ASSERT_EQ(install.stores.size(), 1U);
    EXPECT_EQ(install.stores[0].targets, QStringList{QStringLiteral("C:\\A_Mendori\\Main\\DbScore_5.mdb")});
}

TEST_F(ImportLayout, FindsNothingInAFolderWithoutStores) {
    put(QStringLiteral("holiday.mdb"));
    put(QStringLiteral("DbScore_.mdb"));
    EXPECT_TRUE(search().stores.empty());
}

TEST_F(ImportLayout, LeavesAsideWhatNoDriveOfTheCourseCanHold) {
    put(QStringLiteral("D/tovalin.mdb"));
    for (const char* name : {"D/button/..\\..\\..\\.profile", "D/A_Mendori/ABCSound/..\\x.wav",
                             "D/button/C:x.jpg", "D/button/new\nline.jpg", "D/button/\x1b[2J.jpg",
                             "DbScore_..\\..\\x.mdb", "DbScore_C:\\x.mdb", "D/button\\..\\x/y.jpg"})
        put(QString::fromUtf8(name));
    const FoundInstall install = search();
    EXPECT_EQ(install.stores.size(), 1U);
    EXPECT_TRUE(install.media.empty());
    EXPECT_TRUE(
        install.notes.contains(QStringLiteral("D/A_Mendori/ABCSound/..\\x.wav was left aside: no drive of "
                                              "the course can hold a file of this name.")));
    EXPECT_TRUE(install.notes.contains(QStringLiteral("3 further files were left aside for such reasons.")))
        << install.notes.join(u'\n').toStdString();
    EXPECT_FALSE(install.notes.join(QString()).contains(QChar(0x1b)));
}

TEST_F(ImportLayout, LeavesAsideLinksThatLeadOutAndWhatIsNoRegularFile) {
    put(QStringLiteral("D/tovalin.mdb"));
    put(QStringLiteral("D/button/real.jpg"));
    const QTemporaryDir elsewhere;
    import_test::writeText(elsewhere.filePath(QStringLiteral("secret")), "secret");
    const auto link = [&](const QString& to, const char* name) {
        ASSERT_TRUE(QFile::link(to, folder_.filePath(QLatin1String(name))));
    };
    link(QStringLiteral("/dev/zero"), "D/button/zero.jpg");
    link(QStringLiteral("/dev/zero"), "D/Tovalin_Data.mdb");
    link(elsewhere.filePath(QStringLiteral("secret")), "D/button/secret.jpg");
    link(folder_.filePath(QStringLiteral("D/button/real.jpg")), "D/button/same.jpg");
    link(elsewhere.path(), "D/interface");
    ASSERT_EQ(mkfifo(qPrintable(folder_.filePath(QStringLiteral("D/button/pipe.jpg"))), 0600), 0);
    const FoundInstall install = search();
    EXPECT_EQ(install.stores.size(), 1U);
    QStringList media;
    for (const FoundMedia& item : install.media)
        media.append(item.shownName);
    EXPECT_EQ(media, (QStringList{QStringLiteral("D/button/real.jpg"), QStringLiteral("D/button/same.jpg")}));
    EXPECT_TRUE(
        install.notes.contains(QStringLiteral("D/button/zero.jpg was left aside: it is no regular file.")));
    EXPECT_TRUE(install.notes.contains(
        QStringLiteral("D/button/secret.jpg was left aside: it is a link that leads out of the folder.")));
}

}  // namespace
