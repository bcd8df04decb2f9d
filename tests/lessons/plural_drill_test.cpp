#include "tests/lessons/drill_desk.h"

#include <gtest/gtest.h>

using namespace lessons_test;
using support::courseStore;

namespace {

const QString wellDone =
    QStringLiteral("Good Job!  Lesson Completed!\n\n다음 레슨을 학습하려면 <Next>버튼을 클릭하십시오.");
const QString someWrong =
    QStringLiteral("틀린 단어들이 있습니다.  정답을 확인한 후 <Begin>을 클릭하여 올바른 답을 입력하십시오.");

struct PluralDrill : DrillDesk, ::testing::Test {
    PluralDrill() : DrillDesk(QStringLiteral("frmLesson")) {}
    QString storedScore() { return row(support::scoreStore, "SELECT s4 FROM score"); }
};

}  // namespace

TEST_F(PluralDrill, ShowsTipRulesPromptsAndAnswersToStudy) {
    ASSERT_NE(open(), nullptr) << failure().toStdString();
    EXPECT_EQ(caption("lblTopic"), QStringLiteral("명사 1"));
    EXPECT_EQ(caption("lblTopic2"), QStringLiteral("◈ 셀 수 있는 명사의 복수형 만들기"));
    EXPECT_EQ(support::find<platform::StoryBox>(&form(), QStringLiteral("txtStory")).text(),
              QStringLiteral("명사의 복수형"));
    EXPECT_EQ(caption("lblTopic3(7)"), QStringLiteral("rule 8"));
    EXPECT_EQ(caption("lblWord(27)"), QStringLiteral("bword28"));
    EXPECT_EQ(boxTexts(0, 28), rightWords());
    EXPECT_TRUE(isShown("picBegin"));
    EXPECT_TRUE(isShown("picNext"));
    EXPECT_FALSE(isShown("picQuiz"));
    EXPECT_FALSE(isShown("lblAnswer"));
    EXPECT_FALSE(isShown("picPre"));
    EXPECT_EQ(session.scoreSlot, 4);
    EXPECT_EQ(content("word3"), QStringList(28, QString()));
}

TEST_F(PluralDrill, BlanksTheBoxesAndPutsTheFocusInTheFirst) {
    open();
    begin();
    EXPECT_EQ(boxTexts(0, 28), QStringList(28, QString()));
    EXPECT_EQ(focusedBox(), 0);
    EXPECT_TRUE(isShown("picQuiz"));
    EXPECT_TRUE(isShown("lblAnswer"));
    EXPECT_FALSE(isShown("picBegin"));
}

TEST_F(PluralDrill, StoresFullMarksWhenAllIsRightAtTheFirstCheck) {
    open();
    begin();
    answer(rightWords());
    check();
    EXPECT_EQ(boxes.texts(), QStringList{wellDone});
    EXPECT_EQ(boxes.shown.front().icon, platform::BoxIcon::Information);
    EXPECT_EQ(boxes.shown.front().title, QString());
    EXPECT_EQ(sound.names().last(), QStringLiteral("contestbegin.wav"));
    EXPECT_EQ(storedScore().toDouble(), 100);
    EXPECT_TRUE(wrongBoxes().isEmpty());
    for (int i = 0; i < 28; ++i) {
        EXPECT_TRUE(box(i).locked());
        EXPECT_EQ(box(i).foreColor(), colour::black);
        EXPECT_EQ(box(i).mark(), BoxMark::Right);
    }
    EXPECT_TRUE(isShown("picQuiz"));
    EXPECT_TRUE(isShown("lblAnswer"));
    EXPECT_FALSE(isShown("picBegin"));
}
