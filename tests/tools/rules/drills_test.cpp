// Demands on drills, their answers, rule lines and tips.

#include "tests/tools/rules/cases.h"

using namespace check_cases;

namespace {

const Tested videoMissingRule("video-missing");

const std::string openers = "1,Lesson,frmLesson\n";
const std::string fullDrill = lines(28, "1,word%,words%,");

const Cases drillCases(
    "CheckDrills",
    {
        {"A29thRowHasNoBox",
         "drill-rows",
         {steps(openers), drill(fullDrill + "1,box,boxes,\n")},
         {at("tovalin1_basic_data", 30, "recordno")}},
        {"A27thRowIsNotEnough",
         "drill-rows",
         {steps(openers), drill(lines(27, "1,word%,words%,"))},
         {at("tovalin1_basic_data", 28, "recordno")}},
        {"TheSecondPageOfStep15WantsItsOwnRows",
         "drill-rows",
         {steps("15,Lesson,frmLesson2\n"), drill(lines(28, "15,w%,,") + lines(22, "16,c%,,"))},
         {at("tovalin1_basic_data", 51, "recordno")}},
        {"IrregularVerbsAreOneToSixteen",
         "drill-rows",
         {steps("184,Lesson,frmLesson18_2\n185,Lesson,frmLesson18_2\n186,Lesson,frmLesson18_2\n"),
          drill("184,go,went,\n" + lines(17, "185,v%,p%,"))},
         {at("tovalin1_basic_data", 19, "recordno"), at("tablework", 4, "useform")}},
        {"TheVideoOfStep21IsFollowedByACloze",
         "drill-rows",
         {steps("21,Lesson,frmLesson3\n22,Lesson,frmLesson3\n")},
         {at("tablework", 2, "useform")}},
        {"ABoxOutOfItsPlaceIsTold",
         "drill-order",
         {steps(openers),
          {"unit01/tovalin1_basic_data.csv",
           "recordno,orderno,word1,word2\n1,1,cat,cats\n1,3,dog,dogs\n1,3,cow,cows\n"}},
         {at("tovalin1_basic_data", 3, "orderno")}},
        {"ABoxWithoutAPromptIsTold",
         "drill-prompt",
         {steps(openers), drill("1,cat,cats,\n1,,dogs,\n")},
         {at("tovalin1_basic_data", 3, "word1")}},
        {"DrillRowsOfAQuizAreReadByNobody",
         "drill-rows-unread",
         {steps("1,Quiz,frmQuiz\n15,Lesson,frmLesson2\n16,Quiz,frmQuiz\n"), drill("1,cat,cats,\n16,cup,,\n")},
         {at("tovalin1_basic_data", 2, "recordno")}},
        {"AnAnswerThatTheDrillOverwritesIsTold",
         "drill-field-unread",
         {steps("95,Lesson,frmLesson9\n1,Lesson,frmLesson\n"),
          drill("95,big,large,\n95,red,,\n1,cat,cats,NONE\n")},
         {at("tovalin1_basic_data", 2, "word2"), at("tovalin1_basic_data", 4, "word3")}},
        {"AWidePromptIsCutOff",
         "drill-width",
         {steps(openers), drill("1,a very wide one,cats,\n1,cat,an answer of many letters,\n")},
         {at("tovalin1_basic_data", 2, "word1"), at("tovalin1_basic_data", 3, "word2")}},
        {"TheComparisonDrillHas13Prompts",
         "drill-second-list",
         {steps("115,Lesson,frmLesson11\n"),
          {"unit01/tovalin1_basicdata_115.csv", "word\n" + lines(14, "w%")}},
         {at("tovalin1_basicdata_115", 15, "word")}},
        {"AClozeThatIsAllGivenEndsTheProgram",
         "drill-cloze-given",
         {steps("21,Lesson,frmLesson3\n"), drill("21,the sun,,NONE\n21,the moon,,NONE\n")},
         {at("tovalin1_basic_data", 2, "word3")}},
        {"AClozeMarkIsWrittenInCapitals",
         "drill-cloze-mark",
         {steps("21,Lesson,frmLesson3\n"), drill("21,the sun,,none\n21,the moon,,NONE\n21,lunch,,\n")},
         {at("tovalin1_basic_data", 2, "word3")}},
    });

const Cases answerCases("CheckDrillAnswers",
                        {
                            {"ABoxWithoutAnAnswerIsTold",
                             "drill-answer-missing",
                             {steps(openers), drill("1,cat,cats,\n1,dog,,\n")},
                             {at("tovalin1_basic_data", 3, "word2")}},
                            {"TheAnswerOfASetDrillIsItsFirstWord",
                             "drill-answer-missing",
                             {steps("95,Lesson,frmLesson9\n"), drill("95,big,,\n95,,red,\n")},
                             {at("tovalin1_basic_data", 3, "word1")}},
                            {"AnApostropheEndsTheProgram",
                             "drill-apostrophe",
                             {steps(openers), drill("1,o'clock,times,\n1,dog,dog's,\n")},
                             {at("tovalin1_basic_data", 3, "word2")}},
                            {"AKoreanAnswerCannotBeTyped",
                             "drill-answer-typable",
                             {steps(openers), drill("1,cat,고양이,\n1,dog,dogs ,\n1,책,books,\n")},
                             {at("tovalin1_basic_data", 2, "word2"), at("tovalin1_basic_data", 3, "word2")}},
                            {"AWordListedTwiceCanNeverBeRight",
                             "drill-list-twice",
                             {steps("95,Lesson,frmLesson9\n1,Lesson,frmLesson\n"),
                              drill("95,big,,\n95,Big,,\n1,fish,fish,\n1,sheep,fish,\n")},
                             {at("tovalin1_basic_data", 3, "word1")}},
                            {"AStativeVerbMayNotRepeatAnIngForm",
                             "drill-list-twice",
                             {steps("162,Lesson,frmLesson8\n"),
                              drill(lines(13, "162,go%,going%,") + "162,going3,,\n162,love,,\n")},
                             {at("tovalin1_basic_data", 15, "word1")}},
                            {"AWordOfASetIsAskedOnce",
                             "drill-set-twice",
                             {steps("15,Lesson,frmLesson2\n"), drill("15,milk,,\n15,milk,,\n16,milk,,\n")},
                             {at("tovalin1_basic_data", 3, "word1")}},
                            {"APromptStandsOnceInADrill",
                             "drill-prompt-twice",
                             {steps("1,Lesson,frmLesson\n162,Lesson,frmLesson8\n"),
                              drill("1,read,reads,\n1,Read,read,\n162,read,reading,\n162,go,going,\n")},
                             {at("tovalin1_basic_data", 3, "word1")}},
                            {"ACapitalInASetShowsRed",
                             "drill-set-capital",
                             {steps("15,Lesson,frmLesson2\n"), drill("15,milk,,\n16,Cup,,\n")},
                             {at("tovalin1_basic_data", 3, "word1")}},
                            {"TheComparisonDrillAsksWhatItShowed",
                             "drill-studied-other",
                             {steps("115,Lesson,frmLesson11\n"),
                              drill("115,bigger,bigger,\n115,biggest,the biggest,\n")},
                             {at("tovalin1_basic_data", 3, "word2")}},
                            {"APronounStandsUnderItsPrompt",
                             "drill-pronouns",
                             {steps("29,Lesson,frmLesson4\n"), drill("29,my,,\n29,mine,,\n29,mine,,\n")},
                             {at("tovalin1_basic_data", 3, "word1")}},
                        });

const Cases lineCases(
    "CheckRuleLines",
    {
        {"ANinthRuleLineHasNoLabel",
         "rule-line-room",
         {steps(openers), ruleLines(lines(9, "1,line %"))},
         {at("gram_tip2", 10, "recordno")}},
        {"ADrillWithoutRuleLinesEndsTheProgram",
         "rule-line-missing",
         {steps("1,Lesson,frmLesson\n74,Lesson,frmLesson7\n"), ruleLines("74,line\n")},
         {at("tablework", 2, "useform")}},
        {"TheSecondPageOfStep15WantsRuleLines",
         "rule-line-missing",
         {steps("15,Lesson,frmLesson2\n"), ruleLines("15,line\n")},
         {at("tablework", 2, "useform")}},
        {"AGuardedDrillGoesOnWithoutRuleLines",
         "rule-line-wanted",
         {steps("95,Lesson,frmLesson9\n1,Lesson,frmLesson\n")},
         {at("tablework", 2, "useform")}},
        {"RuleLinesAreCountedFromOne",
         "rule-line-order",
         {steps(openers), {"unit01/gram_tip2.csv", "recordno,orderno,tip2\n1,1,a\n1,1,b\n"}},
         {at("gram_tip2", 3, "orderno")}},
        {"ARuleLineIsOneLineOf44Columns",
         "rule-line-width",
         {ruleLines("1,자음으로 끝나는 말 뒤에서는 모음으로 끝나는 말과 달리\n1,\"one\ntwo\"\n1,short\n")},
         {at("gram_tip2", 2, "tip2"), at("gram_tip2", 3, "tip2")}},
        {"RuleLinesOfAQuizAreShownNowhere",
         "rule-line-unread",
         {steps("1,Quiz,frmQuiz\n67,Lesson,frmLesson24\n"), ruleLines("1,line\n67,line\n")},
         {at("gram_tip2", 2, "recordno")}},
    });

std::string tipText(int korean, const char* example) {
    return "\"" + lines(korean, "말") + example + "\"\n";
}

const Cases tipCases(
    "CheckTips",
    {
        {"AnOpenerWithoutATipHasNoVideo",
         "tip-missing",
         {steps(
              "1,Lesson,frmLesson\n56,Lesson,frmLesson3\n67,Lesson,frmLesson24\n184,Lesson,frmLesson18_2\n"),
          tips("1,1,x\n")},
         {at("tablework", 3, "recordno"), at("tablework", 4, "recordno")}},
        {"ADrillShowsItsFirstTipAlone",
         "tip-several",
         {steps(openers), tips("1,1,x\n1,2,y\n")},
         {at("tovalin1_gram_tip", 3, "recordno")}},
        {"ATipHas80To200KoreanWords",
         "tip-length",
         {tips("1,1," + tipText(79, "I go.") + "1,2," + tipText(80, "I go.") + "1,3," +
               tipText(201, "I go."))},
         {at("tovalin1_gram_tip", 2, "tips"), at("tovalin1_gram_tip", 163, "tips")}},
        {"ATipShowsAnEnglishExample",
         "tip-example",
         {tips("1,1,\"설명\nI go.\"\n2,2,설명 I go.\n")},
         {at("tovalin1_gram_tip", 4, "tips")}},
        {"TheVideoMenuCountsOneFurtherFromTheSecondUnitOn",
         "video-number",
         {steps("1,Lesson,frmLesson\n15,Lesson,frmLesson2\n"), tips("1,1,x\n15,2,x\n"),
          steps("21,Lesson,frmLesson3\n", "unit02"), tips("21,2,x\n", "unit02")},
         {QStringLiteral("unit02/tovalin1_gram_tip.csv:2, field 'autono'")}},
        {"AVideosNumberIsOneOrMore",
         "video-value",
         {steps("1,Lesson,frmLesson\n15,Lesson,frmLesson2\n"), tips("1,0,x\n15,40000,x\n")},
         {at("tovalin1_gram_tip", 2, "autono"), at("tovalin1_gram_tip", 3, "autono")}},
        {"TwoOpenersWithOneVideoAreTold",
         "video-twice",
         {steps("1,Lesson,frmLesson\n15,Lesson,frmLesson2\n"), tips("1,1,x\n15,1,x\n")},
         {at("tovalin1_gram_tip", 3, "autono")}},
    });

TEST(CheckTips, AnInstalledOpenerWithoutItsVideoFileIsTold) {
    const tools::BuiltCourse built(
        readFiles({steps("1,Lesson,frmLesson\n15,Lesson,frmLesson2\n"), tips("1,1,x\n15,2,x\n")}));
    tools::check::Media media;
    media.videos = {1};
    const tools::check::Course course(built.tables(), media);
    EXPECT_EQ(places(tools::check::checkCourse(course, "video-missing")),
              QStringList{at("tovalin1_gram_tip", 3, "autono")});
}

}  // namespace
