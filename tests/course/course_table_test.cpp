#include "tests/support/table_screen.h"

#include "platform/desktop/cursor.h"

#include <QFile>

using CourseTableList = support::TableScreen;

TEST_F(CourseTableList, IsAScreenOfItsOwnSizeWithItsTextsAndBackground) {
    addUnit(1, 1, 1);
    openTable();
    EXPECT_EQ(table->size(), QSize(950, 700));
    EXPECT_EQ(table->property("picture").toString(), "table.jpg");
    EXPECT_EQ(label("lblBookTitle").caption(), "Feskugru");
    EXPECT_EQ(label("lblMemo").caption(),
              "학습할 문법 제목을 선택하고, 해당 Unit No를 클릭합니다.  <My Checkpoints>에 나타난 제목을 "
              "클릭하면 학습이 진행됩니다.");
    for (const char* waiting : {"picWait", "picBar", "lblShow"})
        EXPECT_TRUE(support::find(table, QLatin1String(waiting)).isHidden());
}

TEST_F(CourseTableList, TheUnitsStandInTheOrderOfTheirNumbers) {
    addUnit(1, 1, 1);
    openTable();
    EXPECT_EQ(label("lblTopic", 0).caption(), "명사");
    EXPECT_EQ(label("lblTopic", 1).caption(), "관사");
    EXPECT_EQ(label("lblTopic", 2).caption(), "대명사");
    EXPECT_EQ(label("lblTopic", 3).caption(), "");
    EXPECT_EQ(label("lblTopic", 23).caption(), "");
}

TEST_F(CourseTableList, TabPassesByThePlacesThatNoUnitHasTaken) {
    addUnit(1, 1, 1);
    openTable();
    EXPECT_EQ(label("lblTopic", 2).focusPolicy(), Qt::TabFocus);
    EXPECT_EQ(label("lblTopic", 3).focusPolicy(), Qt::NoFocus);
    label("lblTopic", 2).setFocus();
    QTest::keyClick(&label("lblTopic", 2), Qt::Key_Tab);
    EXPECT_EQ(support::focusName(table), "lblTitle(0)");
}

TEST_F(CourseTableList, AnInstallOfMoreThan24UnitsEndsTheRun) {
    for (int i = 4; i <= 25; ++i)
        desk.exec(support::courseStore, "insert into topic values(" + std::to_string(i) + ",'t')");
    addUnit(1, 1, 1);
    openTable();
    EXPECT_TRUE(desk.failure().contains("'9'")) << desk.failure().toStdString();
}

TEST_F(CourseTableList, ALearnerWithoutScoresOpensOnUnitOneWithoutDatesScoresAndStars) {
    addUnit(1, 3, 1);
    addUnit(2, 2, 21);
    addScore(21, 2, "100", "100", "1002");
    openTable();
    EXPECT_EQ(session.topicNo, 1);
    EXPECT_EQ(label("lblTopic2").caption(), "명사");
    EXPECT_EQ(row(0), "1|단원 1 Quiz|data 1|-|-");
    EXPECT_EQ(row(2), "3|단원 3 Quiz|data 3|-|-");
    EXPECT_EQ(shownRows(), 3);
    EXPECT_FALSE(starred(0));
}

TEST_F(CourseTableList, ComesBackToTheUnitOfTheHighestStepStored) {
    addUnit(1, 3, 1);
    addUnit(2, 2, 21);
    addUnit(3, 2, 29);
    addScore(29, 3, "0", "0", "1002");
    addScore(22, 2, "N/A", "70");
    addScore(3, 1, "N/A", "90");
    openTable();
    EXPECT_EQ(session.topicNo, 2);
    EXPECT_EQ(label("lblTopic2").caption(), "관사");
    EXPECT_EQ(row(1), "2|단원 2 Quiz|data 22|2026-03-01|N/A");
}

TEST_F(CourseTableList, AUnitThatHasNoTitleKeepsTheTitleLineAsItWas) {
    addUnit(9, 1, 95);
    addScore(95, 9, "N/A", "70");
    openTable();
    EXPECT_EQ(label("lblTopic2").caption(), "");
    EXPECT_EQ(shownRows(), 1);
}

TEST_F(CourseTableList, TheFirstPageShowsTheWordPartsResult) {
    addUnit(1, 3, 1);
    addScore(1, 1, "100", "55");
    addScore(2, 1, "37.5", "100");
    openTable();
    EXPECT_EQ(row(0), "1|단원 1 Quiz|data 1|2026-03-01|100");
    EXPECT_EQ(row(1), "2|단원 2 Quiz|data 2|2026-03-01|37.5");
    EXPECT_TRUE(starred(0));
    EXPECT_FALSE(starred(1));
    EXPECT_FALSE(starred(2));
}

TEST_F(CourseTableList, AnythingOtherThanExactly100ShowsNoStar) {
    addUnit(1, 6, 1);
    int step = 0;
    for (const char* s3 : {"99.5", "1000", " 100", "100.0", "", "N/A"})
        addScore(++step, 1, s3, "100");
    openTable();
    for (int i = 0; i < 6; ++i)
        EXPECT_FALSE(starred(i)) << i;
}

TEST_F(CourseTableList, AUnitWithoutStepsEndsTheRun) {
    addUnit(2, 1, 21);
    openTable();
    EXPECT_TRUE(desk.failure().contains("'3021'")) << desk.failure().toStdString();
}

TEST_F(CourseTableList, AClickOnAUnitListsItFromItsFirstPage) {
    addUnit(1, 25, 1);
    addUnit(2, 2, 51);
    openTable();
    press("picDown");
    session.reviewCount = 5;
    support::click(label("lblTopic", 1));
    EXPECT_EQ(session.topicNo, 2);
    EXPECT_EQ(session.reviewCount, 0);
    EXPECT_EQ(label("lblTopic2").caption(), "관사");
    EXPECT_EQ(shownRows(), 2);
    EXPECT_EQ(label("lblCurrentPage").caption(), "1");
    EXPECT_TRUE(picture("picUp").isHidden());
    EXPECT_TRUE(picture("picDown").isHidden());
    EXPECT_EQ(row(0), "1|단원 1 Quiz|data 51|-|-");
}

TEST_F(CourseTableList, TheRowsAndTheUnitsCarryTheHandOfTheCourse) {
    addUnit(1, 1, 1);
    openTable();
    const QPoint hotSpot = platform::loadCursor(desk.file("D:\\harrow.cur"), "harrow.cur").hotSpot();
    for (const char* column : {"lblRecordNo", "lblTitle", "lblLesson", "lblDate", "lblTopic"}) {
        EXPECT_EQ(label(column, 0).cursor().shape(), Qt::BitmapCursor) << column;
        EXPECT_EQ(label(column, 0).cursor().hotSpot(), hotSpot) << column;
    }
    EXPECT_NE(label("lblTopic", 3).cursor().shape(), Qt::BitmapCursor) << "no unit stands there";
    EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "the hourglass is gone after loading";
}

TEST_F(CourseTableList, TheScoreStoreIsOpenOnlyWhileItIsRead) {
    addUnit(1, 1, 1);
    addScore(1, 1, "100", "55");
    openTable();
    EXPECT_FALSE(session.scoreDb.isOpen());
    EXPECT_FALSE(session.scoreRs.isOpen());
}

TEST_F(CourseTableList, ATickOfTheDisabledTimerDoesNothing) {
    addUnit(1, 1, 1);
    openTable();
    label("lblTopic", 0).setCaption("kept");
    support::find<platform::Timer>(table, "TimerGo").onTick();
    EXPECT_EQ(label("lblTopic", 0).caption(), "kept");
}

TEST_F(CourseTableList, WithoutAScoreStoreTheRunEnds) {
    addUnit(1, 1, 1);
    QFile::remove(desk.file(support::scoreStore));
    openTable();
    EXPECT_TRUE(desk.failure().contains("'3024'"));
}

namespace {

/// Pages of a unit with a score on every step: s3 is 10, s4 is 20, and 100 where told.
class CourseTablePages : public support::TableScreen {
   protected:
    void openUnit(int rows) {
        addUnit(1, rows, 1);
        addScore(1, 1, "10", "100");
        addScore(2, 1, "100", "20");
        addScore(21, 1, "100", "20");
        addScore(22, 1, "10", "100");
        addScore(41, 1, "10", "20");
        // The highest row decides on the unit shown, and all belong to unit 1.
        openTable();
    }
    QString arrows() const {
        return QStringLiteral("%1%2").arg(picture("picUp").isHidden() ? "" : "up",
                                          picture("picDown").isHidden() ? "" : "down");
    }
    QString page() const { return label("lblCurrentPage").caption(); }
    QString score(int row) const { return label("lblScore", row).caption(); }
};

}  // namespace

TEST_F(CourseTablePages, AUnitWithExactly20RowsShowsNoWayDown) {
    openUnit(20);
    EXPECT_EQ(shownRows(), 20);
    EXPECT_EQ(arrows(), "");
}

TEST_F(CourseTablePages, With21RowsThereIsAWayDownAndPage2HidesItAgain) {
    openUnit(21);
    EXPECT_EQ(shownRows(), 20);
    EXPECT_EQ(arrows(), "down");
    press("picDown");
    EXPECT_EQ(page(), "2");
    EXPECT_EQ(shownRows(), 1);
    EXPECT_EQ(arrows(), "up");
    press("picUp");
    EXPECT_EQ(page(), "1");
    EXPECT_EQ(shownRows(), 20);
    EXPECT_EQ(arrows(), "down");
}

TEST_F(CourseTablePages, With45RowsTheMiddlePageHasBothWays) {
    openUnit(45);
    press("picDown");
    EXPECT_EQ(arrows(), "updown");
    EXPECT_EQ(row(0), "21|단원 21 Quiz|data 21|2026-03-01|20");
    press("picDown");
    EXPECT_EQ(page(), "3");
    EXPECT_EQ(shownRows(), 5);
    EXPECT_EQ(row(4), "45|단원 45 Quiz|data 45|-|-");
    EXPECT_EQ(arrows(), "up");
    press("picUp");
    EXPECT_EQ(page(), "2");
    EXPECT_EQ(arrows(), "updown");
    press("picUp");
    EXPECT_EQ(arrows(), "down");
}

TEST_F(CourseTablePages, LaterPagesShowTheMainExercisesScoreAndItsStar) {
    openUnit(45);
    press("picDown");
    EXPECT_EQ(score(0), "20");
    EXPECT_FALSE(starred(0)) << "its 100 is the word part's";
    EXPECT_EQ(score(1), "100");
    EXPECT_TRUE(starred(1));
}

TEST_F(CourseTablePages, BackOnPage1TheMainExercisesScoreStandsWhereTheWordPartsStoodFirst) {
    openUnit(45);
    EXPECT_EQ(score(0), "10");
    EXPECT_TRUE(starred(1));
    press("picDown");
    press("picUp");
    EXPECT_EQ(score(0), "100");
    EXPECT_TRUE(starred(0));
    EXPECT_EQ(score(1), "20");
    EXPECT_FALSE(starred(1));
}

TEST_F(CourseTablePages, PagingLeavesTheReviewCountAlone) {
    openUnit(45);
    session.reviewCount = 5;
    press("picDown");
    press("picUp");
    EXPECT_EQ(session.reviewCount, 5);
}
