#include "platform/reports/answers.h"

#include "platform/reports/flow.h"

#include <gtest/gtest.h>

using platform::answersForBlanks;
using platform::answersForLines;
using platform::cutAtBlanks;
using Texts = std::vector<QString>;

TEST(ReportAnswers, AQuestionIsCutAtItsBlanks) {
    const auto stretches = cutAtBlanks(QStringLiteral("(1) ____ is (2) __."));
    ASSERT_EQ(stretches.size(), 5U);
    EXPECT_EQ(stretches[0].text, QStringLiteral("(1) "));
    EXPECT_TRUE(stretches[1].blank);
    EXPECT_TRUE(stretches[3].blank);
    EXPECT_EQ(stretches[4].text, QStringLiteral("."));
    EXPECT_FALSE(cutAtBlanks(QStringLiteral("a_b"))[0].blank);
    EXPECT_TRUE(cutAtBlanks({}).empty());
}

TEST(ReportAnswers, TwoAnswersFillTwoBlanks) {
    EXPECT_EQ(answersForBlanks({QStringLiteral("taller"), QStringLiteral("than")}, 2),
              (Texts{QStringLiteral("taller"), QStringLiteral("than")}));
}

TEST(ReportAnswers, OneAnswerIsSpreadWordByWord) {
    EXPECT_EQ(answersForBlanks({QStringLiteral("am not"), {}}, 2),
              (Texts{QStringLiteral("am"), QStringLiteral("not")}));
    EXPECT_EQ(answersForBlanks({QStringLiteral("does not eat up")}, 3),
              (Texts{QStringLiteral("does"), QStringLiteral("not"), QStringLiteral("eat up")}));
    EXPECT_EQ(answersForBlanks({QStringLiteral("good")}, 2), (Texts{QStringLiteral("good"), QString()}));
}

TEST(ReportAnswers, ASecondAnswerForOneBlankIsAnotherWayToSayIt) {
    EXPECT_EQ(answersForBlanks({QStringLiteral("been"), QStringLiteral("gone")}, 1),
              Texts{QStringLiteral("been / gone")});
    EXPECT_EQ(answersForBlanks({QStringLiteral("will go"), QStringLiteral(" ")}, 1),
              Texts{QStringLiteral("will go")});
    EXPECT_EQ(answersForLines({QStringLiteral("gone"), QStringLiteral("been")}, 1),
              Texts{QStringLiteral("gone / been")});
}

TEST(ReportAnswers, TwoLinesTakeAnAnswerEach) {
    EXPECT_EQ(answersForLines({QStringLiteral("my"), QStringLiteral("me")}, 2),
              (Texts{QStringLiteral("my"), QStringLiteral("me")}));
    EXPECT_EQ(answersForLines({QStringLiteral("my"), {}}, 2), (Texts{QStringLiteral("my"), QString()}));
}

TEST(ReportAnswers, NoAnswerLeavesAllBlanksEmpty) {
    EXPECT_EQ(answersForBlanks({{}, {}}, 3), Texts(3));
    EXPECT_EQ(answersForBlanks({QStringLiteral("a")}, 0).size(), 0U);
}

TEST(ReportFlow, LinesNeverPassTheWidthAndKeepEveryWord) {
    const platform::TextSizes sizes{12, 12, false};
    const QString text =
        QStringLiteral("우리말과 English words, one after another, until the line is full ____ and more");
    int blank = 0;
    const auto lines = platform::flowLines(platform::flowWords(text, sizes, platform::millimetres(20), blank),
                                           platform::millimetres(45));
    EXPECT_EQ(blank, 1);
    EXPECT_GT(lines.size(), 2U);
    QStringList read;
    for (const auto& line : lines) {
        EXPECT_LE(line.width, platform::millimetres(45) + 1);
        for (const auto& bit : line.bits)
            read.append(bit.blank >= 0 ? QStringLiteral("____") : bit.text);
    }
    EXPECT_EQ(read.join(u' '), text);
}

TEST(ReportFlow, AWordWiderThanTheLineIsCutBetweenLetters) {
    const auto lines = platform::flowLines(platform::flowWords(QString(80, u'w'), {12, 12, false}),
                                           platform::millimetres(30));
    EXPECT_GT(lines.size(), 3U);
    for (const auto& line : lines)
        EXPECT_LE(line.width, platform::millimetres(30) + 1);
}

TEST(ReportFlow, WideSpacesStayWide) {
    const auto lines =
        platform::flowLines(platform::flowWords(QStringLiteral("( a    b   c )"), {12, 12, false}), 1e6);
    ASSERT_EQ(lines.size(), 1U);
    ASSERT_EQ(lines[0].bits.size(), 1U);
    EXPECT_EQ(lines[0].bits[0].text, QStringLiteral("( a    b   c )"));
}

TEST(ReportFlow, AHintInBracketsStaysTogether) {
    const auto words = platform::keepBrackets(
        platform::flowWords(QStringLiteral("a (two words) b (open"), {12, 12, false}), 1e6);
    ASSERT_EQ(words.size(), 4U);
    EXPECT_EQ(words[1].bits.size(), 2U);
}

TEST(ReportFlow, HangulAndLatinTakeTheirOwnSizes) {
    const platform::TextSizes sizes{13, 12, false};
    EXPECT_EQ(sizes.styleOf(QStringLiteral("(안경)")).points, 12);
    EXPECT_EQ(sizes.styleOf(QStringLiteral("glasses")).points, 13);
}
