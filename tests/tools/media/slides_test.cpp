#include "tools/media/slides.h"

#include "tests/support/desk.h"

#include <gtest/gtest.h>

#include <numeric>

namespace {

using namespace tools;

struct Spoken {
    const char* line;
    const char* spoken;
};

TEST(Slides, EnglishIsSpokenAndKoreanIsNot) {
    const std::vector<Spoken> cases{
        {"I have a book.", "I have a book."},
        {"명사는 이름입니다.", ""},
        {"news는 단수입니다.", ""},
        {"I drink milk. (a milk라고 하지 않습니다.)", "I drink milk."},
        {"bread(빵), paper(종이)", "bread, paper"},
        {"cat - cats, apple - apples", "cat, cats, apple, apples"},
        {"You are hungry. → Are you hungry? (너는 배고프니?)", "You are hungry. Are you hungry?"},
        {"Is he a vet? - Yes, he is. / No, he isn't.", "Is he a vet? Yes, he is. No, he isn't."},
        {"This is my cup. = This cup is mine.", "This is my cup. This cup is mine."},
        {"1/5 one fifth, 3/4 three fourths", "one fifth, three fourths"},
        {"감각: see, hear", "see, hear"},
        {"맞음: I know it.", "I know it."},
        {"틀림: I am knowing it.", ""},
        {"with her (O)   with she (X)", "with her"},
        {"with she (X)", ""},
        {"3. that", ""},
        {"twenty-one", "twenty-one"},
        {"It's my dog.", "It's my dog."},
        {"I ____ happy.", "I happy."},
        {"100%", ""},
        {"", ""},
    };
    for (const Spoken& c : cases)
        EXPECT_EQ(spokenText(QString::fromUtf8(c.line)), QString::fromUtf8(c.spoken)) << c.line;
}

TEST(Slides, LinesKnowTheirKindAndEmptyLinesDivideBlocks) {
    const auto lines =
        slideLines(QStringLiteral("1. 짧은 제목\r\n설명입니다.\r\nI am here.\r\n\r\n\r\n다음 설명\n"));
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[0].kind, LineKind::Heading);
    EXPECT_EQ(lines[1].kind, LineKind::Korean);
    EXPECT_EQ(lines[2].kind, LineKind::Example);
    EXPECT_TRUE(lines[0].startsBlock);
    EXPECT_FALSE(lines[2].startsBlock);
    EXPECT_TRUE(lines[3].startsBlock);
}

std::vector<Slide> layOut(const QString& tips, int room) {
    return layOutSlides(slideLines(tips), room, 10, [](const SlideLine& line) {
        return 20 * (1 + static_cast<int>(line.text.size() - 1) / 20);
    });
}

TEST(Slides, ExamplesJoinTheExplanationBeforeThem) {
    const auto slides =
        layOut(QStringLiteral("설명 하나\n설명 둘\n설명 셋\n\nI am.\nYou are.\n\n다음 설명"), 110);
    ASSERT_EQ(slides.size(), 2U);
    EXPECT_EQ(slides[0].size(), 5U);
    EXPECT_EQ(slides[1][0].text, QStringLiteral("다음 설명"));
}

TEST(Slides, ABlockTooTallForOneSlideIsNotCutBetweenARuleAndItsExample) {
    const auto slides =
        layOut(QStringLiteral("규칙 하나\nOne is one.\n규칙 둘\nTwo is two.\n규칙 셋\nThree is three."), 70);
    ASSERT_EQ(slides.size(), 3U);
    for (const Slide& slide : slides) {
        ASSERT_EQ(slide.size(), 2U);
        EXPECT_EQ(slide[0].kind, LineKind::Korean);
        EXPECT_EQ(slide[1].kind, LineKind::Example);
    }
}

TEST(Slides, ALineTooTallForASlideIsCutAfterASentence) {
    const auto slides = layOut(QStringLiteral("가나다라 마바사아 자차카타. 나다라마 바사아자 차카타파."), 30);
    ASSERT_EQ(slides.size(), 2U);
    EXPECT_EQ(slides[0][0].text, QStringLiteral("가나다라 마바사아 자차카타."));
    EXPECT_EQ(slides[1][0].text, QStringLiteral("나다라마 바사아자 차카타파."));
}

TEST(Slides, AWordThatNoSlideHoldsDoesNotHang) {
    EXPECT_EQ(layOut(QString(500, u'가'), 30).size(), 1U);
    EXPECT_TRUE(layOut(QString(), 30).empty());
}

TEST(Slides, WhatIsWrongIsFoundInItsLine) {
    const std::vector<Spoken> cases{
        {"틀림: I am knowing it.", "I am knowing it."},
        {"맞음: I know it.", ""},
        {"with her (O)   with she (X)", "with she"},
        {"with she (X)", "with she"},
        {"I drink milk. (a milk라고 하지 않습니다.)", "a milk"},
        {"I need sugar. (sugars라고 하지 않습니다.)", "sugars"},
        {"Do you like it? (Are you like it?는 틀린 문장입니다.)", "Are you like it?"},
        {"Yes로 대답할 때에는 there's처럼 줄여 쓰지 않습니다.", "there's"},
        {"news는 단수입니다.", ""},
        {"He is a vet.", ""},
    };
    for (const Spoken& c : cases) {
        const QString line = QString::fromUtf8(c.line);
        const Mistake mistake = mistakeIn(line);
        EXPECT_EQ(line.mid(mistake.start, mistake.length), QString::fromUtf8(c.spoken)) << c.line;
    }
}

TEST(Slides, KoreanIsSpokenByAVoiceOfItsOwnAndMistakesAreNot) {
    const auto lines =
        slideLines(QStringLiteral("1. 관사\n관사는 앞에 씁니다.\nI have a cat.\n틀림: I have cat.\n100%"));
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_EQ(lines[0].spoken, QStringLiteral("관사"));
    EXPECT_EQ(lines[1].spoken, QStringLiteral("관사는 앞에 씀니다."));
    EXPECT_EQ(lines[1].voice, Voice::Korean);
    EXPECT_EQ(lines[2].voice, Voice::English);
    EXPECT_FALSE(lines[3].spoken.contains(QStringLiteral("cat")));
    EXPECT_TRUE(lines[4].spoken.isEmpty());
}

TEST(Slides, TheTitleShowsTheFirstRuleWithItsExample) {
    const TitleRule numbered = titleRule(QStringLiteral(
        "명사는 이름입니다.\nI am Mina.\n\n1. 끝에 s를 붙입니다. 쉽습니다.\ncat - cats\ndog - dogs"));
    EXPECT_EQ(numbered.rule.text, QStringLiteral("끝에 s를 붙입니다."));
    EXPECT_EQ(numbered.example.text, QStringLiteral("cat - cats"));
    EXPECT_EQ(titleRule(QStringLiteral("명사는 이름입니다.\nI am Mina.")).rule.text,
              QStringLiteral("명사는 이름입니다."));
    EXPECT_EQ(titleRule(QStringLiteral("1. 복수형\n끝에 s를 붙입니다.\ncat - cats")).rule.text,
              QStringLiteral("끝에 s를 붙입니다."));
    EXPECT_EQ(titleRule(QStringLiteral("1. 하나이면 is\nThere is a cat.")).rule.text,
              QStringLiteral("하나이면 is"));
    EXPECT_TRUE(titleRule(QString()).rule.text.isEmpty());
    EXPECT_TRUE(titleRule(QStringLiteral("I am Mina.")).rule.text.isEmpty());
}

const QString block =
    QStringLiteral("이것은 설명하는 문장입니다. 천천히 읽어 보십시오.\nThis is an example.\n\n");

/// The shots of a tip, each line taking so many seconds to say.
std::vector<Shot> timed(const QString& tips, double speech) {
    auto shots = shotsOf({1, QStringLiteral("명사"), tips}, layOut(tips, 300));
    for (Shot& shot : shots)
        shot.speech = shot.spoken.isEmpty() ? 0.0 : speech;
    timeShots(shots);
    return shots;
}

double sum(const std::vector<Shot>& shots) {
    return std::accumulate(shots.begin(), shots.end(), 0.0,
                           [](double seconds, const Shot& shot) { return seconds + shot.seconds; });
}

TEST(Slides, PausesGiveWayWhereAVideoWouldGrowLong) {
    EXPECT_LT(sum(timed(block.repeated(3), 2.0)), 30.0);
    const double eased = sum(timed(block.repeated(35), 2.0));
    EXPECT_LE(eased, longestVideo);
    EXPECT_GT(eased, 35 * 2 * 2.0);
}

TEST(Slides, ALineStandsAsLongAsItIsSpokenAndIsFollowedByAShortPause) {
    for (const int blocks : {1, 5, 40})
        for (const Shot& shot : timed(block.repeated(blocks), 4.0)) {
            EXPECT_GE(shot.seconds, shot.speech);
            EXPECT_LT(shot.seconds - shot.speech, 1.5);
        }
}

TEST(Slides, WithoutAVoiceEachLineStandsAsLongAsItTakesToRead) {
    const auto shots = timed(block, 0.0);
    EXPECT_GT(sum(shots), 5.0);
    EXPECT_LE(sum(timed(block.repeated(60), 0.0)), longestVideo);
}

}  // namespace
