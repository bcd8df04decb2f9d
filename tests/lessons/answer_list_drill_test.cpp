#include "tests/lessons/drill_desk.h"

#include <gtest/gtest.h>

using namespace lessons_test;
using support::scoreStore;

namespace {

struct PrepositionDrill : DrillDesk, ::testing::Test {
    PrepositionDrill() : DrillDesk(QStringLiteral("frmLesson17")) {}

    platform::DropList& list() {
        return support::find<platform::DropList>(&form(), QStringLiteral("ComBo1"));
    }
    /// Picks by keys, as a learner would.
    void pick(int entry) {
        list().setFocus();
        QTest::keyClick(&list(), Qt::Key_Home);
        for (int i = 0; i < entry; ++i)
            QTest::keyClick(&list(), Qt::Key_Down);
    }
};

}  // namespace

TEST_F(PrepositionDrill, ShowsItsTwoInstructionsAndHidesTheListUntilBegin) {
    open();
    EXPECT_EQ(caption("Label1"), QStringLiteral("<Begin>를 클릭합니다.   빈칸에 답을 입력하거나 "));
    EXPECT_EQ(caption("Label2"), QStringLiteral("빈칸을 클릭한 후 Answer List에서 답을 선택할 수 있습니다.  "
                                                "모든 답을 선택한 후 <Answer>를 클릭합니다 "));
    EXPECT_FALSE(isShown("ComBo1"));
    EXPECT_FALSE(isShown("lblTitle"));
    begin();
    EXPECT_TRUE(isShown("ComBo1"));
    EXPECT_EQ(caption("lblTitle"), QStringLiteral("Answer List"));
    check();
    EXPECT_TRUE(isShown("ComBo1"));
    EXPECT_TRUE(isShown("lblTitle"));
}

TEST_F(PrepositionDrill, ListsTheAnswersInTheOrderOfTheBoxes) {
    open();
    QStringList entries;
    for (int i = 0; i < list().count(); ++i)
        entries.append(list().itemText(i));
    EXPECT_EQ(entries, rightWords());
}

TEST_F(PrepositionDrill, MovesTheRedMarkToTheBoxClicked) {
    open();
    begin();
    support::click(box(3));
    EXPECT_EQ(box(3).backColor(), colour::red);
    support::click(box(7));
    EXPECT_EQ(box(3).backColor(), colour::white);
    EXPECT_EQ(box(7).backColor(), colour::red);
}

TEST_F(PrepositionDrill, WritesAPickIntoBoxZeroWhereNoneWasClicked) {
    open();
    begin();
    pick(2);
    EXPECT_EQ(boxText(0), QStringLiteral("cword3s"));
    EXPECT_EQ(boxText(1), QString());
}

TEST_F(PrepositionDrill, WritesAPickIntoTheBoxLastClickedEvenWhenItIsLocked) {
    open();
    begin();
    support::click(box(5));
    answerAndCheck({2});
    ASSERT_TRUE(box(5).locked());
    EXPECT_EQ(box(5).mark(), BoxMark::Right);
    pick(1);
    EXPECT_EQ(boxText(5), QStringLiteral("bword2s"));
    // Right no more, and locked still.
    EXPECT_EQ(box(5).mark(), BoxMark::Given);
    EXPECT_TRUE(box(5).locked());
}

TEST_F(PrepositionDrill, TakesTheRedMarkAwayAtBeginAndStillKnowsTheBox) {
    open();
    begin();
    support::click(box(5));
    check();
    EXPECT_EQ(box(5).backColor(), colour::red);
    begin();
    EXPECT_EQ(box(5).backColor(), colour::white);
    pick(4);
    EXPECT_EQ(boxText(5), QStringLiteral("eword5s"));
}

TEST_F(PrepositionDrill, FillsATeachersBoxesInEveryPass) {
    session.teacherMode = QStringLiteral("Teacher");
    open();
    begin();
    EXPECT_EQ(boxTexts(0, 30), rightWords());
    box(3).setText(QStringLiteral("zzz"));
    check();
    begin();
    EXPECT_EQ(boxTexts(0, 30), rightWords());
    check();
    EXPECT_EQ(row(scoreStore, "SELECT s4 FROM score").toDouble(), 100);
}

TEST_F(PrepositionDrill, CompletesWithOnePressForATeacher) {
    session.teacherMode = QStringLiteral("Teacher");
    open();
    begin();
    check();
    EXPECT_EQ(row(scoreStore, "SELECT s4 FROM score").toDouble(), 100);
    EXPECT_EQ(boxes.shown.size(), 1U);
}

TEST_F(PrepositionDrill, KeepsAWrongWordReadableInTheBoxThatIsMarkedRed) {
    open();
    begin();
    support::click(box(2));
    answerAndCheck({2});
    ASSERT_EQ(box(2).foreColor(), colour::red);
    ASSERT_EQ(box(2).backColor(), colour::red);
    const QImage shown = box(2).grab().toImage();
    // Red has no green in it; the edges of letters are smoothed.
    int light = 0;
    for (int y = 4; y < shown.height() - 4; ++y)
        for (int x = 20; x < shown.width() - 24; ++x)
            light += qGreen(shown.pixel(x, y)) >= 128 ? 1 : 0;
    EXPECT_GT(light, 20);
}
