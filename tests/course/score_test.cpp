#include "course/score.h"

#include "platform/error.h"
#include "tests/support/store.h"

#include <sqlite3.h>

using support::Desk;
using support::errorOf;
using support::scoreStore;

namespace {

/// A step in hand, ready to be saved.
void takeStep(Desk& desk, int recordNo, int wordNo, const char* type = "Quiz") {
    desk.session.recordNo = recordNo;
    desk.session.topicNo = 3;
    desk.session.pageNo = 7;
    desk.session.wordNo = wordNo;
    desk.session.stepType = QString::fromLatin1(type);
}

void save(Desk& desk, int slot, int score) {
    desk.session.scoreSlot = slot;
    desk.session.scoreValue = score;
    course::SaveScore(desk.context());
}

QString results(const Desk& desk, int recordNo) {
    return desk.row(scoreStore,
                    "select s1,s2,s3,s4,s5 from score where recordno=" + std::to_string(recordNo));
}

}  // namespace

TEST(SaveScore, AStepWithWordsFinishedInOrderFillsItsColumnsOneByOne) {
    Desk desk;
    takeStep(desk, 30, 22);
    save(desk, 1, 0);
    EXPECT_EQ(results(desk, 30), "100|0|0|0.0|");
    save(desk, 2, 90);
    EXPECT_EQ(results(desk, 30), "100|90|45|0.0|");
    save(desk, 3, 70);
    EXPECT_EQ(results(desk, 30), "100|90|80|0.0|");
    save(desk, 4, 80);
    EXPECT_EQ(results(desk, 30), "100|90|80|80.0|");
}

TEST(SaveScore, AnOddSumLeavesAHalfInTheWordPartsResult) {
    Desk desk;
    takeStep(desk, 30, 22);
    save(desk, 1, 0);
    save(desk, 2, 75);
    EXPECT_EQ(results(desk, 30), "100|75|37.5|0.0|");
}

TEST(SaveScore, SlotZeroStoresAHundredOnAnExistingRow) {
    Desk desk;
    takeStep(desk, 5, 0);
    save(desk, 4, 30);
    save(desk, 0, 12);
    EXPECT_EQ(results(desk, 5), "N/A|N/A|N/A|100.0|");
    EXPECT_EQ(desk.session.scoreValue, 100);
}

struct NewRowCase {
    const char* name;
    int slot;
    int words;
    const char* type;
    const char* expected;
};

class NewScoreRow : public testing::TestWithParam<NewRowCase> {};

TEST_P(NewScoreRow, StartsAsItsStepAndSlotSay) {
    Desk desk;
    takeStep(desk, 9, GetParam().words, GetParam().type);
    desk.session.finalBaseRecordNo = 9;
    save(desk, GetParam().slot, 80);
    EXPECT_EQ(results(desk, 9), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Slots, NewScoreRow,
    testing::Values(NewRowCase{"SpellingWithWords", 1, 10, "Quiz", "100|0|0|0.0|"},
                    NewRowCase{"MatchingWithWords", 2, 10, "Quiz", "0|80|40|0.0|"},
                    NewRowCase{"WordQuizWithWordsLandsInTheSecondColumn", 3, 10, "Quiz", "0|80|40|0.0|"},
                    NewRowCase{"MainExerciseWithWords", 4, 10, "Quiz", "0|0|0|80.0|"},
                    NewRowCase{"SetDrillWithWords", 5, 10, "Lesson", "0|0|0|0.0|80"},
                    NewRowCase{"WholeStepWithWordsIsBegun", 0, 10, "Quiz", "0|0|0|0.0|"},
                    NewRowCase{"WholeStepWithoutWords", 0, 0, "Quiz", "N/A|N/A|N/A|80.0|"},
                    NewRowCase{"MainExerciseWithoutWords", 4, 0, "Lesson", "N/A|N/A|N/A|80.0|"},
                    NewRowCase{"FinalHasNoWordColumns", 4, 0, "Final", "|||80.0|"},
                    NewRowCase{"UnknownSlotWithoutWords", 7, 0, "Quiz", "N/A|N/A|N/A|80.0|"}),
    [](const auto& row) { return row.param.name; });

struct UpdateCase {
    const char* name;
    int slot;
    const char* expected;
};

class ScoreRowUpdate : public testing::TestWithParam<UpdateCase> {};

TEST_P(ScoreRowUpdate, TouchesTheColumnsOfItsSlotAlone) {
    Desk desk;
    takeStep(desk, 30, 22);
    desk.exec(scoreStore,
              "insert into score(recordno,studentno,program,s1,s2,s3,s4,s5) "
              "values(30,'1001','Tovalin1','0','60','50',40,'')");
    save(desk, GetParam().slot, 80);
    EXPECT_EQ(results(desk, 30), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Slots, ScoreRowUpdate,
                         testing::Values(UpdateCase{"Spelling", 1, "100|60|50|40.0|"},
                                         UpdateCase{"Matching", 2, "0|80|65|40.0|"},
                                         UpdateCase{"WordQuizLandsInTheThirdColumn", 3, "0|60|70|40.0|"},
                                         UpdateCase{"MainExercise", 4, "0|60|50|80.0|"},
                                         UpdateCase{"SetDrill", 5, "0|60|50|40.0|80"},
                                         UpdateCase{"WholeStep", 0, "0|60|50|100.0|"},
                                         UpdateCase{"UnknownSlotChangesNothing", 7, "0|60|50|40.0|"}),
                         [](const auto& row) { return row.param.name; });

TEST(SaveScore, ASumOfWordScoresBeyondSixteenBitsIsAnOverflow) {
    Desk desk;
    takeStep(desk, 30, 22);
    desk.exec(scoreStore,
              "insert into score(recordno,studentno,program,s2,s3) "
              "values(30,'1001','Tovalin1','0','32767')");
    EXPECT_EQ(errorOf([&] { save(desk, 2, 1); }), 6);
}

TEST(SaveScore, ALearnerWithoutANameHasAnEmptyNameInTheRow) {
    Desk desk;
    desk.session.userName = QString();
    takeStep(desk, 9, 0);
    save(desk, 4, 80);
    EXPECT_EQ(desk.row(scoreStore, "select studentname from score"), "");
}

TEST(SaveScore, ANewRowCarriesKeyTitlesAndReservedColumns) {
    Desk desk;
    takeStep(desk, 9, 0);
    save(desk, 4, 80);
    EXPECT_EQ(
        desk.row(
            scoreStore,
            "select recordno,page2,datapage,lessontype,vtitle,s6,s7,S8,s9,s10,s11,s12,st1,st8,dayno,vDate,"
            "studentno,program,studentname,bookno from score"),
        "9|9|3|Quiz|||||||||NO|NO|7|2026-03-14|1001|Tovalin1|김하늘|0");
}

TEST(SaveScore, TheWordPartOfAFinishedStepLeavesTheMainScoreAsItWas) {
    Desk desk;
    takeStep(desk, 30, 22);
    save(desk, 4, 90);
    save(desk, 1, 0);
    save(desk, 2, 60);
    EXPECT_EQ(results(desk, 30), "100|60|30|90.0|");
}

TEST(SaveScore, AWorseResultReplacesABetterOneAndTheAverageStartsFromTheStoredValue) {
    Desk desk;
    takeStep(desk, 30, 22);
    save(desk, 2, 90);
    save(desk, 2, 10);
    EXPECT_EQ(results(desk, 30), "0|10|27.5|0.0|");
    save(desk, 4, 90);
    save(desk, 4, 20);
    EXPECT_EQ(results(desk, 30), "0|10|27.5|20.0|");
}

TEST(SaveScore, InsideAFinalQuizTheResultLandsOnTheStepThatLaunchedIt) {
    Desk desk;
    takeStep(desk, 3, 0, "Final");
    desk.session.finalBaseRecordNo = 14;
    save(desk, 4, 75);
    EXPECT_EQ(desk.session.recordNo, 14);
    EXPECT_EQ(desk.rows(scoreStore, "select recordno,s4 from score"), QStringList{"14|75.0"});
}

TEST(SaveScore, EverySaveRenewsTheDateAndEmptiesTheTitle) {
    Desk desk;
    takeStep(desk, 45, 0, "Lesson");
    desk.exec(scoreStore,
              "insert into score(recordno,studentno,program,vtitle,vDate,s4) "
              "values(45,'1001','Tovalin1','be동사 1','2025-01-01',100)");
    save(desk, 4, 100);
    EXPECT_EQ(desk.row(scoreStore, "select vtitle,vDate from score"), "|2026-03-14");
}

TEST(SaveScore, AWordScoreOnARowWithoutWordColumnsIsATypeMismatch) {
    Desk desk;
    takeStep(desk, 5, 0);
    save(desk, 4, 30);
    try {
        save(desk, 2, 50);
        FAIL() << "the text N/A was read as a number";
    } catch (const platform::RuntimeError& error) {
        EXPECT_EQ(error.number(), 13);
        EXPECT_TRUE(error.sentence().contains("s3"));
    }
}

struct PercentCase {
    int correct;
    int total;
    int score;
};

class PercentScore : public testing::TestWithParam<PercentCase> {};

TEST_P(PercentScore, RoundsToTheNearestWithHalvesToTheEven) {
    EXPECT_EQ(course::percentScore(GetParam().correct, GetParam().total), GetParam().score);
}

INSTANTIATE_TEST_SUITE_P(Shares, PercentScore,
                         testing::Values(PercentCase{1, 3, 33}, PercentCase{2, 3, 67}, PercentCase{1, 8, 12},
                                         PercentCase{3, 8, 38}, PercentCase{5, 8, 62}, PercentCase{7, 8, 88},
                                         PercentCase{0, 5, 0}, PercentCase{5, 5, 100}));

TEST(AverageScore, ThreeFinalStepsRunAHundredSeventyFiveSeventyFive) {
    std::array<core::Int16, core::finalStepLimit> scores{100, 50, 75};
    EXPECT_EQ(course::averageScore(scores, 1), 100);
    EXPECT_EQ(course::averageScore(scores, 2), 75);
    EXPECT_EQ(course::averageScore(scores, 3), 75);
}

TEST(AverageScore, AStepBeyondTheTwentiethIsOutOfBounds) {
    const std::array<core::Int16, core::finalStepLimit> scores{};
    EXPECT_THROW(course::averageScore(scores, 21), platform::RuntimeError);
}

namespace {

/// Whether the removal of each journal was made lasting before the engine went on.
std::vector<bool>& lastingRemovals() {
    static std::vector<bool> removals;
    return removals;
}

/// Looks on from between the engine and the disk.
sqlite3_vfs& watchingDisk() {
    static sqlite3_vfs disk = *sqlite3_vfs_find(nullptr);
    static const auto remove = disk.xDelete;
    disk.zName = "watching";
    disk.xDelete = [](sqlite3_vfs* vfs, const char* name, int lasting) {
        lastingRemovals().push_back(lasting != 0);
        return remove(vfs, name, lasting);
    };
    return disk;
}

}  // namespace

TEST(SaveScore, ASaveThatHasReturnedIsNotTakenBackByAPowerCut) {
    Desk desk;
    sqlite3_vfs_register(&watchingDisk(), 1);
    takeStep(desk, 5, 0);
    save(desk, 4, 30);
    save(desk, 4, 50);
    // A journal that came back with the power would take the save back with it.
    EXPECT_EQ(lastingRemovals(), (std::vector<bool>{true, true}));
}
