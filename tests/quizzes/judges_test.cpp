#include "quizzes/judges.h"
#include "catalogue/judging.h"
#include "catalogue/quizzes.h"

#include "tests/support/desk.h"

#include <gtest/gtest.h>

using namespace quizzes;
using catalogue::buttonSet;
using catalogue::Compare;
using catalogue::sentenceFields;

namespace {

constexpr auto right = Outcome::Right;
constexpr auto wrong = Outcome::Wrong;
constexpr auto notJudged = Outcome::NotJudged;

const QString pickedWrong = QStringLiteral("틀린 답을 선택하였습니다.\n\n");
const QString typedWrong = QStringLiteral("틀린 답을 입력하였습니다.\n\n");

struct CompareCase {
    Compare compare;
    const char* answer;
    const char* field;
    bool matches;
};

}  // namespace

TEST(Judges, EachComparisonLooksAtWhatItsNameSays) {
    const CompareCase cases[] = {
        {Compare::Exact, "Dog", "Dog", true},
        {Compare::Exact, "dog", "Dog", false},
        {Compare::Exact, "Dog ", "Dog", false},
        {Compare::Exact, "", "", true},
        {Compare::LowerCase, "DOG", "dog", true},
        {Compare::LowerCase, "dog ", "dog", false},
        {Compare::TrimmedLowerCase, "  DoG ", "dog", true},
        {Compare::TrimmedLowerCase, "do g", "dog", false},
        {Compare::TrimmedLowerCase, "", " ", true},
        {Compare::LetterByLetter, "I am.", "I am.", true},
        {Compare::LetterByLetter, "I am. And more", "I am.", true},
        {Compare::LetterByLetter, "i am.", "I am.", false},
        {Compare::LetterByLetter, " I am.", "I am.", false},
        {Compare::LetterByLetter, "I am", "I am.", false},
        {Compare::LetterByLetter, "I am.", "I am. ", false},
        {Compare::LetterByLetter, "I am. ", "I am. ", true},
        {Compare::LetterByLetter, "anything", "", true},
    };
    for (const CompareCase& one : cases)
        EXPECT_EQ(matches(one.compare, QLatin1String(one.answer), QLatin1String(one.field)), one.matches)
            << one.answer << " against " << one.field;
}

TEST(Judges, AChoiceIsComparedWithTheFirstAnswerAloneUnlessTheStepTakesEither) {
    EXPECT_EQ(judgeChoice(Compare::LowerCase, "DOG", "dog", "cat", false).outcome, right);
    EXPECT_EQ(judgeChoice(Compare::LowerCase, "cat", "dog", "cat", false).outcome, wrong);
    EXPECT_EQ(judgeChoice(Compare::LowerCase, "Cat", "dog", "cat", true).outcome, right);
    const Verdict verdict = judgeChoice(Compare::LowerCase, "cow", "dog", "cat", true);
    EXPECT_EQ(verdict.message, pickedWrong + QStringLiteral("올바른 문장은 dog"));
    EXPECT_TRUE(verdict.sounds);
    EXPECT_TRUE(verdict.marksRow);
}

TEST(Judges, TwoPicksMustBothBeExact) {
    EXPECT_EQ(judgePicks(Compare::Exact, "I", "my", "I", "my").outcome, right);
    EXPECT_EQ(judgePicks(Compare::Exact, "i", "my", "I", "my").outcome, wrong);
    EXPECT_EQ(judgePicks(Compare::Exact, "I", "me", "I", "my").outcome, wrong);
    EXPECT_EQ(judgePicks(Compare::Exact, "me", "me", "I", "my").message,
              QStringLiteral("올바른 답은 I / my"));
}

TEST(Judges, ACorrectionIsHeldAgainstTheFieldThatItsStepNames) {
    struct Case {
        int first;
        int last;
        const char* field;
    };
    for (const Case& one :
         {Case{18, 19, "second"}, Case{34, 35, "first"}, Case{63, 64, "first"}, Case{72, 72, "first"},
          Case{85, 86, "first"}, Case{201, 204, "first"}, Case{213, 214, "first"}, Case{238, 239, "first"}})
        for (int step = one.first; step <= one.last; ++step) {
            const QString other = QLatin1String(one.field) == QLatin1String("first") ? "second" : "first";
            EXPECT_EQ(judgeCorrection(step, QStringLiteral(" %1 ").arg(QString(one.field).toUpper()), "first",
                                      "second", false)
                          .outcome,
                      right)
                << step;
            const Verdict verdict = judgeCorrection(step, other, "first", "second", false);
            EXPECT_EQ(verdict.outcome, wrong) << step;
            EXPECT_EQ(verdict.message, typedWrong + QStringLiteral("올바른 단어는 ") + one.field) << step;
        }
}

TEST(Judges, ACorrectionOnAnUnnamedStepIsNotJudgedAtAll) {
    for (const int step : {17, 20, 33, 36, 62, 65, 71, 73, 84, 87, 200, 205, 212, 215, 237, 240, 249, 252})
        EXPECT_EQ(judgeCorrection(step, "first", "first", "second", false).outcome, notJudged) << step;
}

TEST(Judges, Steps250And251TakeEitherAnswerAndNameBoth) {
    for (const int step : {250, 251}) {
        EXPECT_EQ(judgeCorrection(step, " Seen", "seen", "saw", false).outcome, right);
        EXPECT_EQ(judgeCorrection(step, "SAW ", "seen", "saw", false).outcome, right);
        EXPECT_EQ(judgeCorrection(step, "sees", "seen", "saw", false).message,
                  typedWrong + QStringLiteral("올바른 단어는 seen or saw"));
        EXPECT_EQ(judgeCorrection(step, "sees", "seen", "", false).message,
                  typedWrong + QStringLiteral("올바른 단어는 seen"));
    }
}

TEST(Judges, FromEnterTwoKindsOfWrongCorrectionsLeaveTheRowUnmarked) {
    EXPECT_FALSE(judgeCorrection(72, "x", "a", "b", true).marksRow);
    EXPECT_TRUE(judgeCorrection(72, "x", "a", "b", false).marksRow);
    EXPECT_FALSE(judgeCorrection(250, "x", "a", "", true).marksRow);
    EXPECT_TRUE(judgeCorrection(250, "x", "a", "", false).marksRow);
    EXPECT_TRUE(judgeCorrection(251, "x", "a", "b", true).marksRow);
    EXPECT_TRUE(judgeCorrection(34, "x", "a", "b", true).marksRow);
    EXPECT_TRUE(judgeCorrection(18, "x", "a", "b", true).marksRow);
}

TEST(Judges, ButtonsSayWhatTheirStepAsks) {
    struct Case {
        int step;
        QStringList captions;
    };
    const QStringList articles{"<a>", "<an>", "<the>", "Not Need"};
    const QStringList numbers{"1", "2", "3", "4", "5"};
    const QStringList verbs{"is", "are", "do", "does"};
    const QStringList conjunctions{"and", "or", "but"};
    for (const Case& one :
         {Case{22, articles}, Case{109, articles}, Case{110, numbers}, Case{111, numbers},
          Case{112, articles}, Case{136, articles}, Case{137, verbs}, Case{140, verbs}, Case{141, articles},
          Case{152, articles}, Case{153, conjunctions}, Case{160, conjunctions}, Case{161, articles}}) {
        QStringList captions;
        for (const char* caption : buttonSet(one.step).captions)
            captions.append(QString::fromUtf8(caption));
        EXPECT_EQ(captions, one.captions) << one.step;
    }
    EXPECT_STREQ(buttonSet(110).memo, "번호를 클릭하십시오.");
    EXPECT_STREQ(buttonSet(137).memo, "빈 칸에 들어갈 알맞는 단어를 클릭하십시오.");
    EXPECT_STREQ(buttonSet(153).memo, "빈 칸에 들어갈 알맞는 단어를 클릭하십시오.");
    EXPECT_STREQ(buttonSet(22).memo, "문장의 빈 칸에 들어갈 관사를 선택하십시오.");
}

TEST(Judges, AnArticleInCapitalsIsRightOnItsButton) {
    EXPECT_EQ(judgeButton(22, 0, "<a>", "A").outcome, right);
    EXPECT_EQ(judgeButton(22, 1, "<an>", "An").outcome, right);
    EXPECT_EQ(judgeButton(22, 2, "<the>", "THE").outcome, right);
    EXPECT_EQ(judgeButton(22, 3, "Not Need", "Blank").outcome, right);
    EXPECT_EQ(judgeButton(22, 4, "Not Need", "Blank").outcome, notJudged);
}

TEST(Judges, AWrongArticleIsToldByTheAnswerOrByItsAbsence) {
    const Verdict absent = judgeButton(22, 0, "<a>", "Blank");
    EXPECT_EQ(absent.message, pickedWrong + QStringLiteral("관사가 필요없는 문장입니다."));
    EXPECT_TRUE(absent.sounds);
    EXPECT_EQ(judgeButton(22, 0, "<a>", "the").message, pickedWrong + QStringLiteral("정답은 the"));
    EXPECT_EQ(judgeButton(22, 3, "Not Need", "the").message, pickedWrong + QStringLiteral("정답은 the"));
}

TEST(Judges, BlankInLowerCaseIsNoBlank) {
    EXPECT_EQ(judgeButton(22, 3, "Not Need", "blank").message, pickedWrong + QStringLiteral("정답은 blank"));
    EXPECT_EQ(judgeButton(22, 1, "<an>", "blank").message, pickedWrong + QStringLiteral("정답은 blank"));
}

TEST(Judges, CaptionsAreComparedExactlyAndSilentlyFromStep153UpWithoutEnd) {
    for (const int step : {110, 111, 137, 140, 153, 160, 161, 257}) {
        EXPECT_EQ(judgeButton(step, 0, "is", "is").outcome, right) << step;
        const Verdict verdict = judgeButton(step, 0, "is", "Is");
        EXPECT_EQ(verdict.outcome, wrong) << step;
        EXPECT_EQ(verdict.message, pickedWrong + QStringLiteral("정답은 Is")) << step;
        EXPECT_FALSE(verdict.sounds) << step;
    }
    EXPECT_EQ(judgeButton(161, 0, "<a>", "a").outcome, wrong);
    EXPECT_EQ(judgeButton(161, 0, "<a>", "<a>").outcome, right);
}

TEST(Judges, ASentenceIsRightToTheLengthOfItsAnswer) {
    EXPECT_EQ(judgeSentence(Compare::LetterByLetter, "I go. Really", "I go.").outcome, right);
    EXPECT_EQ(judgeSentence(Compare::LetterByLetter, "i go.", "I go.").message,
              typedWrong + QStringLiteral("올바른 문장은 I go."));
}

TEST(Judges, SentenceLabelsTakeTheirFieldsByTheStep) {
    for (const int step : {121, 122, 123, 134, 136}) {
        EXPECT_STREQ(sentenceFields(step).word, "q1");
        EXPECT_STREQ(sentenceFields(step).korean, "q2");
    }
    for (const int step : {128, 131, 147, 149}) {
        EXPECT_EQ(sentenceFields(step).word, nullptr);
        EXPECT_STREQ(sentenceFields(step).korean, "q1");
    }
    for (const int step : {120, 124, 127, 132, 133, 137, 146, 150}) {
        EXPECT_STREQ(sentenceFields(step).word, "q1");
        EXPECT_EQ(sentenceFields(step).korean, nullptr);
    }
}

TEST(Judges, ASingleWordStaysWholeAndSeveralAreFilteredToTheirLetters) {
    EXPECT_EQ(answerWords("Don't"), QStringList{"Don't"});
    EXPECT_EQ(answerWords("Don't go!"), (QStringList{"dont", "go"}));
    EXPECT_EQ(answerWords("a  b"), (QStringList{"a", "", "b"}));
    EXPECT_EQ(answerWords(""), QStringList{""});
}

TEST(Judges, WordBoxesAreTrimmedAndLowerCased) {
    const auto judge = [](const QStringList& boxes, const QString& a1) {
        return judgeWords(Compare::TrimmedLowerCase, boxes, a1).outcome;
    };
    EXPECT_EQ(judge({" More ", "TALL"}, "more tall"), right);
    EXPECT_EQ(judge({"more", "tal"}, "more tall"), wrong);
    EXPECT_EQ(judge({"don't"}, "don't"), right);
    EXPECT_EQ(judge({"don't", "go"}, "don't go"), wrong);
    EXPECT_EQ(judge({"dont", "go"}, "don't go"), right);
    EXPECT_EQ(judge({"more", "tall"}, "more"), wrong);
    EXPECT_EQ(judge({}, "more tall"), right);
}

TEST(Judges, TheFirstWordOfASentenceKeepsItsFormAndTheOthersLoseTheirs) {
    EXPECT_EQ(cutSentence("No, Tom's dog, is 10!"), (QStringList{"No,", "tom's", "dog", "is", "1"}));
    EXPECT_EQ(cutSentence("Word"), QStringList());
    EXPECT_EQ(cutSentence(""), QStringList());
    EXPECT_EQ(cutSentence("A  b"), (QStringList{"A", "", "b"}));
    EXPECT_EQ(cutSentence("A b  c"), (QStringList{"A", "b", "c"}));
    EXPECT_EQ(cutSentence("A b "), (QStringList{"A", "b"}));
    EXPECT_EQ(cutSentence("A b - c"), (QStringList{"A", "b", "", "c"}));
    EXPECT_EQ(cutSentence("A "), QStringList{"A"});
    EXPECT_EQ(cutSentence(" A b"), (QStringList{"", "a", "b"}));
}
