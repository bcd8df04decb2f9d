// The subcommands of `course` as they are called: what they print, and how they end.

#include "tools/check/command.h"
#include "tools/export/command.h"
#include "tools/import/command.h"
#include "tools/setup/build_command.h"
#include "tools/setup/install.h"
#include "tools/support/command_line.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QString example = QStringLiteral(MENDORI_SOURCE "/docs/example-course");

struct Ending {
    int status = 0;
    std::string out;
    std::string error;
};

Ending run(int (*command)(const QStringList&), const QStringList& arguments) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Ending ending;
    ending.status = command(arguments);
    std::fflush(stdout);
    ending.out = testing::internal::GetCapturedStdout();
    ending.error = testing::internal::GetCapturedStderr();
    return ending;
}

bool contains(const std::string& text, const char* part) {
    return text.find(part) != std::string::npos;
}

/// A copy of the example course that a test may spoil.
class CourseCommands : public testing::Test {
   protected:
    CourseCommands() {
        QDir().mkpath(course + QStringLiteral("/unit01"));
        for (const char* part : {"", "/unit01"})
            for (const QString& name :
                 QDir(example + QLatin1String(part)).entryList({QStringLiteral("*.csv")}))
                QFile::copy(example + QLatin1String(part) + u'/' + name,
                            course + QLatin1String(part) + u'/' + name);
    }

    void append(const char* table, const char* row) const {
        QFile file(course + QLatin1String(table));
        ASSERT_TRUE(file.open(QIODevice::Append));
        file.write(row);
    }

    QTemporaryDir folder;
    const QString course = folder.filePath(QStringLiteral("course"));
    const QString root = folder.filePath(QStringLiteral("install"));
};

TEST_F(CourseCommands, CheckEndsWith0WhereNothingIsFound) {
    const Ending ending = run(tools::runCheck, {course});
    EXPECT_EQ(ending.status, 0);
    EXPECT_TRUE(contains(ending.out, "33 rows: 0 errors, 0 warnings")) << ending.out;
}

TEST_F(CourseCommands, CheckEndsWith1AndTellsPlaceWrongAndRight) {
    append("/unit01/newword.csv", "45,ox,황소\n");
    const Ending ending = run(tools::runCheck, {course});
    EXPECT_EQ(ending.status, 1);
    EXPECT_TRUE(contains(ending.out, "unit01/newword.csv:12, field 'word': error: ")) << ending.out;
    EXPECT_TRUE(contains(ending.out, "right: a word of 3 to 16 letters")) << ending.out;
    EXPECT_TRUE(contains(ending.out, "1 error, 0 warnings")) << ending.out;
}

TEST_F(CourseCommands, CheckShowsACourseInFigures) {
    const Ending ending = run(tools::runCheck, {QStringLiteral("--figures"), course});
    EXPECT_EQ(ending.status, 0);
    EXPECT_TRUE(contains(ending.out, "unit   questions    points")) << ending.out;
    EXPECT_TRUE(contains(ending.out, "all           16 ")) << ending.out;
    EXPECT_EQ(run(tools::runCheck, {QStringLiteral("--figures"), QStringLiteral("--root"), root}).status, 2);
}

TEST_F(CourseCommands, CheckLeavesWarningsOutWhereErrorsAloneAreWanted) {
    append("/unit01/newword.csv", "45,Seoul,서울\n");
    EXPECT_EQ(run(tools::runCheck, {course}).status, 1);
    EXPECT_EQ(run(tools::runCheck, {QStringLiteral("--errors-only"), course}).status, 0);
}

TEST_F(CourseCommands, CheckCountsFindingsByRule) {
    append("/unit01/newword.csv", "45,ox,황소\n45,ax,도끼\n");
    EXPECT_TRUE(contains(run(tools::runCheck, {QStringLiteral("--summary"), course}).out, "2 word-length"));
}

TEST_F(CourseCommands, CheckTellsATableThatCannotBeReadAndGoesOn) {
    append("/unit01/newword.csv", "45,ox,황소\n");
    append("/unit01/gram_tip2.csv", "recordno,tip2\n45\n");
    const Ending ending = run(tools::runCheck, {course});
    EXPECT_TRUE(contains(ending.out, "gram_tip2.csv:2, field 'tip2': error: the row has 1 field,"))
        << ending.out;
    EXPECT_TRUE(contains(ending.out, "newword.csv:12")) << ending.out;
}

TEST_F(CourseCommands, CheckTellsAFieldThatCannotBeReadOnce) {
    append("/unit01/newword.csv", "4x,lamp,등\n");
    const std::string out = run(tools::runCheck, {course}).out;
    const std::string place = "newword.csv:12, field 'recordno'";
    EXPECT_NE(out.find(place), std::string::npos) << out;
    EXPECT_EQ(out.find(place), out.rfind(place)) << out;
}

TEST_F(CourseCommands, AFindingKeepsItsTwoLinesWhateverStandsInTheField) {
    append("/unit01/newword.csv", "45,\"la\nmp\",등\n");
    EXPECT_TRUE(contains(run(tools::runCheck, {course}).out, "'la\\u000amp' cannot be spelled"));
}

TEST_F(CourseCommands, CheckListsItsRules) {
    const Ending ending = run(tools::runCheck, {QStringLiteral("--rules")});
    EXPECT_EQ(ending.status, 0);
    EXPECT_TRUE(contains(ending.out, "walk-hole")) << ending.out;
}

TEST_F(CourseCommands, AWrongCallEndsWith2) {
    EXPECT_EQ(run(tools::runCheck, {QStringLiteral("--nonsense")}).status, 2);
    EXPECT_EQ(run(tools::runCheck, {QStringLiteral("--help-all")}).status, 2);
    EXPECT_EQ(run(tools::runCheck, {course + QStringLiteral("/nowhere")}).status, 2);
    EXPECT_EQ(run(tools::runCheck, {course, QStringLiteral("--root"), root}).status, 2);
    EXPECT_EQ(run(tools::runBuild, {course}).status, 2);
    EXPECT_TRUE(contains(run(tools::runBuild, {}).error, "course build --help"));
}

TEST_F(CourseCommands, HelpNamesTheCommandAsItIsCalled) {
    const Ending check = run(tools::runCheck, {QStringLiteral("--help")});
    EXPECT_EQ(check.status, 0);
    EXPECT_TRUE(contains(check.out, "Usage: course check [options] [folder]")) << check.out;
    const Ending build = run(tools::runBuild, {QStringLiteral("--help")});
    EXPECT_EQ(build.status, 0);
    EXPECT_TRUE(contains(build.out, "Usage: course build [options] [folder]")) << build.out;
}

TEST_F(CourseCommands, BuildMakesStoresThatCheckFindsWhole) {
    EXPECT_EQ(run(tools::runBuild, {QStringLiteral("--root"), root, course}).status, 0);
    const Ending ending = run(tools::runCheck, {QStringLiteral("--root"), root});
    EXPECT_TRUE(contains(ending.out, "0 errors")) << ending.out;
    // Nothing has spoken the words, and the video was never made.
    EXPECT_TRUE(contains(ending.out, "[word-sound]")) << ending.out;
    EXPECT_TRUE(contains(ending.out, "[video-missing]")) << ending.out;
}

TEST_F(CourseCommands, ACourseWithAnErrorIsNotBuilt) {
    append("/unit01/newword.csv", "45,ox,황소\n");
    const Ending ending = run(tools::runBuild, {QStringLiteral("--root"), root, course});
    EXPECT_EQ(ending.status, 1);
    EXPECT_TRUE(contains(ending.error, "1 error, and nothing was built")) << ending.error;
    EXPECT_FALSE(QFileInfo::exists(root));
}

TEST_F(CourseCommands, BuildTellsEveryPlaceThatCannotBeRead) {
    append("/unit01/newword.csv", "4x,lamp,등\n45\n");
    const Ending ending = run(tools::runBuild, {QStringLiteral("--root"), root, course});
    EXPECT_EQ(ending.status, 1);
    EXPECT_TRUE(contains(ending.error, "newword.csv:12, field 'recordno'")) << ending.error;
    EXPECT_TRUE(contains(ending.error, "newword.csv:13, field 'word'")) << ending.error;
    EXPECT_FALSE(QFileInfo::exists(root));
}

TEST_F(CourseCommands, BuildLeavesForeignFoldersAlone) {
    QDir().mkpath(root);
    QFile file(root + QStringLiteral("/letter.txt"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    EXPECT_EQ(run(tools::runBuild, {QStringLiteral("--root"), root, course}).status, 1);
    EXPECT_EQ(QDir(root).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList{QStringLiteral("letter.txt")});
}

TEST_F(CourseCommands, ATopicTableWithoutARowIsToldInOneSentence) {
    QFile topic(course + QStringLiteral("/topic.csv"));
    ASSERT_TRUE(topic.open(QIODevice::WriteOnly));
    topic.write("topicno,Title\n");
    topic.close();
    const Ending ending = run(tools::runBuild, {QStringLiteral("--root"), root, course});
    EXPECT_EQ(ending.status, 1);
    EXPECT_TRUE(
        contains(ending.error, "topic.csv:1: error: the table has no row, so that the course has no unit"))
        << ending.error;
}

TEST_F(CourseCommands, ATableThatIsADeviceIsNotRead) {
    const QString table = course + QStringLiteral("/unit01/newword.csv");
    QFile::remove(table);
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/zero"), table));
    const Ending ending = run(tools::runCheck, {course});
    EXPECT_EQ(ending.status, 1);
    EXPECT_TRUE(contains(ending.out, "newword.csv: error: it is no regular file")) << ending.out;
}

TEST_F(CourseCommands, AnEmptyNameForTheRootIsAWrongCall) {
    for (int (*command)(const QStringList&) : {tools::runBuild, tools::runCheck, tools::runExportScores}) {
        const Ending ending =
            run(command, {QStringLiteral("--root"), QString(), QStringLiteral("--csv"), QStringLiteral("-")});
        EXPECT_EQ(ending.status, 2);
    }
    const Ending build = run(tools::runBuild, {QStringLiteral("--root"), QString(), course});
    EXPECT_EQ(build.status, 2);
    EXPECT_TRUE(contains(build.error, "--root: a folder needs a name, and the one given is empty."))
        << build.error;
    const auto import = [](const QStringList& arguments) { return tools::runImport(arguments); };
    EXPECT_EQ(run(import, {QStringLiteral("--root"), QString(), course}).status, 2);
}

TEST(StudentNumber, IsRefusedInOneSentenceWhereItCannotNameAFile) {
    for (const char* number : {"1001", "2002-1", "kim.haneul", "김하늘", "a_b@c"})
        EXPECT_EQ(tools::studentNumberProblem(QString::fromUtf8(number)), QString()) << number;
    EXPECT_EQ(tools::studentNumberProblem(QString()), QStringLiteral("a student number cannot be empty."));
    EXPECT_EQ(tools::studentNumberProblem(QStringLiteral("10\n01")),
              QStringLiteral("a student number holds letters and digits, not '10?01'."));
    for (const char* number : {" ", "..\\x", "../x", "a'b", "1:2", "x\ty", " 1001", "1001 ", "1*", "\x7f"})
        EXPECT_FALSE(tools::studentNumberProblem(QString::fromUtf8(number)).isEmpty()) << number;
    EXPECT_FALSE(tools::studentNumberProblem(QString(200, u'1')).isEmpty());
}

}  // namespace
