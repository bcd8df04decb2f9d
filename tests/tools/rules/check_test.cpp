// The check as a whole: its table of rules, what cannot be read, finished installs.

#include "tests/tools/rules/cases.h"
#include "tools/check/install.h"
#include "tools/setup/install.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QDir>
#include <QFile>

using namespace check_cases;
using namespace tools;

namespace {

const Tested valueMissingRule("value-missing");
const Tested pictureMissingRule("picture-missing");

TEST(Check, EveryRuleHasANameOfItsOwnAndACaseThatBreaksIt) {
    std::set<std::string> names;
    for (const check::Rule* rule : check::allRules()) {
        EXPECT_TRUE(names.insert(rule->name).second) << rule->name;
        EXPECT_TRUE(testedRules().contains(rule->name)) << rule->name;
        EXPECT_STRNE(rule->demand, "");
    }
}

TEST(Check, AFindingTellsPlaceWrongAndRight) {
    const BuiltCourse built(readFiles({words("1,ox,황소\n")}));
    const check::Course course(built.tables());
    const auto findings = check::checkCourse(course, "word-length");
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].text(),
              QStringLiteral(
                  "unit01/newword.csv:2, field 'word': error: 'ox' has 2 letters, and the spelling coach "
                  "leaves it out [word-length]\n    right: a word of 3 to 16 letters"));
}

TEST(Check, AllUnreadablePlacesAreToldAtOnce) {
    ReadErrors damages;
    const CourseSource source = readFiles({{"unit01/newword.csv", "recordno,wrod\none,cat\n99999,dog\n"},
                                           {"unit01/gram_tip2.csv", "recordno,tip2\n1,x\n"}});
    const BuiltCourse built(source, &damages);
    EXPECT_EQ(
        places(check::unreadable(damages)),
        (QStringList{at("newword", 1, "wrod"), at("newword", 2, "recordno"), at("newword", 3, "recordno")}));
}

TEST(Check, WithoutACollectorTheFirstDamageEndsTheReading) {
    EXPECT_THROW(BuiltCourse(readFiles({{"unit01/newword.csv", "recordno,word\none,cat\n"}})), SourceError);
}

void expectNoFindings(const char* folder) {
    const BuiltCourse built(readCourse(QStringLiteral(MENDORI_SOURCE "/") + QLatin1String(folder)));
    const check::Course course(built.tables());
    for (const check::Finding& finding : check::checkCourse(course))
        ADD_FAILURE() << finding.text().toStdString();
}

TEST(Check, TheStarterCourseHasNoFindings) {
    expectNoFindings("starter");
}

TEST(Check, TheExampleOfTheGuideHasNoFindings) {
    expectNoFindings("docs/example-course");
}

/// A temporary install whose stores hold a small course.
class InstalledCourse : public testing::Test {
   protected:
    InstalledCourse() {
        const QDir source(folder_.filePath(QStringLiteral("course")));
        source.mkpath(QStringLiteral("unit01"));
        write(source.filePath(QStringLiteral("topic.csv")), "topicno,Title\n1,명사\n");
        write(source.filePath(QStringLiteral("unit01/tablework.csv")),
              "recordno,Type,Title,Data,guide,guide2,usedata,useform\n2,Quiz,명사,복수형,고르십시오.,"
              "고르십시오.,"
              "YES,frmQuiz2\n");
        write(source.filePath(QStringLiteral("unit01/tovalin1_quiz_data.csv")),
              "recordno,q1,a1\n" + lines(8, "2,word%,words%"));
        plan_.root = folder_.filePath(QStringLiteral("install"));
        plan_.courseFolder = source.path();
    }

    static void write(const QString& file, const std::string& text) {
        QFile opened(file);
        ASSERT_TRUE(opened.open(QIODevice::WriteOnly));
        opened.write(QByteArray::fromStdString(text));
    }

    void exec(const char* store, const std::string& sql) const {
        SQLite::Database database((plan_.root + QLatin1String(store)).toStdString(), SQLite::OPEN_READWRITE);
        database.exec(sql);
    }

    QStringList findings() const {
        const check::InstallTables install = check::readInstall(plan_.root);
        const check::Course course(install.tables, install.media);
        QStringList found = places(check::unreadable(install.damages)) + places(check::checkCourse(course));
        // The small course opens with its quiz, without a lesson.
        found.removeOne(QStringLiteral("tovalin.mdb/tablework:1, field 'Type'"));
        return found;
    }

    QTemporaryDir folder_;
    InstallPlan plan_;
};

TEST_F(InstalledCourse, ABuiltCourseIsFoundAsItWasWritten) {
    const BuiltStores built = makeStores(plan_);
    EXPECT_EQ(built.warnings, 1);
    EXPECT_EQ(findings(), QStringList());
}

TEST_F(InstalledCourse, AnErrorStopsTheBuildAndNothingIsMade) {
    write(plan_.courseFolder + QStringLiteral("/unit01/newword.csv"), "recordno,word,korean\n2,ox,황소\n");
    try {
        makeStores(plan_);
        FAIL() << "built";
    } catch (const std::runtime_error& failure) {
        EXPECT_NE(std::string(failure.what()).find("unit01/newword.csv:2"), std::string::npos)
            << failure.what();
    }
    EXPECT_FALSE(QFileInfo::exists(plan_.root));
}

TEST_F(InstalledCourse, AWarningDoesNotStopTheBuild) {
    write(plan_.courseFolder + QStringLiteral("/unit01/newword.csv"), "recordno,word,korean\n2,Seoul,서울\n");
    EXPECT_GT(makeStores(plan_).warnings, 0);
}

TEST_F(InstalledCourse, AMissingValueIsToldByStoreTableAndRow) {
    makeStores(plan_);
    exec("/D/Tovalin_Data.mdb", "UPDATE tovalin1_quiz_data SET a2 = NULL WHERE orderno = 3");
    EXPECT_EQ(findings(), QStringList{QStringLiteral("Tovalin_Data.mdb/tovalin1_quiz_data:3, field 'a2'")});
}

TEST_F(InstalledCourse, AMissingStoreIsTold) {
    makeStores(plan_);
    QFile::remove(plan_.root + QStringLiteral("/D/Tovalin_Data.mdb"));
    const check::InstallTables install = check::readInstall(plan_.root);
    ASSERT_EQ(install.damages.size(), 1U);
    EXPECT_TRUE(install.damages[0].sentence().contains(QStringLiteral("the store is not there")));
}

TEST_F(InstalledCourse, EveryStoreTheProgramOpensIsLookedFor) {
    makeStores(plan_);
    const QDir root(plan_.root);
    for (const char* store : {"D/testword_im.mdb", "D/testword_2013.mdb", "D/dicword_K.mdb",
                              "C/A_Mendori/Main/dicword.mdb", "C/A_Mendori/Main/Pversion_2026.mdb"})
        EXPECT_TRUE(QFile::remove(root.filePath(QLatin1String(store)))) << store;
    EXPECT_EQ(check::readInstall(plan_.root).damages.size(), 5U);
}

TEST_F(InstalledCourse, AMissingWorkingTableIsTold) {
    makeStores(plan_);
    exec("/D/tovalin.mdb", "DROP TABLE blankno");
    EXPECT_EQ(findings(), QStringList{QStringLiteral("tovalin.mdb/blankno")});
}

TEST_F(InstalledCourse, PicturesThatAreNotThereAreToldByTheirFolder) {
    makeStores(plan_);
    const QDir pictures(folder_.filePath(QStringLiteral("pictures")));
    pictures.mkpath(QStringLiteral("button"));
    for (const char* name : {"next1.jpg", "next1@2x.jpg", "next2.jpg"})
        write(pictures.filePath(QStringLiteral("button/") + QLatin1String(name)), "x");
    write(plan_.root + QStringLiteral("/D/button/NEXT2.JPG"), "x");
    const check::InstallTables install = check::readInstall(plan_.root, pictures.path());
    ASSERT_EQ(install.media.missing.size(), 1U);
    EXPECT_EQ(install.media.missing[0].names, QStringList{QStringLiteral("next1.jpg")});
    const check::Course course(install.tables, install.media);
    EXPECT_EQ(places(check::checkCourse(course, "picture-missing")),
              QStringList{QStringLiteral("D:\\button")});
}

TEST_F(InstalledCourse, AnAccessFileIsToldAndLeftAlone) {
    makeStores(plan_);
    const QString file = plan_.root + QStringLiteral("/D/Tovalin_Data.mdb");
    write(file, std::string("\0\1\0\0Standard Jet DB\0", 20) + std::string(4096, '\0'));
    const check::InstallTables install = check::readInstall(plan_.root);
    ASSERT_FALSE(install.damages.empty());
    EXPECT_TRUE(install.damages[0].right().contains(QStringLiteral("course import")));
}

TEST_F(InstalledCourse, FieldsInAnotherOrderAreTakenByTheirNames) {
    makeStores(plan_);
    exec("/D/tovalin.mdb",
         "DROP TABLE newword; CREATE TABLE newword (word TEXT, recordno INTEGER, korean TEXT, scode TEXT)");
    EXPECT_EQ(findings(), QStringList());
}

TEST_F(InstalledCourse, AMissingFieldIsToldByItsName) {
    makeStores(plan_);
    exec("/D/tovalin.mdb", "ALTER TABLE newword DROP COLUMN korean");
    EXPECT_EQ(findings(), QStringList{QStringLiteral("tovalin.mdb/newword, field 'korean'")});
}

TEST_F(InstalledCourse, FieldsThatAreOnlyCopiedByTheirPlaceMayHaveAnyName) {
    makeStores(plan_);
    exec("/D/Tovalin_Data.mdb", "ALTER TABLE tovalin1_quiz_data RENAME COLUMN extra1 TO memo1");
    EXPECT_EQ(findings(), QStringList());
}

TEST_F(InstalledCourse, AWorksheetStoreThatDiffersFromTheCourseIsTold) {
    makeStores(plan_);
    exec("/C/Larkfield/Larkfield2013/Tovalin1/tovalin.mdb", "UPDATE tablework SET guide2 = 'x'");
    const QStringList found = findings();
    ASSERT_EQ(found.size(), 1);
    EXPECT_TRUE(found[0].endsWith(QStringLiteral("Tovalin1/tovalin.mdb")));
}

}  // namespace
