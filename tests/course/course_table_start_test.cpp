#include "core/stores.h"
#include "tests/support/table_screen.h"

#include <QFile>

using support::addQuestions;
using support::addSteps;

namespace {

class CourseTableStart : public support::TableScreen {
   protected:
    CourseTableStart() {
        addSteps(desk,
                 {{.recordNo = 30, .topicNo = 3, .pageNo = 2, .useForm = "frmQuiz7", .title = "대명사"},
                  {.recordNo = 29,
                   .topicNo = 3,
                   .pageNo = 1,
                   .type = "Lesson",
                   .useForm = "frmLesson4",
                   .wordNo = 12},
                  {.recordNo = 31, .topicNo = 3, .pageNo = 3, .type = "Lesson", .useForm = "frmLesson24"},
                  {.recordNo = 32, .topicNo = 3, .pageNo = 4, .useForm = "no such form"},
                  {.recordNo = 33, .topicNo = 3, .pageNo = 5, .type = "Final"}});
        addScore(30, 3, "N/A", "70");
        openTable();
    }
    void start(int row, const char* column = "lblTitle") const { support::click(label(column, row)); }
};

}  // namespace

TEST_F(CourseTableStart, AClickOnUnitNoOrTitleStartsTheStep) {
    start(1, "lblRecordNo");
    EXPECT_EQ(navigator.screens(), QStringList{"frmQuiz7"});
    EXPECT_TRUE(table.isNull()) << "the table has gone before";
    openTable();
    start(1, "lblTitle");
    EXPECT_EQ(navigator.screens(), (QStringList{"frmQuiz7", "frmQuiz7"}));
}

TEST_F(CourseTableStart, LessonDateAndScoreHaveNoClick) {
    for (const char* column : {"lblLesson", "lblDate", "lblScore"})
        start(1, column);
    EXPECT_TRUE(navigator.asked.empty());
    EXPECT_FALSE(table.isNull());
}

TEST_F(CourseTableStart, TheStepIsLoadedAndPrepared) {
    addQuestions(desk, 30, 2);
    session.useData = "untouched";
    start(1);
    EXPECT_EQ(session.recordNo, 30);
    EXPECT_EQ(session.topicNo, 3);
    EXPECT_EQ(session.pageNo, 2);
    EXPECT_EQ(session.stepTitle, "대명사 2");
    EXPECT_EQ(session.guideText, "guide 30");
    EXPECT_EQ(session.wordNo, 0);
    EXPECT_EQ(session.stepType, "Quiz");
    EXPECT_EQ(session.useForm, "frmQuiz7");
    EXPECT_EQ(session.hasWords, "NO");
    EXPECT_EQ(session.useData, "untouched");
    EXPECT_EQ(desk.rows(support::courseStore, "select recordno from quiz_data_New3"),
              (QStringList{"30", "30"}));
}

TEST_F(CourseTableStart, AStepAlwaysStartsFromTheTopWhateverItsRowSays) {
    desk.exec(support::scoreStore, "update score set s1='100',s2='90',s3='95'");
    start(1);
    EXPECT_EQ(session.partDone, (std::array<QString, 4>{"NO", "NO", "NO", "NO"}));
}

TEST_F(CourseTableStart, AStepWithWordsStartsOnTheSpellingCoach) {
    start(0);
    EXPECT_EQ(session.hasWords, "YES");
    EXPECT_EQ(session.wordNo, 12);
    EXPECT_EQ(navigator.screens(), QStringList{"frmVoca2"});
}

TEST_F(CourseTableStart, AScreenThatNobodyKnowsLeavesTheFrameAlone) {
    start(3);
    EXPECT_TRUE(navigator.asked.empty());
    EXPECT_TRUE(table.isNull());
    EXPECT_EQ(desk.failure(), "");
}

TEST_F(CourseTableStart, AFinalStepStartsItsFirstQuizWithoutAnAnnouncement) {
    start(4);
    EXPECT_TRUE(desk.boxes.shown.empty());
    EXPECT_EQ(session.finalBaseRecordNo, 33);
    EXPECT_EQ(session.finalStepCount, 2);
    EXPECT_EQ(session.finalStepNo, 1);
    EXPECT_EQ(session.finalItemNo, 1);
    EXPECT_EQ(session.stepType, "Final");
    EXPECT_EQ(session.recordNo, 30);
    EXPECT_EQ(session.hasWords, "NO");
    EXPECT_EQ(navigator.screens(), QStringList{"frmQuiz7"});
    EXPECT_TRUE(table.isNull());
}

TEST_F(CourseTableStart, TheStoredRowDecidesOnUnitAndStep) {
    desk.exec(support::scoreStore, "update score set page2=31, datapage=9, recordno=31");
    support::click(label("lblTopic", 2));
    start(2);
    EXPECT_EQ(session.recordNo, 31);
    EXPECT_EQ(session.topicNo, 3) << "the row of the step has the last word";
    EXPECT_EQ(navigator.screens(), QStringList{"frmLesson24"});
}

TEST_F(CourseTableStart, PicStudyNeverStartsAnything) {
    press("picStudy");
    ASSERT_EQ(desk.boxes.texts(),
              QStringList{"학습할 데이타가 없습니다.  <New Lesson> 또는 <Unit No>를 클릭하십시오.\n\n"
                          "End of Data, Click <New Lesson> or <Unit No>"});
    EXPECT_EQ(desk.boxes.shown[0].icon, platform::BoxIcon::Information);
    EXPECT_TRUE(navigator.asked.empty());
    EXPECT_FALSE(table.isNull());
}

TEST_F(CourseTableStart, WorksheetsAndVideosOpenOverTheTable) {
    press("picRepeat");
    press("picVideo");
    EXPECT_EQ(navigator.screens(), (QStringList{"frmWorkSheet", "frmVideo"}));
    EXPECT_FALSE(table.isNull());
    EXPECT_TRUE(table->isVisible());
}

TEST_F(CourseTableStart, AfterItHasLeftNoPressReachesItsHandlers) {
    const QList<QWidget*> controls = table->findChildren<QWidget*>();
    QTest::mouseClick(&label("lblTitle", 0), Qt::LeftButton);
    ASSERT_FALSE(table.isNull());
    ASSERT_TRUE(table->isUnloaded());
    const QStringList asked = navigator.screens();
    for (QWidget* control : controls) {
        QTest::mouseClick(control, Qt::LeftButton);
        if (auto* button = qobject_cast<QAbstractButton*>(control))
            button->click();
    }
    EXPECT_EQ(desk.failure(), "");
    EXPECT_EQ(navigator.screens(), asked);
    EXPECT_FALSE(navigator.ended);
    EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST_F(CourseTableStart, WhatEndsSomethingStandsNowhereThatBackToTheTableStood) {
    // The exercise screens' button, in the places of the table: both forms stand in the middle of the screen.
    const QRect back(QPoint(688 - (993 - 950) / 2, 16 - (718 - 700) / 2), QSize(136, 44));
    for (const char* button : {"picFinal", "picExit"})
        EXPECT_FALSE(table->placeOf(picture(button)).intersects(back)) << button;
}

TEST_F(CourseTableStart, TabComesToTheWaysOutLast) {
    QStringList stops;
    table->setFocus();
    for (int i = 0; i < 60 && !stops.endsWith("picExit"); ++i) {
        QTest::keyClick(table->focusWidget(), Qt::Key_Tab);
        stops.append(support::focusName(table));
    }
    ASSERT_GE(stops.size(), 6);
    EXPECT_EQ(stops.first(), "lblTopic(0)");
    EXPECT_EQ(stops.mid(stops.size() - 5),
              (QStringList{"picStudy", "picRepeat", "picVideo", "picFinal", "picExit"}));
}

TEST_F(CourseTableStart, PicFinalShowsItsMessageAndLeavesOnlyTheFrame) {
    desk.boxes.onShow = [&](const platform::Message&) { EXPECT_TRUE(table->isUnloaded()); };
    press("picFinal");
    ASSERT_EQ(desk.boxes.texts(), QStringList{"Please Contact Home Office"});
    EXPECT_EQ(desk.boxes.shown[0].icon, platform::BoxIcon::None);
    EXPECT_TRUE(table.isNull());
    EXPECT_TRUE(navigator.asked.empty());
    EXPECT_FALSE(navigator.ended) << "the process keeps running";
}

TEST_F(CourseTableStart, PicExitClosesTheDictionaryAndEndsTheProgramWithoutASave) {
    session.dictionaryDb = core::openStore(context, "C:\\A_Mendori\\Main\\dicword.mdb");
    session.allwordRs = session.dictionaryDb.openRecordset("Select * from allword order by word");
    session.dicwordRs = session.dictionaryDb.openRecordset("Select * from dicword order by word");
    press("picExit");
    EXPECT_TRUE(navigator.ended);
    EXPECT_FALSE(session.dictionaryDb.isOpen() || session.allwordRs.isOpen() || session.dicwordRs.isOpen());
    EXPECT_TRUE(desk.boxes.shown.empty());
    EXPECT_EQ(desk.rows(support::scoreStore, "select count(*) from score"), QStringList{"1"});
}

namespace {

using CourseTableHover = CourseTableStart;

bool isRed(const platform::Label& label) {
    return label.foreColor() == platform::colour::red;
}

}  // namespace

struct HoverCase {
    const char* button;
    const char* atRest;
    const char* lit;
};

class CourseTableButton : public CourseTableStart, public testing::WithParamInterface<HoverCase> {};

TEST_P(CourseTableButton, LightsOnceWithOneSoundUntilTheMouseHasCrossedTheForm) {
    const HoverCase& one = GetParam();
    picture(one.button).show();
    EXPECT_EQ(pictureOf(one.button), one.atRest);
    support::hover(picture(one.button));
    support::hover(picture(one.button));
    EXPECT_EQ(pictureOf(one.button), one.lit);
    EXPECT_EQ(desk.sound.names(), QStringList{"touchit.wav"});
    EXPECT_FALSE(desk.sound.played[0].waited);
    support::hover(*table);
    EXPECT_EQ(pictureOf(one.button), one.atRest);
    EXPECT_EQ(desk.sound.played.size(), 1U) << "going back to rest is silent";
    support::hover(picture(one.button));
    EXPECT_EQ(desk.sound.played.size(), 2U);
}

INSTANTIATE_TEST_SUITE_P(Buttons, CourseTableButton,
                         testing::Values(HoverCase{"picDown", "down1.jpg", "down2.jpg"},
                                         HoverCase{"picUp", "up1.jpg", "up2.jpg"},
                                         HoverCase{"picVideo", "video1.jpg", "video2.jpg"},
                                         HoverCase{"picFinal", "finaltest1.jpg", "finaltest2.jpg"},
                                         HoverCase{"picRepeat", "worksheet1.jpg", "worksheet2.jpg"},
                                         HoverCase{"picStudy", "study1.jpg", "study2.jpg"},
                                         HoverCase{"picExit", "exit1.jpg", "exit2.jpg"}),
                         [](const auto& row) { return std::string(row.param.button); });

TEST_F(CourseTableHover, FromOneButtonStraightToAnotherNothingHappens) {
    support::hover(picture("picStudy"));
    support::hover(picture("picVideo"));
    EXPECT_EQ(pictureOf("picVideo"), "video1.jpg");
    EXPECT_EQ(desk.sound.played.size(), 1U);
}

TEST_F(CourseTableHover, ARowTurnsRedWithoutASoundAndBlackOverTheForm) {
    support::hover(label("lblTitle", 1));
    for (const char* column : {"lblRecordNo", "lblTitle", "lblLesson"}) {
        EXPECT_TRUE(isRed(label(column, 1))) << column;
        EXPECT_FALSE(isRed(label(column, 0))) << column;
    }
    EXPECT_FALSE(isRed(label("lblDate", 1)));
    EXPECT_TRUE(desk.sound.played.empty());
    support::hover(label("lblRecordNo", 0));
    EXPECT_TRUE(isRed(label("lblTitle", 1))) << "only after the mouse has crossed the form";
    support::hover(*table);
    EXPECT_FALSE(isRed(label("lblTitle", 1)));
    support::hover(label("lblRecordNo", 0));
    EXPECT_TRUE(isRed(label("lblLesson", 0)));
}

TEST_F(CourseTableHover, AUnitTurnsRedUntilAnotherIsTouched) {
    support::hover(label("lblTopic", 2));
    EXPECT_TRUE(isRed(label("lblTopic", 2)));
    EXPECT_TRUE(desk.sound.played.empty());
    support::hover(*table);
    EXPECT_TRUE(isRed(label("lblTopic", 2))) << "the form puts rows and buttons back, no units";
    support::hover(label("lblTopic", 0));
    EXPECT_TRUE(isRed(label("lblTopic", 0)));
    EXPECT_FALSE(isRed(label("lblTopic", 2)));
}

TEST_F(CourseTableHover, LessonDateAndScoreLightNothing) {
    for (const char* column : {"lblLesson", "lblDate", "lblScore"}) {
        support::hover(label(column, 1));
        EXPECT_FALSE(isRed(label(column, 1)));
    }
}

TEST_F(CourseTableHover, UnitsAndStepsAreReachedByKeyboard) {
    platform::Label& title = label("lblTitle", 1);
    title.setFocus();
    QTest::keyClick(&title, Qt::Key_Return);
    EXPECT_EQ(navigator.screens(), QStringList{"frmQuiz7"});
    openTable();
    EXPECT_EQ(label("lblTopic", 1).focusPolicy(), Qt::TabFocus);
    EXPECT_EQ(label("lblTopic", 1).accessibleName(), "관사");
    EXPECT_EQ(label("lblTitle", 1).accessibleName(), "대명사 2 Quiz");
}

TEST_F(CourseTableHover, AMissingPictureEndsTheRunOnTheFirstMove) {
    const QString folder = desk.root() + "/D/button";
    QFile::remove(folder);
    support::hover(picture("picStudy"));
    EXPECT_TRUE(desk.failure().contains("'53'")) << desk.failure().toStdString();
}

TEST_F(CourseTableHover, ComesUpWithoutTheFilesOfItsButtonsAndStarsAtRest) {
    QFile::remove(desk.root() + "/D/button");
    openTable();
    EXPECT_EQ(desk.failure(), "");
    EXPECT_EQ(pictureOf("picStudy"), "study1.jpg");
}

TEST_F(CourseTableStart, AStepNumberThatIsNoNumberIsToldWithItsTableAndRow) {
    desk.exec(support::courseStore, "update tablework set recordno='abc'");
    openTable();
    EXPECT_TRUE(desk.failure().contains("field 'recordno' of table 'tablework' of 'D:\\\\tovalin.mdb'"))
        << desk.failure().toStdString();
}

TEST_F(CourseTableStart, MoreUnitsThanItHasRoomForAreToldWithTheirTable) {
    for (int unit = 4; unit <= 25; ++unit)
        desk.exec(support::courseStore, "insert into topic values(" + std::to_string(unit) + ",'더')");
    addUnit(1, 1, 1);
    openTable();
    EXPECT_TRUE(desk.failure().contains("24 units") &&
                desk.failure().contains("'topic' of 'D:\\\\tovalin.mdb'"))
        << desk.failure().toStdString();
}
