#include "tests/lessons/drill_desk.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace lessons_test;
using support::scoreStore;

namespace {

QStringList firstLetters(const QStringList& words) {
    QStringList letters;
    for (const QString& word : words)
        letters.append(word.left(1));
    return letters;
}

class WordList : public ::testing::TestWithParam<const char*> {
   protected:
    DrillDesk desk_{QString::fromUtf8(GetParam())};
    const int boxes_ = desk_.drill().boxes;
};

}  // namespace

TEST_P(WordList, MakesTheShownWordTheAnswerInTheStoreAtLoad) {
    desk_.open();
    EXPECT_EQ(desk_.content("word2"), desk_.content("word1"));
    EXPECT_EQ(desk_.content("word3"), QStringList(boxes_, QString()));
    EXPECT_EQ(desk_.boxTexts(0, boxes_), desk_.rightWords());
}

TEST_P(WordList, TakesTheWordsInAnyOrder) {
    desk_.open();
    desk_.begin();
    QStringList words = desk_.rightWords();
    std::reverse(words.begin(), words.end());
    desk_.answer(words);
    desk_.check();
    EXPECT_EQ(desk_.row(scoreStore, "SELECT s4 FROM score").toDouble(), 100);
}

TEST_P(WordList, LeavesTheOtherRowUndoneWhenAWordIsTypedTwice) {
    desk_.open();
    desk_.begin();
    QStringList words = desk_.rightWords();
    words[4] = words[1];
    std::swap(words[4], words[7]);
    // Box 7 repeats word 1, box 4 holds word 7: it is the box of the row left over that shows red.
    desk_.answer(words);
    desk_.check();
    EXPECT_EQ(desk_.wrongBoxes(), QStringList{QStringLiteral("4")});
    EXPECT_EQ(desk_.box(4).foreColor(), colour::red);
    EXPECT_EQ(desk_.boxText(4), desk_.rightWords()[4]);
    EXPECT_EQ(desk_.box(7).foreColor(), colour::black);
    EXPECT_EQ(desk_.boxText(7), desk_.rightWords()[7]);
}

TEST_P(WordList, HintsAfterAFailedCheckAndNotBefore) {
    desk_.open();
    desk_.begin();
    EXPECT_EQ(desk_.boxTexts(0, boxes_), QStringList(boxes_, QString()));
    desk_.check();
    desk_.begin();
    EXPECT_EQ(desk_.boxTexts(0, boxes_), firstLetters(desk_.rightWords()));
    EXPECT_EQ(desk_.box(0).foreColor(), colour::black);
    EXPECT_EQ(desk_.box(0).selectedText(), desk_.rightWords()[0].left(1));
}

INSTANTIATE_TEST_SUITE_P(Screens, WordList, ::testing::Values("frmLesson9", "frmLesson10"),
                         [](const auto& screen) { return std::string(screen.param); });

TEST(IngDrill, ShowsPromptsForTheFirstThirteenAndHeadsForTheRest) {
    DrillDesk desk(QStringLiteral("frmLesson8"));
    desk.open();
    EXPECT_EQ(desk.caption("lblWord(12)"), QStringLiteral("mword13"));
    EXPECT_EQ(desk.boxText(12), QStringLiteral("mword13s"));
    EXPECT_EQ(desk.boxText(13), QStringLiteral("nword14"));
    EXPECT_EQ(desk.caption("lblTopic4"), QStringLiteral("현재진행형으로 만들 수 없는 동사들"));
    EXPECT_EQ(desk.caption("Label3"), QStringLiteral("감정 동사"));
    EXPECT_EQ(desk.caption("Label4"), QStringLiteral("감각 동사"));
    EXPECT_EQ(desk.caption("Label5"), QStringLiteral("소유 동사"));
    EXPECT_EQ(desk.caption("Label6"), QStringLiteral("인식 동사"));
    EXPECT_EQ(desk.content("word2").at(12), QStringLiteral("mword13s"));
    EXPECT_EQ(desk.content("word2").at(13), QStringLiteral("nword14"));
    EXPECT_EQ(desk.content("word3"), QStringList(28, QString()));
}

TEST(IngDrill, HintsBoxThirteenInTheFirstPassAloneAndBoxFourteenInBoth) {
    DrillDesk desk(QStringLiteral("frmLesson8"));
    desk.open();
    desk.begin();
    EXPECT_EQ(desk.boxTexts(11, 5), (QStringList{QString(), QString(), QStringLiteral("n"),
                                                 QStringLiteral("o"), QStringLiteral("p")}));
    EXPECT_EQ(desk.focusedBox(), 0);
    desk.check();
    desk.begin();
    EXPECT_EQ(desk.boxTexts(11, 5),
              (QStringList{QString(), QString(), QString(), QStringLiteral("o"), QStringLiteral("p")}));
}

TEST(IngDrill, MindsTheOrderInItsFirstThirteenBoxesAlone) {
    DrillDesk desk(QStringLiteral("frmLesson8"));
    desk.open();
    desk.begin();
    QStringList words = desk.rightWords();
    std::swap(words[13], words[27]);
    std::swap(words[0], words[1]);
    desk.answer(words);
    desk.check();
    EXPECT_EQ(desk.wrongBoxes(), (QStringList{QStringLiteral("0"), QStringLiteral("1")}));
}

TEST(IngDrill, TellsTheStepWhereItsRowsHoldMorePromptsThanItHas) {
    DrillDesk desk(QStringLiteral("frmLesson8"));
    desk.exec(support::courseStore, "UPDATE basic_Data SET orderno=1");
    EXPECT_EQ(desk.open(), nullptr);
    EXPECT_TRUE(desk.failure().contains(QStringLiteral("step 500"))) << desk.failure().toStdString();
}
