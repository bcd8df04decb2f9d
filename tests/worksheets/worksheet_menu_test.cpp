#include "worksheets/worksheet_menu.h"

#include "platform/report_preview.h"
#include "tests/worksheets/sheet_desk.h"

#include <gtest/gtest.h>

#include <set>

using platform::Label;
using support::click;
using support::courseStore;
using support::Desk;
using support::find;
using support::masterStore;
using support::settle;
using support::sheetStore;
using worksheets::WorksheetMenu;

namespace {

const QString refusal = QStringLiteral("해당 레슨은 워크시트가 제공되지 않는 레슨입니다.");

/// The menu over a course of a test's own, with the real templates.
class WorksheetMenuTest : public ::testing::Test {
   protected:
    WorksheetMenuTest() {
        installReports(desk_);
        for (int topic = 1; topic <= 24; ++topic)
            desk_.exec(sheetStore, "insert into topic values(" + std::to_string(topic) + ",'단원 " +
                                       std::to_string(topic) + "')");
    }

    void addStep(int recordNo, int topicNo, int pageNo, const std::string& type = "Quiz",
                 const std::string& useData = "YES") {
        const std::string number = std::to_string(recordNo);
        desk_.exec(sheetStore,
                   "insert into tablework(recordno,topicno,pageno,Type,Title,guide,guide2,wordno,usedata,"
                   "useform,quizno) values(" +
                       number + "," + std::to_string(topicNo) + "," + std::to_string(pageNo) + ",'" + type +
                       "','제목','안내','지시 " + number + "',0,'" + useData + "','frmQuiz',5)");
    }
    void addQuestions(int recordNo, int count) {
        std::string sql;
        for (int i = 1; i <= count; ++i) {
            const std::string n = std::to_string(recordNo) + "-" + std::to_string(i);
            sql +=
                "insert into tovalin1_quiz_data(topicno,recordno,orderno,q1,q2,q3,q4,a1,a2,autono) "
                "values(1," +
                std::to_string(recordNo) + "," + std::to_string(i) + ",'" + n +
                " asks ____.','p','q','Blank','a" + std::to_string(i) + "',''," +
                std::to_string(recordNo * 100 + i) + ");";
        }
        desk_.exec(masterStore, sql);
    }

    WorksheetMenu* open(int topicNo = 1) {
        desk_.session.topicNo = topicNo;
        menu_ = static_cast<WorksheetMenu*>(desk_.open(QStringLiteral("frmWorkSheet")));
        return menu_;
    }
    Label& topic(int index) { return find<Label>(menu_, QStringLiteral("lblTopic(%1)").arg(index)); }
    Label& lesson(int index) { return find<Label>(menu_, QStringLiteral("lblLessonNo(%1)").arg(index)); }
    platform::ReportPreview* preview() { return menu_->report().window(); }
    QString reportName() { return menu_->report().file().mid(sheetFolder.size()); }
    void closePreview() {
        ASSERT_NE(preview(), nullptr);
        QTest::keyClick(preview(), Qt::Key_Escape);
        settle();
    }
    QStringList lines(const std::string& fields = "word1") {
        return desk_.rows(sheetStore, "select " + fields + " from tempword order by orderno");
    }

    Desk desk_;
    WorksheetMenu* menu_ = nullptr;
};

}  // namespace

TEST_F(WorksheetMenuTest, OpensOnTheUnitInHandWithItsLessons) {
    addStep(40, 3, 1);
    addStep(41, 3, 2, "Quiz", "NO");
    addStep(43, 3, 3, "Final");
    addStep(50, 4, 1);
    ASSERT_NE(open(3), nullptr) << desk_.failure().toStdString();
    EXPECT_EQ(find<Label>(menu_, QStringLiteral("lblTopic2")).caption(), QStringLiteral("단원 3"));
    EXPECT_EQ(topic(23).caption(), QStringLiteral("단원 24"));
    EXPECT_EQ(lesson(0).caption(), QStringLiteral("1"));
    EXPECT_EQ(lesson(1).caption(), QStringLiteral("2"));
    EXPECT_EQ(lesson(2).caption(), QStringLiteral("F"));
    EXPECT_TRUE(lesson(2).isVisible());
    EXPECT_FALSE(lesson(3).isVisible());
    EXPECT_EQ(lesson(1).palette().color(QPalette::Window).rgb(), platform::colour::red);
    EXPECT_EQ(lesson(0).palette().color(QPalette::Window).rgb(), platform::colour::white);
    EXPECT_EQ(menu_->property("picture").toString(), QStringLiteral("table2011.jpg"));
    EXPECT_EQ(find<Label>(menu_, QStringLiteral("Label1")).caption(), QStringLiteral("Unit No"));
}

TEST_F(WorksheetMenuTest, AClickOnAUnitListsItsLessonsAndTakesItsTitle) {
    addStep(40, 3, 1, "Quiz", "NO");
    addStep(50, 4, 1);
    addStep(51, 4, 2);
    open(3);
    click(topic(3));
    EXPECT_EQ(desk_.session.topicNo, 4);
    EXPECT_EQ(find<Label>(menu_, QStringLiteral("lblTopic2")).caption(), QStringLiteral("단원 4"));
    EXPECT_TRUE(lesson(1).isVisible());
    EXPECT_EQ(lesson(0).palette().color(QPalette::Window).rgb(), platform::colour::white);
    click(topic(10));
    EXPECT_FALSE(lesson(0).isVisible());
}

TEST_F(WorksheetMenuTest, AUnitWithMoreLessonsThanLabelsEndsTheRun) {
    for (int page = 1; page <= 23; ++page)
        addStep(100 + page, 2, page);
    open(1);
    click(topic(1));
    EXPECT_TRUE(desk_.failure().contains(QStringLiteral("lblLessonNo(22)"))) << desk_.failure().toStdString();
}

TEST_F(WorksheetMenuTest, AClickOnALessonShowsItsSheet) {
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

TEST_F(WorksheetMenuTest, TheHeaderTablesHoldOneRowAfterEveryClick) {
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

TEST_F(WorksheetMenuTest, TheCopyAtTheFixedPlaceIsUsedAndTheCourseIsLeftAlone) {
    addStep(40, 3, 1);
    addQuestions(40, 2);
    desk_.exec(courseStore, "insert into quiz_data_New3(recordno,q1) values(5,'of the screen')");
    open(3);
    click(lesson(0));
    EXPECT_EQ(desk_.rows(courseStore, "select recordno,q1 from quiz_data_New3"),
              QStringList{QStringLiteral("5|of the screen")});
    EXPECT_EQ(desk_.rows(sheetStore, "select count(*) from quiz_data_New3"),
              QStringList{QStringLiteral("2")});
    EXPECT_EQ(desk_.rows(courseStore, "select count(*) from tempword"), QStringList{QStringLiteral("0")});
}

TEST_F(WorksheetMenuTest, ARefusedLessonSaysSoBeforeAnyReportTableIsTouched) {
    addStep(29, 3, 1, "Lesson");
    addQuestions(29, 2);
    desk_.exec(sheetStore,
               "insert into student values('old','old',1); insert into tempword(word1) values('old')");
    open(3);
    click(lesson(0));
    ASSERT_EQ(desk_.boxes.shown.size(), 1U);
    EXPECT_EQ(desk_.boxes.lastText(), refusal);
    EXPECT_EQ(desk_.boxes.shown[0].icon, platform::BoxIcon::Information);
    EXPECT_EQ(preview(), nullptr);
    EXPECT_EQ(desk_.rows(sheetStore, "select Name from student"), QStringList{QStringLiteral("old")});
    EXPECT_EQ(lines(), QStringList{QStringLiteral("old")});
    // The working data have been prepared by then.
    EXPECT_EQ(desk_.rows(sheetStore, "select count(*) from quiz_data_New3"),
              QStringList{QStringLiteral("2")});
    EXPECT_EQ(desk_.session.recordNo, 29);
}

TEST_F(WorksheetMenuTest, ARedLessonIsTreatedLikeAnyOther) {
    addStep(40, 3, 1, "Quiz", "NO");
    addQuestions(40, 1);
    open(3);
    click(lesson(0));
    EXPECT_NE(preview(), nullptr);
    EXPECT_TRUE(desk_.boxes.shown.empty());
}

TEST_F(WorksheetMenuTest, Step170IsRefusedEvenThoughBothTablesCarryIt) {
    addStep(170, 17, 1);
    addQuestions(170, 1);
    open(17);
    click(lesson(0));
    EXPECT_EQ(desk_.boxes.texts(), QStringList{refusal});
    EXPECT_EQ(preview(), nullptr);
}

TEST_F(WorksheetMenuTest, Step124RunsThePreviousReportOnItsOwnData) {
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

TEST_F(WorksheetMenuTest, Step124WithoutAnyReportBeforeEndsTheRunAfterFillingItsLines) {
    addStep(124, 11, 1);
    addQuestions(124, 2);
    open(11);
    click(lesson(0));
    EXPECT_TRUE(desk_.failure().contains(QStringLiteral("no report was chosen")))
        << desk_.failure().toStdString();
    EXPECT_EQ(lines().size(), 2);
}

TEST_F(WorksheetMenuTest, ATeacherGetsTheKeyWhenTheSheetIsClosedOverTheSameTables) {
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

TEST_F(WorksheetMenuTest, ALearnerGetsNoKey) {
    addStep(40, 3, 1);
    addQuestions(40, 1);
    desk_.session.teacherMode = QStringLiteral("teacher");
    open(3);
    click(lesson(0));
    closePreview();
    EXPECT_EQ(preview(), nullptr);
}

TEST_F(WorksheetMenuTest, Step208GivesTheTeacherTheSameSheetTwice) {
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

TEST_F(WorksheetMenuTest, Step256IsBuiltWithTheSecondColumnAndPrintedWithTheFourthTemplate) {
    addStep(256, 24, 1);
    addQuestions(256, 1);
    open(24);
    click(lesson(0));
    EXPECT_EQ(reportName(), QStringLiteral("gram4.rpt"));
    EXPECT_EQ(lines("word1,word2,word3"), QStringList{QStringLiteral("256-1 asks ____.|p|")});
}

TEST_F(WorksheetMenuTest, AFinalDrawsItsQuestionsAnewEachTime) {
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

TEST_F(WorksheetMenuTest, AFinalWithoutMasterRowsSaysSoAndPrintsNothing) {
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

TEST_F(WorksheetMenuTest, ALessonIsFoundByItsPlaceSoAPageNumberOutOfPlaceKeepsTheStepInHand) {
    addStep(40, 3, 1);
    addStep(41, 3, 7);
    addQuestions(40, 1);
    open(3);
    click(lesson(0));
    closePreview();
    EXPECT_EQ(lesson(1).caption(), QStringLiteral("7"));
    click(lesson(1));
    ASSERT_NE(preview(), nullptr);
    EXPECT_EQ(desk_.session.recordNo, 40);
}

TEST_F(WorksheetMenuTest, ThePreviewStandsOverTheMenuAndKeepsItFromClicks) {
    addStep(40, 3, 1);
    addQuestions(40, 1);
    open(3);
    click(lesson(0));
    ASSERT_NE(preview(), nullptr);
    EXPECT_EQ(preview()->windowModality(), Qt::ApplicationModal);
    EXPECT_TRUE(preview()->isWindow());
    EXPECT_TRUE(preview()->isVisible());
}

TEST_F(WorksheetMenuTest, AMissingTemplateEndsTheRunWithItsName) {
    addStep(40, 3, 1);
    addQuestions(40, 1);
    QFile::remove(desk_.file(sheetFolder + QStringLiteral("gram4.rpt")));
    open(3);
    click(lesson(0));
    EXPECT_TRUE(desk_.failure().contains(sheetFolder + QStringLiteral("gram4.rpt")))
        << desk_.failure().toStdString();
    EXPECT_TRUE(desk_.failure().contains(QStringLiteral("'53'")));
}

TEST_F(WorksheetMenuTest, TheExitButtonLightsOnceAndRestsWhenTheMouseCrossesTheForm) {
    addStep(40, 3, 1);
    open(3);
    auto& exit = find<platform::PictureButton>(menu_, QStringLiteral("picExit"));
    const auto picture = [&] { return exit.property("picture").toString().section(u'\\', -1); };
    EXPECT_EQ(picture(), QStringLiteral("back1.jpg"));
    support::hover(*menu_);
    support::hover(exit);
    support::hover(exit);
    EXPECT_EQ(picture(), QStringLiteral("back2.jpg"));
    EXPECT_EQ(desk_.sound.names(), QStringList{QStringLiteral("touchit.wav")});
    support::hover(*menu_);
    EXPECT_EQ(picture(), QStringLiteral("back1.jpg"));
}

TEST_F(WorksheetMenuTest, ExitGoesBackToTheTableThatOpenedIt) {
    addStep(40, 3, 1);
    desk_.exec(courseStore,
               "insert into topic values(1,'t'); insert into tablework(recordno,topicno,pageno,Type,Title,"
               "Data,wordno) values(40,1,1,'Quiz','제목','d',0)");
    core::Screen* table = desk_.open(QStringLiteral("frmTable"));
    ASSERT_NE(table, nullptr) << desk_.failure().toStdString();
    click(find(table, QStringLiteral("picRepeat")));
    menu_ = static_cast<WorksheetMenu*>(desk_.awaitScreen(QStringLiteral("frmWorkSheet")));
    ASSERT_NE(menu_, nullptr);
    click(find(menu_, QStringLiteral("picExit")));
    EXPECT_TRUE(support::waitFor([&] { return desk_.top() == table; }));
    EXPECT_TRUE(desk_.failure().isEmpty());
}

TEST_F(WorksheetMenuTest, EveryLessonCanBeReachedAndPrintedByKeysAlone) {
    addStep(40, 3, 1);
    addQuestions(40, 1);
    open(3);
    lesson(0).setFocus(Qt::TabFocusReason);
    EXPECT_FALSE(lesson(0).accessibleName().isEmpty());
    QTest::keyClick(&lesson(0), Qt::Key_Space);
    settle();
    EXPECT_NE(preview(), nullptr);
}
