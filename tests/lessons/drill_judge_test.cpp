#include "lessons/drill_judge.h"
#include "catalogue/drills.h"

#include <gtest/gtest.h>

#include <array>

using namespace lessons;
using catalogue::Drill;
using catalogue::findDrill;

namespace {

const Drill& drill(const char* name) {
    return *findDrill(name);
}

QString text(const char* latin) {
    return QString::fromUtf8(latin);
}

}  // namespace

TEST(DrillJudge, CutsBlanksAtBothEndsAndLowersTheCase) {
    struct Case {
        const char* box;
        const char* word;
    };
    for (const Case& c :
         {Case{"books", "books"}, Case{"  books ", "books"}, Case{"BooKs", "books"}, Case{"", ""},
          Case{"   ", ""}, Case{"next to", "next to"}, Case{" a  b ", "a  b"}, Case{"\tx", "\tx"}})
        EXPECT_EQ(typedWord(text(c.box)), text(c.word)) << c.box;
}

TEST(DrillJudge, NamesTheBoxFirstOrTheWordFirstAsTheScreenHasIt) {
    EXPECT_EQ(rightRowCriterion(drill("frmLesson"), 2, text("cats")), text("orderno=3 and word='cats'"));
    EXPECT_EQ(rightRowCriterion(drill("frmLesson7"), 0, text("x")), text("orderno=1 and word='x'"));
    EXPECT_EQ(rightRowCriterion(drill("frmLesson4"), 34, text("x")), text("orderno=35 and word='x'"));
    for (const char* name : {"frmLesson11", "frmLesson17", "frmLesson18", "frmLesson18_2", "frmLesson24"})
        EXPECT_EQ(rightRowCriterion(drill(name), 9, text("ten")), text("word='ten' and orderno=10")) << name;
}

TEST(DrillJudge, LooksForTheWordAloneWhereTheBoxDoesNotCount) {
    for (const char* name : {"frmLesson9", "frmLesson10"})
        EXPECT_EQ(rightRowCriterion(drill(name), 0, text("big")), text("word='big'")) << name;
    EXPECT_EQ(rightRowCriterion(drill("frmLesson8"), 12, text("tying")), text("orderno=13 and word='tying'"));
    EXPECT_EQ(rightRowCriterion(drill("frmLesson8"), 13, text("love")), text("word='love'"));
    EXPECT_EQ(rightRowCriterion(drill("frmLesson8"), 27, text("know")), text("word='know'"));
}

TEST(DrillJudge, PutsTheTextIntoTheCriterionAsItStands) {
    EXPECT_EQ(rightRowCriterion(drill("frmLesson"), 0, text("don't")), text("orderno=1 and word='don't'"));
    EXPECT_EQ(unmatchedRowCriterion(text("o'clock")), text("word1='o'clock' and word2='NONE'"));
    EXPECT_EQ(rightRowCriterion(drill("frmLesson"), 0, text("50%1")), text("orderno=1 and word='50%1'"));
}

TEST(DrillJudge, ComparesAClozeBoxWithItsWordExactly) {
    EXPECT_TRUE(isClozeAnswer(text("The Sun"), text(" the sun ")));
    EXPECT_TRUE(isClozeAnswer(text("by bus"), text("BY BUS")));
    EXPECT_FALSE(isClozeAnswer(text("by bus"), text("by  bus")));
    EXPECT_FALSE(isClozeAnswer(text("by bus"), text("")));
    EXPECT_FALSE(isClozeAnswer(text(" by bus"), text(" by bus")));
}

TEST(DrillJudge, HintsWithTheFirstLetter) {
    EXPECT_EQ(firstLetter(text("water")), text("w"));
    EXPECT_EQ(firstLetter(text("")), text(""));
}
