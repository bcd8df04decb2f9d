// Demands on the words of a step.

#include "tests/tools/rules/cases.h"

using namespace check_cases;

namespace {

const Tested wordSoundRule("word-sound");

const Cases wordCases("CheckWords",
                      {
                          {"WordsOfTwoAnd17LettersAreLeftOut",
                           "word-length",
                           {words("1,cat,고양이\n1,ox,황소\n1,counterproductive,역효과의\n")},
                           {at("newword", 3, "word"), at("newword", 4, "word")}},
                          {"AnApostropheOrDigitCannotBeSpelled",
                           "word-letters",
                           {words("1,can't,못 하다\n1,4th,넷째\n1,café,카페\n1,ice-cream,얼음과자\n")},
                           {at("newword", 2, "word"), at("newword", 3, "word"), at("newword", 4, "word")}},
                          {"ABlankOrHyphenMustBeGuessed",
                           "word-marks",
                           {words("1,ice cream,얼음과자\n1,cat,고양이\n1,part-time,시간제\n")},
                           {at("newword", 2, "word"), at("newword", 4, "word")}},
                          {"ACapitalIsNeverHidden",
                           "word-capital",
                           {words("1,Seoul,서울\n1,city,도시\n")},
                           {at("newword", 2, "word")}},
                          {"AWordWithoutAVowelCannotBeLeft",
                           "word-mask",
                           {words("1,hmm,흠\n1,sky,하늘\n1,eau,물\n")},
                           {at("newword", 2, "word"), at("newword", 4, "word")}},
                          {"FiveVowelsInARowAreJudgedTooEarly",
                           "word-method",
                           {words("1,queueing,줄서기\n1,beautiful,아름다운\n")},
                           {at("newword", 2, "word")}},
                          {"SevenConsonantsInARowAreJudgedTooEarly",
                           "word-method",
                           {words("1,abbbbbba,가\n1,abbbbba,나\n")},
                           {at("newword", 2, "word")}},
                          {"ALateFirstVowelGetsNoFocus",
                           "word-focus",
                           {words("1,bcdfghjka,가\n1,bcdfghja,나\n")},
                           {at("newword", 2, "word")}},
                          {"AWordStandsOnceInAStep",
                           "word-twice",
                           {words("1,cat,고양이\n1,Cat,집고양이\n2,cat,고양이\n")},
                           {at("newword", 3, "word")}},
                          {"AWordKeepsItsMeaning",
                           "meaning-other",
                           {words("1,watch,손목시계\n2,watch,지켜보다\n3,watch,손목시계\n")},
                           {at("newword", 3, "korean")}},
                          {"AWordWithoutAMeaningCannotBeAsked",
                           "meaning-missing",
                           {words("1,cat, \n1,dog,개\n")},
                           {at("newword", 2, "korean")}},
                          {"TwoMeaningsAlikeMakeARightMatchWrong",
                           "meaning-twice",
                           {words("1,big,큰\n1,large,큰\n2,huge,큰\n")},
                           {at("newword", 3, "korean")}},
                          {"ALongMeaningIsCutOff",
                           "meaning-width",
                           {words("1,cat,사람과 함께 집에서 살며 쥐를 잘 잡는 작은 짐승\n")},
                           {at("newword", 2, "korean")}},
                          {"NineWordsDoNotFillAGame",
                           "word-number",
                           {steps("1,Lesson,frmLesson\n2,Lesson,frmLesson\n"),
                            words(lines(9, "1,w%,뜻%") + lines(10, "2,w%,뜻%"))},
                           {at("newword", 2, "recordno")}},
                          {"AFinalAsksNoWords",
                           "words-of-final",
                           {steps("1,Final,frmQuiz\n"), words("1,cat,고양이\n")},
                           {at("newword", 2, "recordno")}},
                      });

TEST(CheckWords, AnInstalledWordWithoutASoundIsTold) {
    const tools::BuiltCourse built(readFiles({words("1,cat,고양이\n1,dog,개\n")}));
    tools::check::Media media;
    media.sounds = {QStringLiteral("cat")};
    const tools::check::Course course(built.tables(), media);
    EXPECT_EQ(places(tools::check::checkCourse(course, "word-sound")), QStringList{at("newword", 3, "word")});
}

}  // namespace
