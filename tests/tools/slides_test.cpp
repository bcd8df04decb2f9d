#include "tools/slides.h"

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

double timed(const QString& tips, double speech) {
    auto shots = shotsOf(layOut(tips, 300));
    for (Shot& shot : shots)
        shot.speech = shot.spoken.isEmpty() ? 0.0 : speech;
    timeShots(shots);
    return std::accumulate(shots.begin(), shots.end(), 0.0,
                           [](double sum, const Shot& s) { return sum + s.seconds; });
}

TEST(Slides, AVideoTakesFortyToAHundredAndTwentySeconds) {
    const QString block =
        QStringLiteral("이것은 설명하는 문장입니다. 천천히 읽어 보세요.\nThis is an example.\n\n");
    for (const int blocks : {0, 1, 5, 15, 25}) {
        const double seconds = timed(block.repeated(blocks), 1.5);
        EXPECT_GE(seconds, shortestVideo) << blocks;
        EXPECT_LE(seconds, longestVideo) << blocks;
    }
}

TEST(Slides, ALitLineStandsAtLeastAsLongAsItIsSpoken) {
    auto shots = shotsOf(layOut(QStringLiteral("This is an example.\n\n").repeated(40), 300));
    for (Shot& shot : shots)
        shot.speech = shot.spoken.isEmpty() ? 0.0 : 5.0;
    timeShots(shots);
    for (const Shot& shot : shots)
        EXPECT_GE(shot.seconds, shot.speech);
}

}  // namespace
