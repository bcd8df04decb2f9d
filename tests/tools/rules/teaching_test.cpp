// What makes a course teach well: sentences that grow, tenses in their turn, variety, clear instructions.

#include "tests/tools/rules/cases.h"
#include "tools/english/english.h"
#include "tools/rules/figures.h"
#include "tools/rules/sentences.h"

using namespace check_cases;
using namespace tools::check;

namespace {

const char* const quizTable = "tovalin1_quiz_data";

File steps18(const std::string& rows) {
    return steps(rows, "unit18");
}

File instructions(const std::string& rows) {
    return {"unit01/tablework.csv", "recordno,useform,guide,guide2\n" + rows};
}

const Cases climbCases(
    "CheckClimb",
    {
        {"ShortSentencesBelongToTheFirstUnits",
         "sentence-length",
         {steps("2,Quiz,frmQuiz2\n"),
          questions("q1,a1", lines(8, "2,Word% ____ really well now.,sings")),
          steps18("197,Quiz,frmQuiz8\n"),
          {"unit18/tovalin1_quiz_data.csv",
           "recordno,q1,a1\n" + lines(8, "197,Word% ____ really well now.,sang")}},
         {QStringLiteral("unit18/tovalin1_quiz_data.csv:2, field 'q1'")}},
        {"LongSentencesBelongToTheLastUnits",
         "sentence-length",
         {steps("2,Quiz,frmQuiz7\n"),
          questions("q1,a1", lines(8, "2,Number% ____ every song that I know very well.,sings"))},
         {at(quizTable, 2, "q1")}},
        {"SingleWordsAndHintsAreNoSentences",
         "sentence-length",
         {steps("2,Quiz,frmQuiz2\n"),
          questions("q1,a1", lines(8, "2,word% (하나),words") +
                                 lines(8, "2,Word% sings very well. (very well here in this big room),x"))},
         {}},
        {"ThePastWaitsForItsUnit",
         "tense-early",
         {topics("1,명사\n18,과거시제\n"),
          steps("2,Quiz,frmQuiz2\n"),
          questions("q1,a1", "2,I ____ a cat.,saw\n2,I am tired.,x\n2,My left shoe is new.,x\n"),
          steps18("187,Quiz,frmQuiz2\n"),
          {"unit18/tovalin1_quiz_data.csv", "recordno,q1,a1\n187,I ____ a cat.,saw\n"}},
         {at(quizTable, 2, "q1")}},
        {"DrillsAndExamplesOfTipsWaitToo",
         "tense-early",
         {topics("1,명사\n18,과거시제\n"), drill("1,go,went,\n1,cut,cut,\n"),
          tips("1,1,\"went는 나중에 배웁니다.\nI have a book.\nI had a book. (가졌다)\"\n")},
         {at("tovalin1_basic_data", 2, "word2"), at("tovalin1_gram_tip", 2, "tips")}},
        {"EveryTenseHasTheUnitOfItsName",
         "tense-early",
         {topics("1,명사\n16,현재진행형\n19,미래시제\n23,현재완료와 수동태\n"), steps("2,Quiz,frmQuiz2\n"),
          questions("q1,a1",
                    "2,She is ____ now.,singing\n2,It will rain.,x\n2,I have seen it.,x\n2,It is made "
                    "of wood.,x\n2,I saw it.,x\n2,Will you help me?,x\n")},
         {at(quizTable, 2, "q1"), at(quizTable, 3, "q1"), at(quizTable, 4, "q1"), at(quizTable, 5, "q1")}},
        {"ACourseThatTeachesNoTenseIsNotAskedForOne",
         "tense-early",
         {topics("1,명사\n"), steps("2,Quiz,frmQuiz2\n"), questions("q1,a1", "2,I ____ a cat.,saw\n")},
         {}},
    });

const Cases varietyCases(
    "CheckVariety",
    {
        {"The16thSentenceThatBeginsAlikeIsTold",
         "frame-repeated",
         {steps("2,Quiz,frmQuiz2\n"),
          questions("q1,a1", lines(16, "2,There ____ a thing%.,is") + lines(15, "2,Here ____ a thing%.,is"))},
         {at(quizTable, 17, "q1")}},
        {"The21stQuestionWithANounIsTold",
         "noun-repeated",
         {steps("2,Quiz,frmQuiz2\n"),
          questions("q1,a1", lines(20, "2,x% ____ sees my bus.,it") + "2,Two ____ are here.,buses\n" +
                                 lines(20, "2,y% ____ a pencil.,it"))},
         {at(quizTable, 22, "q1")}},
        {"AWholeCourseTeaches600Words",
         "words-few",
         {topics(lines(24, "%,Unit")), words("1,cat,고양이\n1,dog,개\n")},
         {at("newword", 2, "word")}},
        {"AShorterCourseHasFewerWords",
         "words-few",
         {topics(lines(23, "%,Unit")), words("1,cat,고양이\n1,dog,개\n")},
         {}},
    });

const Cases guideCases(
    "CheckGuides",
    {
        {"AllInstructionsSpeakInOneWay",
         "register",
         {instructions("2,frmQuiz,고르십시오.,쓰십시오.\n3,frmQuiz,과거의 일입니다. 고르세요.,쓰시오.\n"
                       "4,frmQuiz,\"주격, 목적격\",과거의 일입니다. (쓰세요.)\n")},
         {at("tablework", 3, "guide"), at("tablework", 3, "guide2")}},
        {"APoolSaysInWhichOrderItFills",
         "instruction-order",
         {instructions(
             "8,frmQuiz11,차례로 클릭하십시오.,x\n9,frmQuiz12,고르십시오.,x\n10,frmQuiz,고르십시오.,x\n")},
         {at("tablework", 3, "guide")}},
        {"ATypedSentenceIsAskedForWithItsFinalMark",
         "instruction-marks",
         {instructions("121,frmQuiz6,쓰십시오.,x\n122,frmQuiz6,문장 부호까지 쓰십시오.,x\n")},
         {at("tablework", 2, "guide")}},
    });

QString form(const char* sentence, english::Tense tense) {
    return english::findTense(englishWords(QLatin1String(sentence)), tense);
}

TEST(CheckEnglish, PastFormsAreToldFromAdjectivesAndPassives) {
    using english::Tense;
    EXPECT_EQ(form("Our teacher smiled.", Tense::Past), QStringLiteral("smiled"));
    EXPECT_EQ(form("He didn't see us.", Tense::Past), QStringLiteral("didn't"));
    EXPECT_EQ(form("We used to live here.", Tense::Past), QStringLiteral("used"));
    for (const char* other : {"I am tired and bored.", "A broken cup is on the floor.", "Turn left here.",
                              "It is used to cut wood.", "She has lost her key.", "I need a red bed.",
                              "The door is closed.", "I put it there every day."})
        EXPECT_EQ(form(other, Tense::Past), QString()) << other;
}

TEST(CheckEnglish, FormsOfTwoWordsAreFoundAcrossTheirSubject) {
    using english::Tense;
    EXPECT_EQ(form("Are the birds singing?", Tense::Progressive), QStringLiteral("Are the birds singing"));
    EXPECT_EQ(form("She has never been there.", Tense::Perfect), QStringLiteral("has never been"));
    EXPECT_EQ(form("Was this house built in May?", Tense::Passive), QStringLiteral("Was this house built"));
    EXPECT_EQ(form("I am going to swim.", Tense::Future), QStringLiteral("going to swim"));
    EXPECT_EQ(form("I am going to the park.", Tense::Future), QString());
    EXPECT_EQ(form("This story is interesting.", Tense::Progressive), QString());
    EXPECT_EQ(form("I have lunch and play.", Tense::Perfect), QString());
    EXPECT_EQ(form("There is a little milk left.", Tense::Passive), QString());
}

TEST(CheckEnglish, OneNounIsCountedInAllItsForms) {
    EXPECT_EQ(english::baseForm(QStringLiteral("buses")), QStringLiteral("bus"));
    EXPECT_EQ(english::baseForm(QStringLiteral("cities")), QStringLiteral("city"));
    EXPECT_EQ(english::baseForm(QStringLiteral("women")), QStringLiteral("woman"));
    EXPECT_EQ(english::baseForm(QStringLiteral("sister's")), QStringLiteral("sister"));
    EXPECT_EQ(english::baseForm(QStringLiteral("glass")), QStringLiteral("glass"));
    EXPECT_TRUE(english::canWearOut(QStringLiteral("singer")));
    for (const char* everyday : {"the", "stopped", "happier", "loudly", "goes", "seven", "friday", "7:30"})
        EXPECT_FALSE(english::canWearOut(QLatin1String(everyday))) << everyday;
}

TEST(CheckFigures, EachUnitHasALineAndTheCourseHasOne) {
    const tools::BuiltCourse built(
        readFiles({steps("2,Quiz,frmQuiz2\n121,Quiz,frmQuiz6\n63,Quiz,frmQuiz4\n5,Quiz,frmQuiz\n"),
                   questions("q1,a1,point",
                             "2,I have two ____.,cats,plural-s\n121,나,Cats sleep here.,plural-s\n"
                             "63,The cat sleep.,sleeps,third-s\n5,cat (고양이),cats,plural-s\n"),
                   words("2,cat,고양이\n")}));
    const QStringList lines = figures(Course(built.tables()));
    ASSERT_EQ(lines.size(), 4);
    EXPECT_EQ(lines[1].simplified(), QStringLiteral("1 4 2 3.3 25% 50% 25% 25% 7 1 cat 4"));
    EXPECT_EQ(lines[2].simplified(), QStringLiteral("all") + lines[1].simplified().mid(1));
    EXPECT_EQ(lines[3], QStringLiteral("nouns: cat 4"));
}

}  // namespace
