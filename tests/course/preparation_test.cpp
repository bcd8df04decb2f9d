#include "course/preparation.h"

#include "tests/support/course_rows.h"
#include "tests/support/recorder.h"
#include "tests/support/store.h"

#include <QFile>

using support::addQuestions;
using support::courseStore;
using support::Desk;
using support::errorOf;
using support::masterStore;
using support::wordBookStore;

namespace {

class PrepareStep : public testing::Test {
   protected:
    Desk desk;

    void prepare(int recordNo) {
        desk.session.recordNo = recordNo;
        course::PrepareStepData(desk.context());
    }
    void addBasic(int recordNo, int count) const {
        for (int i = 1; i <= count; ++i)
            desk.exec(masterStore, "insert into tovalin1_Basic_Data values(1," + std::to_string(recordNo) +
                                       "," + std::to_string(i) + ",'w" + std::to_string(i) +
                                       "','x','','e1','e2'," + std::to_string(100 * recordNo + i) + ")");
    }
    QStringList course(const std::string& sql) const { return desk.rows(courseStore, sql); }
};

}  // namespace

TEST_F(PrepareStep, TheQuizTableHoldsOnlyTheRowsOfTheStepInTheirOwnOrder) {
    addQuestions(desk, 4, 2);
    addQuestions(desk, 5, 3);
    desk.exec(masterStore, "update tovalin1_quiz_data set autono=1 where recordno=5 and orderno=3");
    desk.exec(courseStore, "insert into quiz_data_New3(recordno,q1) values(1,'old')");
    prepare(5);
    EXPECT_EQ(course("select recordno,orderno,q1,a1 from quiz_data_New3"),
              (QStringList{"5|3|q3 of 5|a3", "5|1|q1 of 5|a1", "5|2|q2 of 5|a2"}));
}

TEST_F(PrepareStep, SeventeenFieldsOfAQuestionAreCopiedAndMissingValuesStayMissing) {
    desk.exec(masterStore,
              "insert into tovalin1_quiz_data "
              "values(2,5,1,7,'q1','q2','q3','q4','q5','q6','','a1','a2','NO','x','y',NULL,9)");
    prepare(5);
    EXPECT_EQ(course("select * from quiz_data_New3"),
              QStringList{"2|5|1|7|q1|q2|q3|q4|q5|q6||a1|a2|NO|x|y|NULL"});
}

TEST_F(PrepareStep, FieldsWithoutANamesakeAreCopiedByPosition) {
    desk.exec(masterStore,
              "drop table tovalin1_quiz_data;"
              "create table tovalin1_quiz_data(topicno INTEGER, recordno INTEGER, orderno INTEGER, orderno2 "
              "INTEGER, q1 TEXT,"
              "q2 TEXT,q3 TEXT,q4 TEXT,q5 TEXT,q6 TEXT,q7 TEXT,a1 TEXT,a2 TEXT,correct TEXT,f14 TEXT,f15 "
              "TEXT,f16 TEXT,autono INTEGER);"
              "insert into tovalin1_quiz_data "
              "values(2,5,1,7,'1','2','3','4','5','6','7','8','9','10','11','12','13',9)");
    prepare(5);
    EXPECT_EQ(course("select * from quiz_data_New3"), QStringList{"2|5|1|7|1|2|3|4|5|6|7|8|9|10|11|12|13"});
}

TEST_F(PrepareStep, AGrammarTipWhoseMasterOrdersItsColumnsInAnotherWayArrivesInTheRightFields) {
    desk.exec(masterStore,
              "drop table tovalin1_gram_tip;"
              "create table tovalin1_gram_tip(topicno INTEGER, recordno INTEGER, autono INTEGER, tips TEXT);"
              "insert into tovalin1_gram_tip values(3,29,4,'대명사는'),(3,30,5,'other')");
    desk.exec(courseStore, "insert into gram_tip(recordno,tips) values(1,'old')");
    prepare(29);
    EXPECT_EQ(course("select recordno,topicno,tips from gram_tip"), QStringList{"29|3|대명사는"});
}

TEST_F(PrepareStep, GrammarTipsComeInTheirOwnOrder) {
    desk.exec(masterStore,
              "insert into tovalin1_gram_tip(recordno,topicno,tips,autono) "
              "values(29,3,'second',8),(29,3,'first',4)");
    prepare(29);
    EXPECT_EQ(course("select tips from gram_tip"), (QStringList{"first", "second"}));
}

TEST_F(PrepareStep, EightFieldsOfADrillRowAreCopied) {
    addBasic(29, 2);
    addBasic(30, 1);
    desk.exec(courseStore, "insert into basic_Data(recordno,word1) values(1,'old')");
    prepare(29);
    EXPECT_EQ(course("select * from basic_Data"), (QStringList{"1|29|1|w1|x||e1|e2", "1|29|2|w2|x||e1|e2"}));
}

TEST_F(PrepareStep, Step15HasTheDrillRowsOf15And16ButOnlyItsOwnQuestionsAndTips) {
    for (const int step : {14, 15, 16, 17}) {
        addBasic(step, 2);
        addQuestions(desk, step, 1);
        desk.exec(masterStore, "insert into tovalin1_gram_tip(recordno,tips,autono) values(" +
                                   std::to_string(step) + ",'t',1)");
    }
    prepare(15);
    EXPECT_EQ(course("select recordno,orderno from basic_Data"),
              (QStringList{"15|1", "15|2", "16|1", "16|2"}));
    EXPECT_EQ(course("select recordno from quiz_data_New3"), QStringList{"15"});
    EXPECT_EQ(course("select recordno from gram_tip"), QStringList{"15"});
    prepare(16);
    EXPECT_EQ(course("select recordno,orderno from basic_Data"), (QStringList{"16|1", "16|2"}));
}

TEST_F(PrepareStep, Step115AloneFillsTheSecondList) {
    desk.exec(masterStore, "insert into tovalin1_BasicData_115 values(1,'big'),(2,'good')");
    desk.exec(courseStore, "insert into basic_Data2 values(9,'old')");
    prepare(114);
    EXPECT_EQ(course("select * from basic_Data2"), QStringList{"9|old"});
    prepare(115);
    EXPECT_EQ(course("select orderno2,word from basic_Data2"), (QStringList{"1|big", "2|good"}));
}

TEST_F(PrepareStep, TheWordsOfTheStepFillTheWordBook) {
    desk.exec(courseStore,
              "insert into newword(recordno,word,korean,scode) "
              "values(29,'apple','사과','S1'),(30,'fig','무화과',NULL)");
    desk.exec(wordBookStore, "insert into word_book(word) values('old')");
    prepare(29);
    EXPECT_EQ(desk.rows(wordBookStore, "select word,Page,korean,recordno,scode,orderno from word_book"),
              QStringList{"apple|29|사과|29|S1|0"});
}

TEST_F(PrepareStep, TheWordBookIsEmptiedAlsoForAStepWithoutWords) {
    desk.exec(wordBookStore, "insert into word_book(word) values('old'),('older')");
    prepare(31);
    EXPECT_TRUE(desk.rows(wordBookStore, "select * from word_book").isEmpty());
}

TEST_F(PrepareStep, OtherTablesKeepTheirContent) {
    desk.exec(courseStore,
              "insert into gram_tip2(recordno,tip2) values(1,'t'); insert into blankno(orderno) values(1);"
              "insert into topic values(1,'명사'); insert into tempword(word1) values('w')");
    desk.exec(support::testWordStore, "insert into testword(word) values('w')");
    prepare(29);
    for (const char* table : {"gram_tip2", "blankno", "topic", "tempword"})
        EXPECT_EQ(course(std::string("select count(*) from ") + table), QStringList{"1"}) << table;
    EXPECT_EQ(desk.rows(support::testWordStore, "select count(*) from testword"), QStringList{"1"});
}

TEST_F(PrepareStep, ForASheetTheSameWorkIsDoneInTheCopyAtItsFixedPlace) {
    addQuestions(desk, 5, 1);
    desk.exec(support::sheetStore, "insert into newword(recordno,word) values(5,'sheet')");
    desk.exec(courseStore, "insert into newword(recordno,word) values(5,'course')");
    desk.session.recordNo = 5;
    course::PrepareStepDataForSheet(desk.context());
    EXPECT_EQ(desk.rows(support::sheetStore, "select recordno from quiz_data_New3"), QStringList{"5"});
    EXPECT_TRUE(course("select * from quiz_data_New3").isEmpty());
    EXPECT_EQ(desk.rows(wordBookStore, "select word from word_book"), QStringList{"sheet"});
}

TEST_F(PrepareStep, AMissingStoreEndsTheRunInTheOrderOfTheWork) {
    desk.exec(wordBookStore, "insert into word_book(word) values('old')");
    for (const auto& [store, emptied] :
         {std::pair{courseStore, true}, std::pair{wordBookStore, true}, std::pair{masterStore, true}}) {
        QFile::remove(desk.file(store));
        QString sentence;
        EXPECT_EQ(errorOf([&] { prepare(5); }, &sentence), 3024);
        EXPECT_TRUE(sentence.contains(store.section(u'\\', -1))) << sentence.toStdString();
    }
}

TEST_F(PrepareStep, AMasterTableWithTooFewColumnsEndsTheRunAndLeavesTheOldContent) {
    desk.exec(masterStore,
              "drop table tovalin1_Basic_Data;"
              "create table tovalin1_Basic_Data(topicno INTEGER, recordno INTEGER, autono INTEGER);"
              "insert into tovalin1_Basic_Data values(1,5,1)");
    desk.exec(courseStore, "insert into basic_Data(recordno,word1) values(1,'old')");
    EXPECT_EQ(errorOf([&] { prepare(5); }), 3265);
    EXPECT_EQ(course("select word1 from basic_Data"), QStringList{"old"});
}

TEST(PrepareStepData, AWordWithoutItsTextIsToldWithItsTableAndRowBeforeTheStepStarts) {
    for (const char* field : {"word", "korean"}) {
        Desk desk;
        desk.exec(courseStore,
                  "insert into newword(recordno,word,korean) values(3,'pear','배'),(3,'fig','무화과')");
        desk.exec(courseStore, std::string("update newword set ") + field + "=NULL where word='fig'");
        desk.session.recordNo = 3;
        desk.session.wordNo = 2;
        QString sentence;
        EXPECT_EQ(support::errorOf([&] { course::PrepareStepData(desk.context()); }, &sentence), 94);
        for (const QString& part :
             {QStringLiteral("'%1'").arg(QLatin1String(field)), QStringLiteral("'newword'"),
              QStringLiteral("D:\\\\tovalin.mdb"), QStringLiteral("row 2")})
            EXPECT_TRUE(sentence.contains(part)) << part.toStdString() << " in " << sentence.toStdString();
    }
}

TEST(PrepareStepData, WhatIsWrongWithAMasterRowIsToldWithTheMasterStore) {
    Desk desk;
    desk.exec(masterStore, "insert into tovalin1_quiz_data(topicno,recordno,orderno,autono) values(1,5,1,1)");
    desk.session.recordNo = 5;
    course::PrepareStepData(desk.context());
    const platform::Database course =
        platform::Database::open(desk.file(courseStore), QStringLiteral("D:\\\\tovalin.mdb"));
    const auto rows = course.openRecordset("Select * from quiz_data_New3 where recordno=5");
    QString sentence;
    EXPECT_EQ(support::errorOf([&] { rows.text("q1"); }, &sentence), 94);
    EXPECT_TRUE(sentence.contains(
        "filled from table 'tovalin1_quiz_data' of 'D:\\\\Tovalin_Data.mdb' where recordno=5"))
        << sentence.toStdString();
}
