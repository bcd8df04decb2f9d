// Demands on worksheets, Finals and sentences of the whole course.

#include "tests/tools/rules/cases.h"

using namespace check_cases;

namespace {

const char* const quizTable = "tovalin1_quiz_data";

File sentenceRows(const std::string& rows) {
    return {"unit01/basic_data3.csv", "recordno,word1,word2,word3,word4,vtitle\n" + rows};
}

File ranges(const std::string& rows, const std::string& unit = "unit01") {
    return {unit + "/tablework_final_data.csv", "recordno,recordno2\n" + rows};
}

const Cases sheetCases("CheckSheets",
                       {
                           {"ARefusedStepIsRed",
                            "sheet-refused",
                            {{"unit01/tablework.csv", "recordno,usedata\n29,YES\n30,NO\n56,NO\n57,YES\n"}},
                            {at("tablework", 2, "usedata"), at("tablework", 3, "usedata")}},
                           {"AStepBehindTheLastWorksheetIsTold",
                            "sheet-unknown",
                            {{"unit01/tablework.csv", "recordno,usedata\n257,YES\n258,YES\n259,NO\n"}},
                            {at("tablework", 3, "recordno")}},
                           {"ASentenceWorksheetHasSentences",
                            "sheet-sentences",
                            {steps("15,Lesson,frmLesson2\n45,Lesson,frmLesson3\n"),
                             sentenceRows("45,a cup,Blank,Blank,Blank,컵\n")},
                            {at("tablework", 2, "recordno")}},
                           {"SentencesOfAnotherStepAreNotPrinted",
                            "sheet-unread",
                            {steps("46,Quiz,frmQuiz\n"), sentenceRows("46,a cup,Blank,Blank,Blank,컵\n")},
                            {at("basic_data3", 2, "recordno")}},
                           {"AnEmptySentenceFieldIsWrittenBlank",
                            "sheet-fields",
                            {sentenceRows("45,a cup,,Blank,Blank,컵\n45,Blank,Blank,Blank,Blank,\n")},
                            {at("basic_data3", 2, "word2"), at("basic_data3", 3, "word1"),
                             at("basic_data3", 3, "vtitle")}},
                           {"AWorksheetWithSecondLinesHasThem",
                            "sheet-second-line",
                            {steps("165,Quiz,frmQuiz10\n"), questions("q1,q2,a1", "165,x,나,a\n165,x,,a\n")},
                            {at(quizTable, 3, "q2")}},
                           {"AChoiceIsNoSecondLine",
                            "sheet-line-choice",
                            {steps("166,Quiz,frmQuiz7\n167,Quiz,frmQuiz7\n"),
                             questions("q1,q2,q3,a1", "166,x,a,b,a\n167,x,a,b,a\n")},
                            {at(quizTable, 2, "q2")}},
                       });

const std::string sixQuestions = lines(6, "75,x%") + lines(6, "76,x%");

const Cases finalCases(
    "CheckFinals",
    {
        {"AFinalWithoutQuizzesIsTold",
         "final-empty",
         {steps("93,Lesson,frmLesson\n94,Final,frmQuiz\n")},
         {at("tablework", 3, "Type")}},
        {"The21stQuizOfAFinalEndsTheProgram",
         "final-room",
         {steps(lines(21, "%,Quiz,frmQuiz", 73) + "94,Final,frmQuiz\n")},
         {at("tablework", 22, "Type")}},
        {"TheFinalAtStep20DrawsFrom16To19",
         "final-screen",
         {steps("15,Lesson,frmLesson2\n16,Lesson,frmLesson\n17,Quiz,frmQuiz\n20,Final,frmQuiz\n")},
         {at("tablework", 3, "useform")}},
        {"AQuizOfTwoToFourQuestionsIsLeftOutAndEndsTheProgram",
         "final-questions",
         {steps("73,Quiz,frmQuiz\n75,Quiz,frmQuiz\n76,Quiz,frmQuiz\n94,Final,frmQuiz\n"),
          questions("q1", "73,x\n" + lines(4, "75,x%") + lines(5, "76,x%"))},
         {at("tablework", 3, "quizno")}},
        {"APrintedFinalHasAList",
         "final-list",
         {steps("75,Quiz,frmQuiz\n94,Final,frmQuiz\n")},
         {at("tablework", 3, "recordno")}},
        {"AListWithoutAFinalIsPrintedNowhere",
         "final-list-unread",
         {steps("75,Quiz,frmQuiz\n94,Final,frmQuiz\n"), ranges("75,75\n"), ranges("30,31\n", "unit02")},
         {QStringLiteral("unit02/tablework_final_data.csv:2, field 'recordno'")}},
        {"ARangeRunsForward",
         "final-range",
         {ranges("75,76\n76,75\n77,\n")},
         {at("tablework_final_data", 3, "recordno2"), at("tablework_final_data", 4, "recordno2")}},
        {"EveryQuizIsPrintedOnce",
         "final-cover",
         {steps("75,Quiz,frmQuiz\n76,Quiz,frmQuiz\n77,Quiz,frmQuiz\n94,Final,frmQuiz\n"),
          ranges("75,76\n76,76\n")},
         {at("tablework_final_data", 2, "recordno"), at("tablework_final_data", 2, "recordno")}},
        {"AStepWithSecondLinesBeginsARange",
         "final-start",
         {steps("120,Quiz,frmQuiz\n121,Quiz,frmQuiz6\n126,Final,frmQuiz\n"), ranges("120,123\n")},
         {at("tablework_final_data", 2, "recordno")}},
    });

const Cases repeatCases(
    "CheckRepeats",
    {
        {"ASentenceThatDiffersInItsGapAloneStandsTwice",
         "sentence-twice",
         {steps("26,Quiz,frmQuiz5\n176,Quiz,frmQuiz11\n"),
          questions("q1,a1",
                    "26,Seoul is ____ capital of Korea.,the\n176,Seoul is the capital ____ "
                    "Korea.,of\n176,Busan is south ____ Seoul.,of\n")},
         {at(quizTable, 3, "q1")}},
        {"HintsInBracketsDoNotMakeAnotherSentence",
         "sentence-twice",
         {steps("3,Quiz,frmQuiz\n4,Quiz,frmQuiz2\n"),
          questions("q1,q2,q3,a1", "3,I have two ____. (pen),pen,pens,pens\n4,I have two ____.,,,pens\n")},
         {at(quizTable, 3, "q1")}},
        {"AStepAsksEachQuestionOnce",
         "question-twice",
         {steps("3,Quiz,frmQuiz\n"),
          questions("q1,q2,q3,a1", "3,pen,pen,pens,pens\n3,pen,pens,pen,pens\n3,pen,pens,penes,pens\n")},
         {at(quizTable, 3, "q1")}},
    });

}  // namespace
