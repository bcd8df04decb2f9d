#include "vocabulary/spelling_method.h"

#include "tests/support/desk.h"

#include <gtest/gtest.h>

using vocabulary::Event;
using vocabulary::Stage;
using vocabulary::turnFrom;

namespace {

/// Where a stage goes on an event; the stage itself where nothing happens.
Stage after(Stage stage, Event event) {
    const auto* turn = turnFrom(stage, event);
    return turn == nullptr ? stage : turn->to;
}

}  // namespace

TEST(SpellingMethod, GoesThroughFiveRowsToTheEndOfTheWord) {
    Stage stage = Stage::Copy;
    for (const Stage next :
         {Stage::CopyAgain, Stage::Vowels, Stage::Consonants, Stage::Whole, Stage::Closed}) {
        stage = after(stage, Event::RowRight);
        EXPECT_EQ(stage, next);
    }
    EXPECT_EQ(turnFrom(Stage::Closed, Event::RowRight), nullptr);
}

TEST(SpellingMethod, StepsBackARowFromTheThirdRowOn) {
    EXPECT_EQ(turnFrom(Stage::Copy, Event::StepBack), nullptr);
    EXPECT_EQ(turnFrom(Stage::CopyAgain, Event::StepBack), nullptr);
    EXPECT_EQ(after(Stage::Vowels, Event::StepBack), Stage::CopyAgain);
    EXPECT_EQ(after(Stage::Consonants, Event::StepBack), Stage::Vowels);
    EXPECT_EQ(after(Stage::Whole, Event::StepBack), Stage::Consonants);
}

TEST(SpellingMethod, AWrongRowIsToldAndBuiltAgain) {
    for (const Stage stage : {Stage::Vowels, Stage::Consonants, Stage::Whole}) {
        const auto* turn = turnFrom(stage, Event::RowWrong);
        ASSERT_NE(turn, nullptr);
        EXPECT_EQ(turn->to, stage);
        EXPECT_NE(turn->complaint, nullptr);
    }
    EXPECT_EQ(turnFrom(Stage::Copy, Event::RowWrong), nullptr);
    EXPECT_EQ(turnFrom(Stage::CopyAgain, Event::RowWrong), nullptr);
}

TEST(SpellingMethod, TheWordIsSpokenAfterEachCopyAndAtNoOtherTurn) {
    for (const Stage stage : {Stage::Copy, Stage::CopyAgain, Stage::Vowels, Stage::Consonants, Stage::Whole})
        for (const Event event : {Event::RowRight, Event::RowWrong, Event::StepBack}) {
            const auto* turn = turnFrom(stage, event);
            EXPECT_EQ(turn != nullptr && turn->speaks, event == Event::RowRight && stage <= Stage::CopyAgain);
        }
}

TEST(SpellingMethod, OnlyRowsBuiltWithoutAJudgementLookForTheirBoxBlindly) {
    EXPECT_TRUE(turnFrom(Stage::Vowels, Event::RowRight)->search.asksShown);
    EXPECT_EQ(turnFrom(Stage::Vowels, Event::RowRight)->search.seventhShownBy, 1);
    EXPECT_FALSE(turnFrom(Stage::Consonants, Event::RowWrong)->search.asksShown);
    EXPECT_FALSE(turnFrom(Stage::Whole, Event::StepBack)->search.asksShown);
    EXPECT_EQ(turnFrom(Stage::Consonants, Event::StepBack)->search.seventhShownBy, 7);
}
