#include "platform/reports/data.h"
#include "tests/worksheets/menu_desk.h"

#include <set>

using support::click;
using support::sheetStore;

namespace {

/// What comes up when a lesson was clicked.
class WorksheetReports : public support::MenuTest {};

}  // namespace

TEST_F(WorksheetReports, AClickOnALessonShowsItsSheet) {
    addStep(40, 3, 1);
    addQuestions(40, 3);
    open(3);
    click(lesson(0));
    ASSERT_NE(preview(), nullptr) << desk_.failure().toStdString();
    EXPECT_EQ(preview()->objectName(), QStringLiteral("frmReport"));
    EXPECT_EQ(reportName(), QStringLiteral("gram4.rpt"));
    EXPECT_EQ(
        lines("word1,word2,word3,word4,word5,orderno"),
        (QStringList{QStringLiteral("40-1 asks ____.|||a1||1"), QStringLiteral("40-2 asks ____.|||a2||2"),
                     QStringLiteral("40-3 asks ____.|||a3||3")}));
    closePreview();
    EXPECT_EQ(preview(), nullptr);
    EXPECT_EQ(desk_.top(), menu_);
    EXPECT_TRUE(desk_.boxes.shown.empty());
}

TEST_F(WorksheetReports, TheHeaderTablesHoldOneRowAfterEveryClick) {
    addStep(40, 3, 1);
    addStep(41, 3, 2);
    addQuestions(40, 2);
    addQuestions(41, 1);
    desk_.exec(sheetStore,
               "insert into student values('x','y',9); insert into student values('x','y',9);"
               "insert into guide values(1,'old'); insert into tempword(word1) values('old')");
    open(3);
    for (const int index : {0, 1, 0}) {
        click(lesson(index));
        closePreview();
        const QString page = QString::number(index + 1);
        EXPECT_EQ(desk_.rows(sheetStore, "select Name,topic,lessonno from student"),
                  QStringList{QStringLiteral("김하늘|단원 3|") + page});
        const QString number = QString::number(40 + index);
        EXPECT_EQ(desk_.rows(sheetStore, "select recordno,guide from guide"),
                  QStringList{number + QStringLiteral("|지시 ") + number});
        EXPECT_EQ(lines().size(), index == 0 ? 2 : 1);
    }
}

TEST_F(WorksheetReports, Step124RunsThePreviousReportOnItsOwnData) {
    addStep(121, 11, 1);
    addStep(124, 11, 2);
    addQuestions(121, 1);
    addQuestions(124, 2);
    open(11);
    click(lesson(0));
    EXPECT_EQ(reportName(), QStringLiteral("gram5.rpt"));
    closePreview();
    click(lesson(1));
    ASSERT_NE(preview(), nullptr) << desk_.failure().toStdString();
    EXPECT_EQ(reportName(), QStringLiteral("gram5.rpt"));
    EXPECT_EQ(lines().size(), 2);
    EXPECT_EQ(lines().value(0), QStringLiteral("124-1 asks ____."));
}

TEST_F(WorksheetReports, Step124WithoutAnyReportBeforeEndsTheRunAfterFillingItsLines) {
    addStep(124, 11, 1);
    addQuestions(124, 2);
    open(11);
    click(lesson(0));
    EXPECT_TRUE(desk_.failure().contains(QStringLiteral("no report was chosen")))
        << desk_.failure().toStdString();
    EXPECT_EQ(lines().size(), 2);
}

TEST_F(WorksheetReports, ATeacherGetsTheKeyWhenTheSheetIsClosedOverTheSameTables) {
    addStep(40, 3, 1);
    addQuestions(40, 2);
    desk_.session.teacherMode = QStringLiteral("Teacher");
    open(3);
    click(lesson(0));
    EXPECT_EQ(reportName(), QStringLiteral("gram4.rpt"));
    closePreview();
    ASSERT_NE(preview(), nullptr) << desk_.failure().toStdString();
    EXPECT_EQ(reportName(), QStringLiteral("gram4_t.rpt"));
    EXPECT_EQ(lines().size(), 2);
    closePreview();
    EXPECT_EQ(preview(), nullptr);
    EXPECT_EQ(desk_.top(), menu_);
}

TEST_F(WorksheetReports, ALearnerGetsNoKey) {
    addStep(40, 3, 1);
    addQuestions(40, 1);
    desk_.session.teacherMode = QStringLiteral("teacher");
    open(3);
    click(lesson(0));
    closePreview();
    EXPECT_EQ(preview(), nullptr);
}

TEST_F(WorksheetReports, Step208GivesTheTeacherTheSameSheetTwice) {
    addStep(208, 19, 1);
    addQuestions(208, 1);
    desk_.session.teacherMode = QStringLiteral("Teacher");
    open(19);
    click(lesson(0));
    EXPECT_EQ(reportName(), QStringLiteral("gram5.rpt"));
    closePreview();
    ASSERT_NE(preview(), nullptr);
    EXPECT_EQ(reportName(), QStringLiteral("gram5.rpt"));
}

TEST_F(WorksheetReports, Steps256And257AreBuiltWithTheSecondColumnAndPrintedWithTheFourthTemplate) {
    addStep(256, 24, 1);
    addStep(257, 24, 2);
    addQuestions(256, 1);
    addQuestions(257, 1);
    open(24);
    for (const int index : {0, 1}) {
        click(lesson(index));
        EXPECT_EQ(reportName(), QStringLiteral("gram4.rpt"));
        EXPECT_EQ(lines("word1,word2,word3"),
                  QStringList{QStringLiteral("%1-1 asks ____.|p|").arg(256 + index)});
        closePreview();
    }
}

TEST_F(WorksheetReports, ATeacherOnStep124GetsTheKeyOfThePreviousReportTwice) {
    addStep(121, 11, 1);
    addStep(124, 11, 2);
    addQuestions(121, 1);
    addQuestions(124, 2);
    desk_.session.teacherMode = QStringLiteral("Teacher");
    open(11);
    click(lesson(0));
    closePreview();
    closePreview();
    click(lesson(1));
    EXPECT_EQ(reportName(), QStringLiteral("gram5_t.rpt"));
    closePreview();
    ASSERT_NE(preview(), nullptr) << desk_.failure().toStdString();
    EXPECT_EQ(reportName(), QStringLiteral("gram5_t.rpt"));
    closePreview();
    EXPECT_EQ(preview(), nullptr);
}

TEST_F(WorksheetReports, TheFirstFinalTellsBeforeEachLessonWhatToDoThere) {
    addStep(3, 1, 1);
    addStep(8, 1, 2);
    addStep(14, 1, 3, "Final");
    addQuestions(3, 5);
    addQuestions(8, 5);
    open();
    click(lesson(2));
    ASSERT_NE(preview(), nullptr) << desk_.failure().toStdString();
    closePreview();
    const auto layout = [&] {
        const auto report =
            platform::readReportTemplate(desk_.context().drives, sheetFolder + QStringLiteral("gram2.rpt"));
        return platform::layOutReport(report, platform::readReportData(desk_.context().drives, report));
    };
    const auto heads = [&] {
        QStringList found;
        const auto laidOut = layout();
        for (const auto& piece : laidOut.pages.front().pieces)
            if (piece.role == platform::PieceRole::GroupHead)
                found.append(piece.text);
        return found.join(u' ').simplified();
    };
    EXPECT_EQ(heads(), QStringLiteral("Part 1. 지시 3 Part 2. 지시 8"));
    click(lesson(0));
    ASSERT_NE(preview(), nullptr) << desk_.failure().toStdString();
    EXPECT_EQ(heads(), QString());
}

TEST_F(WorksheetReports, AFinalDrawsItsQuestionsAnewEachTime) {
    addStep(75, 7, 1);
    addStep(94, 7, 2, "Final");
    addQuestions(75, 40);
    desk_.exec(sheetStore,
               "update tablework set quizno=40 where recordno=75;"
               "insert into tablework_final_data(recordno,recordno2,topicno,Title) values(75,93,7,'모두')");
    open(7);
    std::set<QString> draws;
    for (int i = 0; i < 3; ++i) {
        click(lesson(1));
        ASSERT_NE(preview(), nullptr) << desk_.failure().toStdString();
        EXPECT_EQ(reportName(), QStringLiteral("gram7.rpt"));
        EXPECT_EQ(lines().size(), 5);
        draws.insert(lines().join(u'|'));
        closePreview();
    }
    EXPECT_GT(draws.size(), 1U);
    EXPECT_EQ(desk_.session.stepType, QStringLiteral("Final"));
}

TEST_F(WorksheetReports, AFinalWithoutMasterRowsSaysSoAndPrintsNothing) {
    addStep(94, 7, 1, "Final");
    open(7);
    click(lesson(0));
    EXPECT_EQ(desk_.boxes.texts(),
              QStringList{QStringLiteral(
                  "데이타 오류입니다.  Tovalin 프로그램을 재설치하십시오.\n재설치후 같은 오류인 경우에는 "
                  "본사로 연락하십시오.")});
    EXPECT_EQ(preview(), nullptr);
    EXPECT_EQ(desk_.rows(sheetStore, "select count(*) from student"), QStringList{QStringLiteral("1")});
}

TEST_F(WorksheetReports, ThePreviewStandsOverTheMenuAndKeepsItFromClicks) {
    addStep(40, 3, 1);
    addQuestions(40, 1);
    open(3);
    click(lesson(0));
    ASSERT_NE(preview(), nullptr);
    EXPECT_EQ(preview()->windowModality(), Qt::ApplicationModal);
    EXPECT_TRUE(preview()->isWindow());
    EXPECT_TRUE(preview()->isVisible());
}

TEST_F(WorksheetReports, AMissingTemplateEndsTheRunWithItsName) {
    addStep(40, 3, 1);
    addQuestions(40, 1);
    QFile::remove(desk_.file(sheetFolder + QStringLiteral("gram4.rpt")));
    open(3);
    click(lesson(0));
    EXPECT_TRUE(desk_.failure().contains(sheetFolder + QStringLiteral("gram4.rpt")))
        << desk_.failure().toStdString();
    EXPECT_TRUE(desk_.failure().contains(QStringLiteral("'53'")));
}
