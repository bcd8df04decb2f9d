#include "tests/support/desk.h"

#include "tools/export/command.h"
#include "tools/export/page.h"
#include "tools/export/scores.h"

#include <QBuffer>
#include <QFile>
#include <QPdfWriter>

#include <gtest/gtest.h>

namespace {

using namespace tools;

class ExportScores : public ::testing::Test {
   protected:
    void SetUp() override {
        desk_.exec(support::courseStore,
                   "INSERT INTO topic VALUES (1, '명사'), (2, '관사');"
                   "INSERT INTO tablework (recordno, topicno, pageno, Type, Title, Data) VALUES"
                   " (1, 1, 1, 'Lesson', '명사', '복수형'), (2, 1, 2, 'Quiz', '명사', ''), (21, 2, 1, "
                   "'Lesson', '관사', 'the')");
    }

    void addScore(const char* values) {
        desk_.exec(support::scoreStore, std::string("INSERT INTO score (recordno, datapage, dayno, "
                                                    "lessontype, vtitle, s1, s2, s3, s4, s5, vDate, "
                                                    "studentno, program, studentname) VALUES (") +
                                            values + ")");
    }

    std::vector<LearnerScores> read(const QString& student = {}) {
        problems_.clear();
        const platform::Drives drives(desk_.root());
        return readScores({drives, QStringLiteral("D:\\")}, student, problems_);
    }

    QString file(const char* name) const { return folder_.filePath(QLatin1String(name)); }
    static QByteArray content(const QString& file) {
        QFile opened(file);
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
    }

    support::Desk desk_;
    QTemporaryDir folder_;
    QStringList problems_;
};

constexpr const char* firstStep =
    "1,1,1,'Lesson','','100','80','85',100,'','2026-01-02','1001','Tovalin1','김하늘'";
constexpr const char* secondStep =
    "2,1,2,'Quiz','','N/A','N/A','N/A',66.67,'','2026-01-03','1001','Tovalin1','김하늘'";
constexpr const char* begunStep =
    "21,2,1,'Lesson','','0','0','0',0,'','2026-01-04','1001','Tovalin1','김하늘'";

TEST_F(ExportScores, GiveOneLineAStepWithTheTitlesOfTheCourse) {
    addScore(secondStep);
    addScore(firstStep);
    const QByteArray bytes = scoresAsCsv(read());
    const QString csv = QString::fromUtf8(bytes);
    EXPECT_TRUE(problems_.isEmpty());
    EXPECT_EQ(
        csv.split(QStringLiteral("\r\n")).mid(1),
        (QStringList{QStringLiteral(
                         "1001,김하늘,Tovalin1,1,명사,1,1,Lesson,복수형,100,80,85,100,,finished,2026-01-02"),
                     QStringLiteral(
                         "1001,김하늘,Tovalin1,1,명사,2,2,Quiz,명사,N/A,N/A,N/A,66.67,,finished,2026-01-03"),
                     QString()}));
    EXPECT_TRUE(bytes.startsWith("\xef\xbb\xbf"));
}

TEST_F(ExportScores, QuoteFieldsAsSpreadsheetsDo) {
    addScore("1,1,1,'Lesson','one, \"two\"','','','',100,'','2026-01-02','1001','Tovalin1','O''Neil'");
    EXPECT_TRUE(scoresAsCsv(read()).contains("\"one, \"\"two\"\"\""));
}

TEST_F(ExportScores, TellAStepThatIsOnlyBegun) {
    addScore(begunStep);
    EXPECT_TRUE(scoresAsCsv(read()).contains(",0,,begun,2026-01-04"));
    EXPECT_EQ(read().at(0).finished(), 0);
    EXPECT_EQ(read().at(0).average(), 0);
}

TEST_F(ExportScores, CountUnitsOverTheirFinishedSteps) {
    addScore(firstStep);
    addScore(secondStep);
    addScore(begunStep);
    const LearnerScores learner = read().at(0);
    ASSERT_EQ(learner.units.size(), 2U);
    EXPECT_EQ(learner.units[0].title, QStringLiteral("명사"));
    EXPECT_EQ(learner.units[0].steps, 2);
    EXPECT_EQ(learner.units[0].finished, 2);
    EXPECT_NEAR(learner.units[0].average, 83.335, 1e-9);
    EXPECT_EQ(learner.units[1].finished, 0);
    EXPECT_EQ(learner.courseSteps(), 3);
    EXPECT_EQ(learner.lastDate, QStringLiteral("2026-01-04"));
}

TEST_F(ExportScores, GiveOneLearnerOrAll) {
    addScore(firstStep);
    addScore("1,1,1,'Lesson','','','','',70,'','2026-01-02','1002','Tovalin1','지우'");
    EXPECT_EQ(read().size(), 2U);
    ASSERT_EQ(read(QStringLiteral("1002")).size(), 1U);
    EXPECT_EQ(read(QStringLiteral("1002"))[0].name, QStringLiteral("지우"));
    EXPECT_TRUE(read(QStringLiteral("9")).empty());
    EXPECT_TRUE(problems_.value(0).startsWith(QStringLiteral("There is no score of student 9 in ")));
}

TEST_F(ExportScores, CallTheLearnerByTheLatestName) {
    addScore("1,1,1,'Lesson','','','','',70,'','2026-02-02','1001','Tovalin1','new'");
    addScore("2,1,1,'Lesson','','','','',70,'','2026-01-02','1001','Tovalin1','old'");
    EXPECT_EQ(read().at(0).name, QStringLiteral("new"));
}

TEST_F(ExportScores, SendAGenuineAccessFileToTheImport) {
    QFile foreign(desk_.file(QStringLiteral("C:\\A_Mendori\\Main\\DbScore_7.mdb")));
    ASSERT_TRUE(foreign.open(QIODevice::WriteOnly));
    foreign.write(QByteArrayLiteral("\x00\x01\x00\x00Standard Jet DB\x00") + QByteArray(100, '\0'));
    foreign.close();
    addScore(firstStep);
    EXPECT_EQ(read().size(), 1U);
    ASSERT_EQ(problems_.size(), 1);
    EXPECT_TRUE(problems_[0].contains(QStringLiteral("course import")));
}

TEST_F(ExportScores, WriteTableAndPagesFromTheCommandLine) {
    addScore(firstStep);
    EXPECT_EQ(runExportScores({QStringLiteral("--root"), desk_.root(), QStringLiteral("--csv"), file("s.csv"),
                               QStringLiteral("--pdf"), file("s.pdf")}),
              0);
    EXPECT_TRUE(content(file("s.csv")).contains("Lesson"));
    EXPECT_TRUE(content(file("s.pdf")).startsWith("%PDF"));
}

TEST_F(ExportScores, TellAFileThatCannotBeWritten) {
    addScore(firstStep);
    EXPECT_EQ(runExportScores({QStringLiteral("--root"), desk_.root(), QStringLiteral("--csv"),
                               QStringLiteral("/no/such/s.csv")}),
              1);
    EXPECT_EQ(runExportScores({QStringLiteral("--root"), desk_.root()}), 2);
    EXPECT_EQ(runExportScores({QStringLiteral("--nonsense")}), 2);
}

TEST(ScorePages, KeepRoomForThePictureOnTheFirst) {
    EXPECT_EQ(rowsOnPages(5, 29, 44), (std::vector<int>{5}));
    EXPECT_EQ(rowsOnPages(29, 29, 44), (std::vector<int>{29}));
    EXPECT_EQ(rowsOnPages(100, 29, 44), (std::vector<int>{29, 44, 27}));
    EXPECT_EQ(rowsOnPages(0, 29, 44), (std::vector<int>{0}));
}

TEST(ScorePages, BeginANewPageForEachLearner) {
    LearnerScores learner;
    learner.studentNo = QStringLiteral("1001");
    for (int i = 1; i <= 60; ++i) {
        StepScore step;
        step.step = i;
        step.unit = 1;
        step.main = QStringLiteral("80");
        learner.steps.push_back(step);
    }
    learner.units.push_back({1, QStringLiteral("명사"), 60, 60, 80});
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
    EXPECT_EQ(printScores(writer, {learner, learner}), 4);
}

TEST_F(ExportScores, LetNoCellBeRunAsAFormula) {
    addScore(
        "1,1,1,'+1','=HYPERLINK(\"http://"
        "x\")','-2+3','@SUM(A1)','\t=1',100,'','2026-01-02','=1+1','Tovalin1',"
        "'＝cmd'");
    const QString line = QString::fromUtf8(scoresAsCsv(read())).split(QStringLiteral("\r\n")).at(1);
    EXPECT_EQ(line,
              QStringLiteral("'=1+1,'＝cmd,Tovalin1,1,명사,1,1,'+1,\"'=HYPERLINK(\"\"http://x\"\")\",'-2+3,"
                             "'@SUM(A1),'\t=1,100,,finished,2026-01-02"));
}

TEST_F(ExportScores, NeverReplaceADeviceAndSayWhyTheyCannotBeWritten) {
    addScore(firstStep);
    const QString link = file("scores.csv");
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), link));
    for (const char* option : {"--csv", "--pdf"}) {
        testing::internal::CaptureStderr();
        EXPECT_EQ(runExportScores({QStringLiteral("--root"), desk_.root(), QLatin1String(option), link}), 1);
        const std::string told = testing::internal::GetCapturedStderr();
        EXPECT_NE(told.find("scores.csv cannot be written: No space left on device."), std::string::npos)
            << told;
        EXPECT_TRUE(QFileInfo(link).isSymLink());
    }
}

}  // namespace
