#include "worksheets/worksheet_menu.h"

#include "tests/worksheets/menu_desk.h"

using platform::Label;
using support::click;
using support::courseStore;
using support::find;
using support::refusal;
using support::settle;
using support::sheetStore;
using worksheets::WorksheetMenu;

namespace {

class WorksheetMenuTest : public support::MenuTest {};

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

TEST_F(WorksheetMenuTest, ARedLessonOfTheRefusalListIsRefusedAndAWhiteOneToo) {
    addStep(56, 5, 1, "Lesson", "NO");
    addStep(57, 5, 2, "Quiz", "NO");
    addStep(67, 5, 3, "Lesson", "YES");
    addQuestions(57, 1);
    open(5);
    click(lesson(0));
    click(lesson(2));
    EXPECT_EQ(desk_.boxes.texts(), (QStringList{refusal, refusal}));
    click(lesson(1));
    EXPECT_NE(preview(), nullptr);
}

TEST_F(WorksheetMenuTest, TheTextsOfTheMenuAreTheCoursesOwn) {
    addStep(1, 1, 1);
    open();
    const auto caption = [&](const char* name) { return find<Label>(menu_, QLatin1String(name)).caption(); };
    EXPECT_EQ(caption("lblBookTitle"), QStringLiteral("Grammar WorkSheet"));
    EXPECT_EQ(caption("Label2"),
              QStringLiteral("아래의 번호를 클릭하면 해당 레슨의 WorkSheet가 출력됩니다. (빨간 색은 "
                             "제공되지 않습니다.)"));
    EXPECT_EQ(caption("Label4"),
              QStringLiteral("<Final>인 경우에는 랜덤으로 데이타가 선정되어 매번 출력문이 다릅니다."));
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
