#include "course/preparation.h"

#include "core/stores.h"
#include "course/shuffle.h"
#include "tests/support/course_rows.h"
#include "tests/support/recorder.h"
#include "tests/support/store.h"

#include <QDir>
#include <QFile>
#include <QSet>

using support::addQuestions;
using support::addSteps;
using support::courseStore;
using support::Desk;
using support::errorOf;
using support::StepRow;

namespace {

class PrepareFinal : public testing::Test {
   protected:
    Desk desk;

    void prepare(int recordNo, int topicNo) {
        desk.session.recordNo = recordNo;
        desk.session.topicNo = topicNo;
        course::PrepareFinalData(desk.context());
    }
    QStringList steps() const { return desk.rows(courseStore, "select recordno from tablework_Final"); }
    QStringList questions(int recordNo) const {
        return desk.rows(courseStore,
                         "select orderno,q1 from quiz_data_New3 where recordno=" + std::to_string(recordNo));
    }
};

}  // namespace

TEST_F(PrepareFinal, TakesTheQuizStepsOfTheUnitInTheirOrder) {
    addSteps(desk, {{.recordNo = 93, .topicNo = 7},
                    {.recordNo = 75, .topicNo = 7},
                    {.recordNo = 74, .topicNo = 7, .type = "Lesson"},
                    {.recordNo = 94, .topicNo = 7, .type = "Final"},
                    {.recordNo = 100, .topicNo = 8}});
    desk.exec(courseStore, "insert into tablework_Final(recordno) values(1)");
    prepare(94, 7);
    EXPECT_EQ(steps(), (QStringList{"75", "93"}));
}

TEST_F(PrepareFinal, Step14TakesSteps2To13WhateverTheirUnitAndType) {
    for (int step = 1; step <= 21; ++step)
        addSteps(desk, {{.recordNo = step, .topicNo = step % 3, .type = step == 8 ? "Lesson" : "Quiz"}});
    prepare(14, 1);
    EXPECT_EQ(steps(), (QStringList{"2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13"}));
    prepare(20, 1);
    EXPECT_EQ(steps(), (QStringList{"16", "17", "18", "19"}));
}

TEST_F(PrepareFinal, TheListTakesTwelveFieldsOfAStepAndItsSheetGuide) {
    addSteps(desk, {{.recordNo = 75,
                     .topicNo = 7,
                     .pageNo = 2,
                     .useForm = "frmQuiz3",
                     .wordNo = 3,
                     .quizNo = 0,
                     .title = "동사"}});
    prepare(94, 7);
    EXPECT_EQ(desk.rows(courseStore, "select * from tablework_Final"),
              QStringList{"75|7|2|Quiz|동사|data 75|guide 75|sheet 75|3|YES|frmQuiz3|0|NULL|NULL"});
}

TEST_F(PrepareFinal, AStepWithFiveQuestionsGivesAllOfThemInARandomOrder) {
    addSteps(desk, {{.recordNo = 75, .topicNo = 7, .quizNo = 5}});
    addQuestions(desk, 75, 5);
    desk.random.queueNumbers({3, 3, 5, 1, 3, 5, 2, 4}, 5);
    prepare(94, 7);
    EXPECT_EQ(questions(75),
              (QStringList{"3|q3 of 75", "5|q5 of 75", "1|q1 of 75", "2|q2 of 75", "4|q4 of 75"}));
    EXPECT_EQ(desk.random.reseeds, 8) << "the generator is reseeded before every draw";
    EXPECT_EQ(desk.session.finalItemTotal, 5);
    EXPECT_EQ(desk.session.finalItemNo, 1);
}

TEST_F(PrepareFinal, AStepWithMoreQuestionsGivesFiveDifferentOnesAndTwoRunsDiffer) {
    addSteps(desk, {{.recordNo = 75, .topicNo = 7, .quizNo = 12}});
    addQuestions(desk, 75, 12);
    QSet<QString> drawn;
    for (int run = 0; run < 6; ++run) {
        prepare(94, 7);
        QStringList numbers = desk.rows(
            courseStore, "select distinct orderno from quiz_data_New3 where orderno between 1 and 12");
        EXPECT_EQ(numbers.size(), 5);
        drawn.insert(numbers.join(','));
    }
    EXPECT_GE(drawn.size(), 2);
}

TEST_F(PrepareFinal, AStepWithTwoToFourQuestionsGivesNoneAndStaysAStep) {
    addSteps(desk, {{.recordNo = 75, .topicNo = 7, .quizNo = 2},
                    {.recordNo = 76, .topicNo = 7, .quizNo = 3},
                    {.recordNo = 77, .topicNo = 7, .quizNo = 4},
                    {.recordNo = 78, .topicNo = 7, .quizNo = 0},
                    {.recordNo = 79, .topicNo = 7, .quizNo = 1}});
    for (int step = 75; step <= 79; ++step)
        addQuestions(desk, step, 5);
    prepare(94, 7);
    EXPECT_EQ(steps().size(), 5);
    EXPECT_EQ(desk.rows(courseStore, "select recordno,orderno,q1 from quiz_data_New3"),
              QStringList{"79|1|q1 of 79"});
    EXPECT_EQ(desk.session.finalItemTotal, 1);
}

TEST_F(PrepareFinal, AQuestionThatTheMasterLacksIsCountedAllTheSame) {
    addSteps(desk,
             {{.recordNo = 75, .topicNo = 7, .quizNo = 5}, {.recordNo = 76, .topicNo = 7, .quizNo = 1}});
    addQuestions(desk, 75, 4);
    prepare(94, 7);
    EXPECT_EQ(desk.session.finalItemTotal, 6);
    EXPECT_EQ(desk.row(courseStore, "select orderno,q1 from quiz_data_New3 where recordno=75 and orderno=5"),
              "5|NULL");
    EXPECT_EQ(desk.row(courseStore, "select q1 from quiz_data_New3 where recordno=76"), "NULL");
}

TEST_F(PrepareFinal, EachStartCountsFromTheBeginning) {
    addSteps(desk, {{.recordNo = 75, .topicNo = 7, .quizNo = 1}});
    addQuestions(desk, 75, 1);
    desk.session.finalItemNo = 9;
    prepare(94, 7);
    prepare(94, 7);
    EXPECT_EQ(desk.session.finalItemTotal, 1);
    EXPECT_EQ(desk.session.finalItemNo, 1);
}

TEST_F(PrepareFinal, TheStoreIsFoundOnlyWhereTheApplicationFolderIsADrivesRoot) {
    desk.context().applicationFolder = "D:\\Course";
    QDir().mkpath(desk.root() + "/D/Course");
    for (const char* store : {"tovalin.mdb", "Tovalin_Data.mdb"})
        QFile::copy(desk.root() + "/D/" + QLatin1String(store),
                    desk.root() + "/D/Course/" + QLatin1String(store));
    QString sentence;
    EXPECT_EQ(errorOf([&] { prepare(94, 7); }, &sentence), 3024);
    EXPECT_TRUE(sentence.contains("D:\\Coursetovalin.mdb")) << sentence.toStdString();
    QFile::copy(desk.root() + "/D/tovalin.mdb", desk.root() + "/D/Coursetovalin.mdb");
    EXPECT_EQ(errorOf([&] { prepare(94, 7); }), 0);
}

TEST_F(PrepareFinal, ForASheetTheSameWorkIsDoneInTheCopyAtItsFixedPlace) {
    addSteps(desk, {{.recordNo = 75, .topicNo = 7, .quizNo = 1}});
    addQuestions(desk, 75, 1);
    desk.exec(support::sheetStore,
              "insert into tablework(recordno,topicno,Type,quizno) values(76,7,'Quiz',1)");
    desk.session.recordNo = 94;
    desk.session.topicNo = 7;
    course::PrepareFinalDataForSheet(desk.context());
    EXPECT_TRUE(steps().isEmpty());
    EXPECT_EQ(desk.rows(support::sheetStore, "select recordno from tablework_Final"), QStringList{"76"});
}

TEST(Draw, GivesEveryNumberFromOneToTheCountAndNoOther) {
    Desk desk;
    constexpr float last = 0x1.fffffep-1F;  // the largest number below 1
    for (int count = 1; count <= 60; ++count) {
        desk.random.draws = {0.0F, last};
        EXPECT_EQ(course::drawNumber(desk.context(), count), 1);
        EXPECT_EQ(course::drawNumber(desk.context(), count), count);
    }
    QSet<int> drawn;
    for (int i = 0; i < 200; ++i)
        drawn.insert(course::drawNumber(desk.context(), 6));
    EXPECT_EQ(drawn, (QSet<int>{1, 2, 3, 4, 5, 6}));
}

TEST(Shuffle, GivesEveryRowADifferentNumberAndDrawsAgainForOneInUse) {
    Desk desk;
    desk.exec(
        courseStore,
        "insert into quiz_data_New3(recordno,orderno,q1) values(5,0,'a'),(5,0,'b'),(5,0,'c'),(6,0,'d')");
    auto rows =
        core::openCourse(desk.context()).openRecordset("Select * from quiz_data_New3 where recordno=5");
    desk.random.queueNumbers({2, 2, 2, 3, 3, 1}, 3);
    course::shuffleRows(desk.context(), rows, "orderno", 3, "recordno=5 and ");
    EXPECT_TRUE(rows.eof());
    EXPECT_EQ(desk.rows(courseStore, "select q1,orderno from quiz_data_New3"),
              (QStringList{"a|2", "b|3", "c|1", "d|0"}));
}
