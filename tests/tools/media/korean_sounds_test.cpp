// Korean as it sounds, and spoken lines as a video takes them.

#include "tools/media/korean_sounds.h"

#include "tests/support/desk.h"
#include "tools/media/voice_sound.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

using namespace tools;

struct Said {
    const char* written;
    const char* said;
};

TEST(KoreanSounds, NeighboursChangeEachOther) {
    const std::vector<Said> cases{
        {"합니다", "함니다"},     {"붙입니다", "붙임니다"}, {"없는", "엄는"}, {"앞니", "암니"},
        {"있는", "인는"},         {"끝나면", "끈나면"},     {"읽는", "잉는"}, {"한국말", "한궁말"},
        {"종류", "종뉴"},         {"독립", "동닙"},         {"관련", "괄련"}, {"설날", "설랄"},
        {"좋습니다", "조씀니다"}, {"않습니다", "안씀니다"}, {"않는", "안는"}, {"잃는", "일른"},
        {"못합니다", "모탐니다"}, {"책 마다", "책 마다"},   {"하나", "하나"}, {"먹어", "먹어"},
        {"a나 an", "a나 an"},     {"신라", "실라"},         {"", ""},
    };
    for (const Said& c : cases)
        EXPECT_EQ(asPronounced(QString::fromUtf8(c.written)), QString::fromUtf8(c.said)) << c.written;
}

TEST(KoreanSounds, MarksAreHaltsAndEndingsAreSpelled) {
    EXPECT_EQ(koreanSpeech(QStringLiteral("1. 끝에 -es를 붙입니다.")),
              QStringLiteral("끝에 E S를 붙임니다."));
    EXPECT_EQ(koreanSpeech(QStringLiteral("-ing를 붙인 말")), QStringLiteral("ing를 붙인 말"));
    EXPECT_EQ(koreanSpeech(QStringLiteral("\"자음 + y\"로 끝나면")),
              QStringLiteral("자음 더하기 y로 끈나면"));
    EXPECT_EQ(koreanSpeech(QStringLiteral("There is / It")), QStringLiteral("There is, It"));
    EXPECT_EQ(koreanSpeech(QStringLiteral("붙이고(단수), 둘은 don't를")),
              QStringLiteral("붙이고, 단수, 둘은 don't를"));
    EXPECT_EQ(koreanSpeech(QStringLiteral("'~하자'는 (제안)")), QStringLiteral("하자는, 제안"));
}

Wave tone(int rate, double seconds, double level, double silence) {
    Wave wave{rate, {}};
    const auto quiet = static_cast<std::size_t>(silence * rate);
    wave.samples.resize(quiet);
    for (int i = 0; i < static_cast<int>(seconds * rate); ++i)
        wave.samples.push_back(
            static_cast<std::int16_t>(level * std::sin(2.0 * std::numbers::pi * 440.0 * i / rate)));
    wave.samples.resize(wave.samples.size() + quiet);
    return wave;
}

TEST(VoiceSound, AllVoicesAreAlikeInRateLoudnessAndEnds) {
    for (const Wave& spoken : {tone(16000, 1.0, 9000.0, 0.4), tone(22050, 1.0, 900.0, 0.2)}) {
        const Wave voice = asVoice(spoken);
        EXPECT_EQ(voice.rate, voiceRate);
        EXPECT_NEAR(static_cast<double>(voice.samples.size()) / voiceRate, 1.1, 0.01);
        EXPECT_NEAR(*std::max_element(voice.samples.begin(), voice.samples.end()), 4400, 300);
    }
}

TEST(VoiceSound, SilenceStaysSilence) {
    EXPECT_TRUE(asVoice({}).samples.empty());
    EXPECT_TRUE(asVoice(tone(16000, 0.5, 100.0, 0.1)).samples.empty());
}

}  // namespace
