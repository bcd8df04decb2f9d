// What is taught and what is asked.

#include "tests/tools/rules/cases.h"

using namespace check_cases;

namespace {

const char* const quizTable = "tovalin1_quiz_data";

File asked(const std::string& rows, const std::string& unit = "unit01") {
    return {unit + "/tovalin1_quiz_data.csv", "recordno,q1,a1,point\n" + rows};
}

File taught(const std::string& rows, const std::string& unit = "unit01") {
    return {unit + "/tovalin1_gram_tip.csv", "recordno,tips,point\n" + rows};
}

const Cases pointCases(
    "CheckPoints",
    {
        {"AKeyHasSmallLettersAndHyphens",
         "point-form",
         {asked("2,x,a,plural-es\n2,y,a,Plural_es\n2,z,a,plural-\n2,w,a,복수형\n"),
          taught("1,복수,plural-es x2 -s\n")},
         {at(quizTable, 3, "point"), at(quizTable, 4, "point"), at(quizTable, 5, "point"),
          at("tovalin1_gram_tip", 2, "point")}},
        {"AQuestionTrainsOnePoint",
         "point-form",
         {asked("2,x,a,plural-es plural-s\n")},
         {at(quizTable, 2, "point")}},
        {"OnceAQuestionNamesItsPointAllDo",
         "point-missing",
         {asked("2,x,a,plural-s\n2,y,a,\n"), {"unit02/tovalin1_quiz_data.csv", "recordno,q1,a1\n22,z,a\n"}},
         {at(quizTable, 3, "point"), QStringLiteral("unit02/tovalin1_quiz_data.csv:2, field 'point'")}},
        {"ACourseWithoutPointsNeedsNone",
         "point-missing",
         {{"unit01/tovalin1_quiz_data.csv", "recordno,q1,a1\n2,x,a\n"}, taught("1,복수,plural-s\n")},
         {}},
        {"WhatATipOfThisOrAnEarlierUnitTeachesMayBeAsked",
         "point-taught",
         {taught("1,복수,plural-s plural-es\n"), asked("2,x,a,plural-s\n2,y,a,plural-ves\n"),
          asked("22,x,a,plural-es\n", "unit02")},
         {at(quizTable, 3, "point")}},
        {"WhatALaterUnitTeachesMayNotBeAskedYet",
         "point-taught",
         {asked("2,x,a,article-an\n"), taught("21,관사,article-an\n", "unit02"),
          asked("22,x,a,article-an\n", "unit02")},
         {at(quizTable, 2, "point")}},
        {"RuleLinesAndDrillRowsTeachToo",
         "point-taught",
         {asked("2,x,a,plural-s\n2,y,a,plural-men\n"),
          {"unit01/gram_tip2.csv", "recordno,tip2,point\n1,+s,plural-s\n"},
          {"unit01/tovalin1_basic_data.csv", "recordno,word1,word2,point\n1,man,men,plural-men\n"}},
         {}},
        {"WhatIsTaughtIsAsked",
         "point-unused",
         {taught("1,복수,plural-s plural-es\n"), asked("2,x,a,plural-s\n"),
          taught("21,관사,plural-es article-an\n", "unit02")},
         {QStringLiteral("unit02/tovalin1_gram_tip.csv:2, field 'point'"),
          at("tovalin1_gram_tip", 2, "point")}},
    });

}  // namespace
