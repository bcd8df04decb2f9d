#include "worksheets/sheet_builders.h"

#include "platform/storage/recordset.h"
#include "tests/support/desk.h"

#include <gtest/gtest.h>

using support::Desk;
using support::sheetStore;
using worksheets::BuildResult;

namespace {

/// The copy of the course that worksheets work in, with rows of a test's own.
class SheetBuilders : public ::testing::Test {
   protected:
    void addQuestions(const std::vector<std::string>& rows) {
        for (const std::string& row : rows)
            desk_.exec(
                sheetStore,
                "insert into quiz_data_New3(topicno,recordno,orderno,q1,q2,q3,q4,a1,a2) values(" + row + ")");
    }
    void addDrillRows(int count) {
        for (int i = 1; i <= count; ++i)
            desk_.exec(sheetStore, "insert into basic_Data(recordno,orderno,word1,word2) values(1," +
                                       std::to_string(i) + ",'word" + std::to_string(i) + "','answer" +
                                       std::to_string(i) + "')");
    }
    BuildResult build(int recordNo, int topicNo = 1) {
        const auto course = platform::Database::open(desk_.file(sheetStore), sheetStore);
        return worksheets::buildSheet(course, topicNo, recordNo);
    }
    QStringList lines(const std::string& fields) {
        return desk_.rows(sheetStore, "select " + fields + " from tempword order by rowid");
    }

    Desk desk_;
};

QStringList list(std::initializer_list<const char*> texts) {
    QStringList all;
    for (const char* text : texts)
        all.append(QString::fromUtf8(text));
    return all;
}

}  // namespace

TEST_F(SheetBuilders, TwoUpPutsTwoDrillRowsOnALine) {
    addDrillRows(4);
    build(1);
    EXPECT_EQ(lines("word1,word2,word3,word4,word5,recordno,orderno,orderno2"),
              list({"word1|answer1|word2|answer2||1|1|1", "word3|answer3|word4|answer4||2|2|2"}));
}

TEST_F(SheetBuilders, TwoUpLeavesTheLastLineHalfFilledForAnOddCount) {
    addDrillRows(3);
    build(184);
    EXPECT_EQ(lines("word1,word2,word3,word4,word5,recordno,orderno,orderno2").value(1),
              QStringLiteral("word3|answer3||||2|2|0"));
}

TEST_F(SheetBuilders, TwoUpTakesQuestionsOfTheQuizWhereTheTableSaysSo) {
    addQuestions({"1,8,1,'a child','x','y','z','children',''", "1,8,2,'a man','','','','men','m'"});
    build(8);
    EXPECT_EQ(lines("word1,word2,word3,word4,word5"), list({"a child|children|a man|men|"}));
}

TEST_F(SheetBuilders, StepsTwoToSevenWriteNoLines) {
    addQuestions({"1,3,1,'q','','','','a',''"});
    build(3);
    EXPECT_TRUE(lines("word1").isEmpty());
}

TEST_F(SheetBuilders, TheFirstFinalIsCountedAnewFromStepEight) {
    addQuestions({"1,2,5,'a','','','','a',''", "1,7,3,'b','','','','b',''", "1,8,9,'c','','','','c',''",
                  "1,13,2,'d','','','','d',''"});
    build(14);
    EXPECT_EQ(desk_.rows(sheetStore, "select recordno,orderno from quiz_data_New3 order by rowid"),
              list({"2|1", "7|2", "8|1", "13|2"}));
    EXPECT_TRUE(lines("word1").isEmpty());
}

TEST_F(SheetBuilders, MasksHaveABoxForEachCharacterButSpaces) {
    EXPECT_EQ(worksheets::maskOf(QStringLiteral("a cup.")), QStringLiteral("□ □□□□"));
    EXPECT_EQ(worksheets::maskOf({}), QString());
}

TEST_F(SheetBuilders, MasksLeaveOutWhatIsBlankButKeepItsText) {
    desk_.exec(sheetStore,
               "insert into basic_data3 values(1,15,'a cup','two cups','Blank','Blank','잔');"
               "insert into basic_data3 values(1,15,'Blank','b','c','d','빈칸');"
               "insert into basic_data3 values(2,15,'other unit','x','x','x','x');"
               "insert into basic_data3 values(1,16,'other step','x','x','x','x')");
    build(15);
    EXPECT_EQ(lines("word1,word2,word3,word4,word5,word6,word7,word8,recordno,orderno,orderno2,vtitle"),
              list({"a cup|two cups|Blank|Blank|□ □□□|□□□ □□□□|||15|1|0|잔",
                    "Blank|b|c|d|□□□□□|□|□|□|15|2|0|빈칸"}));
}

TEST_F(SheetBuilders, ColumnsTakeAsManyQuestionFieldsAsTheStepHas) {
    addQuestions({"1,16,1,'one','two','three','four','answer','other'"});
    const std::string fields = "word1,word2,word3,word4,word5,orderno";
    build(16);
    EXPECT_EQ(lines(fields), list({"one|two|three|answer|other|1"}));
    desk_.exec(sheetStore, "delete from tempword");
    build(257);
    EXPECT_EQ(lines(fields), list({"one|two||answer|other|1"}));
    desk_.exec(sheetStore, "delete from tempword");
    build(124);
    EXPECT_EQ(lines(fields), list({"one|||answer|other|1"}));
    desk_.exec(sheetStore, "delete from tempword");
    build(148);
    EXPECT_EQ(lines(fields), list({"two|one||answer|other|1"}));
}

TEST_F(SheetBuilders, LinesAreCountedFromOneInStoredOrder) {
    addQuestions({"1,40,7,'b','','','','b',''", "1,40,3,'a','','','','a',''", "1,40,5,'c','','','','c',''"});
    build(40);
    EXPECT_EQ(lines("word1,orderno"), list({"b|1", "a|2", "c|3"}));
}

TEST_F(SheetBuilders, TheWordBankHoldsEachAnswerOnceInTheOrderOfItsFirstOccurrence) {
    addDrillRows(3);
    addQuestions({"17,171,1,'q1','','','','on',''", "17,171,2,'q2','','','','at',''",
                  "17,171,3,'q3','','','','ON',''", "17,171,4,'q4','','','','in',''"});
    build(171);
    EXPECT_EQ(desk_.rows(sheetStore, "select w1,w2,w3,w4,w12 from sample"), list({"on|at|in|NULL|NULL"}));
    EXPECT_EQ(desk_.rows(sheetStore, "select word1 from basic_Data"), list({"on", "at", "in"}));
    EXPECT_EQ(lines("word1,word2,word4").value(3), QStringLiteral("q4||in"));
}

TEST_F(SheetBuilders, TheWordBankTakesTwelveAnswersAtMost) {
    desk_.exec(sheetStore, "insert into sample(w1) values('old')");
    std::vector<std::string> rows;
    for (int i = 1; i <= 15; ++i)
        rows.push_back("17,182," + std::to_string(i) + ",'q','','','','a" + std::to_string(i) + "',''");
    addQuestions(rows);
    build(182);
    EXPECT_EQ(desk_.rows(sheetStore, "select w1,w11,w12 from sample"), list({"a1|a11|a12"}));
    EXPECT_EQ(lines("word1").size(), 15);
}

TEST_F(SheetBuilders, ChoicesStandInBracketsWithTheirOwnSpaces) {
    EXPECT_EQ(worksheets::bracketedChoices(QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")),
              QStringLiteral("( a    b   c ) "));
    EXPECT_EQ(worksheets::bracketedChoices(QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("Blank")),
              QStringLiteral("( a    b  )"));
    addQuestions({"23,242,1,'I ____.','a','b','Blank','a','b'", "23,242,2,'He ____.','a','b','c','c',''"});
    build(242);
    EXPECT_EQ(lines("word1,word2,word3,word4,word5,orderno"),
              list({"( a    b  )|I ____.||a|b|1", "( a    b   c ) |He ____.||c||2"}));
}

TEST_F(SheetBuilders, AFinalTakesTheQuestionsOfItsRanges) {
    desk_.exec(
        sheetStore,
        "insert into tablework_Final(recordno,Title) values(999,'left over');"
        "insert into tablework_final_data(recordno,recordno2,topicno,Title) values(116,120,11,'빈칸');"
        "insert into tablework_final_data(recordno,recordno2,topicno,Title) values(121,123,11,'문장');"
        "insert into tablework_final_data(recordno,recordno2,topicno,Title) values(75,76,7,'다른 단원')");
    addQuestions({"11,121,1,'make','뜻','','','made','b'", "11,118,1,'fill','no','','','filled','c'",
                  "11,125,1,'outside','','','','x',''", "11,122,4,'build','짓다','','','built',''"});
    EXPECT_EQ(build(126, 11), BuildResult::Built);
    EXPECT_EQ(
        desk_.rows(sheetStore, "select recordno,recordno2,topicno,Title from tablework_Final order by rowid"),
        list({"116|120|11|빈칸", "121|123|11|문장"}));
    EXPECT_EQ(lines("word1,word2,word7,recordno,orderno"),
              list({"fill|NULL|filled|118|1", "make|뜻|made|121|2", "build|짓다|built|122|3"}));
}

TEST_F(SheetBuilders, AFinalHasASecondLineOnlyForRangesThatBeginAtFourSteps) {
    for (const int first : {121, 134, 165, 208, 120, 166}) {
        const std::string number = std::to_string(first);
        desk_.exec(sheetStore,
                   "delete from tempword; delete from quiz_data_New3; delete from tablework_final_data;"
                   "insert into tablework_final_data(recordno,recordno2,topicno) values(" +
                       number + ",250,1)");
        addQuestions({"1," + number + ",1,'one','two','','','a',''"});
        build(252);
        const bool second = first == 121 || first == 134 || first == 165 || first == 208;
        EXPECT_EQ(lines("word2"), list({second ? "two" : "NULL"})) << first;
    }
}

TEST_F(SheetBuilders, AFinalWithoutMasterRowsBuildsNothingAndEmptiesTheList) {
    desk_.exec(sheetStore, "insert into tablework_Final(recordno) values(999)");
    addQuestions({"7,75,1,'q','','','','a',''"});
    EXPECT_EQ(build(94, 7), BuildResult::NoFinalRows);
    EXPECT_TRUE(desk_.rows(sheetStore, "select * from tablework_Final").isEmpty());
    EXPECT_TRUE(lines("word1").isEmpty());
}

TEST_F(SheetBuilders, AnApostropheInAnAnswerOfTheWordBankEndsTheRun) {
    addQuestions({"17,171,1,'q','','','','o''clock',''"});
    EXPECT_THROW(build(171), platform::RuntimeError);
}
