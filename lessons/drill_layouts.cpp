#include "lessons/drill_layout.h"

#include <algorithm>
#include <array>

// The card spans 12 to 856 by 84 to 706; texts keep clear of its notebook margin.
namespace lessons {

namespace {

constexpr Tops lowerTops(int quiz) {
    return {.quiz = quiz, .begin = quiz, .next = 496, .pre = 600};
}

using platform::TextRole;

constexpr QRect topHeadline(36, 94, 808, 26);
constexpr QRect topInstruction(36, 122, 808, 42);
constexpr RulePlaces noRules;

// Explanation and rules side by side, the grid below them.
constexpr QRect storyAbove(int height) {
    return {36, 174, 452, height};
}
constexpr RulePlaces rulesAbove(int lines, int pitch) {
    return {.origin = {508, 174}, .pitch = {340, pitch}, .lines = lines};
}

constexpr std::array pluralGrid{GridBlock{
    .count = 28, .lines = 7, .origin = {36, 420}, .pitch = {204, 40}, .box = {80, 20}, .promptWidth = 92}};

constexpr std::array uncountableGrid{
    GridBlock{.count = 28, .lines = 7, .origin = {36, 414}, .pitch = {208, 40}, .box = {184, 30}}};

constexpr std::array measureGrid{
    GridBlock{.count = 24, .lines = 12, .origin = {424, 178}, .pitch = {218, 39}, .box = {200, 31}}};

constexpr std::array articleGrid{
    GridBlock{.count = 15, .lines = 5, .origin = {36, 318}, .pitch = {273, 37}, .box = {262, 30}},
    GridBlock{.count = 12, .lines = 4, .origin = {36, 548}, .pitch = {273, 37}, .box = {262, 30}}};
constexpr std::array articleTexts{FixedText{.name = "lblTopic4",
                                            .place = {32, 514, 808, 26},
                                            .role = TextRole::Heading,
                                            .text = " 정관사 (the)를 반드시 붙이지 않는 경우"}};

// Three cases for each person, one row a person; "it" has no possessive pronoun.
constexpr QSize pronounPitch(270, 27);
constexpr QSize pronounBox(150, 25);
constexpr int pronounPrompt = 112;
constexpr int pronounTop = 368;
constexpr GridBlock pronounRows(int firstRow, int count, int perRow) {
    return {.count = count,
            .fill = Fill::Across,
            .lines = perRow,
            .origin = {36, pronounTop + firstRow * pronounPitch.height()},
            .pitch = pronounPitch,
            .box = pronounBox,
            .promptWidth = pronounPrompt};
}
constexpr std::array pronounGrid{pronounRows(0, 12, 3), pronounRows(4, 2, 2), pronounRows(5, 21, 3)};
constexpr FixedText pronounHead(const char* name, int column, const char* text) {
    return {.name = name,
            .place = {36 + pronounPrompt + column * pronounPitch.width(), 344, pronounBox.width(), 22},
            .role = TextRole::Caption,
            .text = text,
            .centred = true};
}
constexpr std::array pronounTexts{pronounHead("Label2", 0, "소유격"), pronounHead("Label3", 1, "목적격"),
                                  pronounHead("Label4", 2, "소유대명사")};

constexpr std::array thirdPersonGrid{GridBlock{
    .count = 21, .lines = 7, .origin = {36, 414}, .pitch = {272, 40}, .box = {172, 30}, .promptWidth = 92}};

constexpr QSize verbGroupBox(112, 28);
constexpr int verbGroupLeft(int group) {
    return 376 + group * 118;
}
constexpr GridBlock verbGroup(int group, int count) {
    return {.count = count,
            .lines = 4,
            .origin = {verbGroupLeft(group), 456},
            .pitch = {118, 38},
            .box = verbGroupBox};
}
constexpr std::array ingGrid{GridBlock{.count = 13,
                                       .lines = 7,
                                       .origin = {32, 418},
                                       .pitch = {168, 38},
                                       .box = {112, 28},
                                       .promptWidth = 48},
                             verbGroup(0, 4), verbGroup(1, 4), verbGroup(2, 3), verbGroup(3, 4)};
constexpr FixedText verbGroupHead(const char* name, int group, const char* text) {
    return {.name = name,
            .place = {verbGroupLeft(group), 428, verbGroupBox.width(), 24},
            .role = TextRole::Caption,
            .text = text,
            .centred = true};
}
constexpr std::array ingTexts{
    FixedText{.name = "lblTopic4",
              .place = {376, 396, 460, 26},
              .role = TextRole::Heading,
              .text = "현재진행형으로 만들 수 없는 동사들"},
    verbGroupHead("Label3", 0, "감정 동사"), verbGroupHead("Label4", 1, "감각 동사"),
    verbGroupHead("Label5", 2, "소유 동사"), verbGroupHead("Label6", 3, "인식 동사")};

constexpr std::array adjectiveGrid{
    GridBlock{.count = 45, .lines = 9, .origin = {36, 394}, .pitch = {164, 34}, .box = {150, 27}}};

constexpr std::array adverbGrid{
    GridBlock{.count = 16, .lines = 4, .origin = {36, 478}, .pitch = {208, 52}, .box = {184, 34}}};

constexpr int comparisonTop = 206;
constexpr QSize comparisonPitch(0, 37);
constexpr std::array comparisonGrid{GridBlock{.count = 13,
                                              .lines = 13,
                                              .origin = {36, comparisonTop},
                                              .pitch = comparisonPitch,
                                              .box = {156, 30},
                                              .promptWidth = 92},
                                    GridBlock{.count = 13,
                                              .lines = 13,
                                              .origin = {296, comparisonTop},
                                              .pitch = comparisonPitch,
                                              .box = {156, 30}}};
constexpr std::array comparisonTexts{FixedText{.name = "Label2",
                                               .place = {128, 178, 156, 24},
                                               .role = TextRole::Caption,
                                               .text = "비교급",
                                               .centred = true},
                                     FixedText{.name = "Label3",
                                               .place = {296, 178, 156, 24},
                                               .role = TextRole::Caption,
                                               .text = "최상급",
                                               .centred = true}};

constexpr std::array prepositionGrid{GridBlock{
    .count = 30, .lines = 10, .origin = {30, 380}, .pitch = {273, 32}, .box = {168, 27}, .promptWidth = 98}};
constexpr std::array prepositionTexts{
    FixedText{.name = "Label2",
              .place = {36, 143, 808, 20},
              .role = TextRole::Body,
              .text = "빈칸을 클릭한 후 Answer List에서 답을 선택할 수 있습니다.  모든 답을 선택한 후 "
                      "<Answer>를 클릭합니다 "}};

constexpr std::array regularPastGrid{GridBlock{
    .count = 12, .lines = 4, .origin = {36, 478}, .pitch = {272, 52}, .box = {172, 34}, .promptWidth = 92}};

constexpr std::array irregularPastGrid{GridBlock{
    .count = 16, .lines = 8, .origin = {36, 196}, .pitch = {404, 60}, .box = {210, 36}, .promptWidth = 140}};

constexpr std::array numberGrid{GridBlock{
    .count = 54, .lines = 18, .origin = {330, 175}, .pitch = {173, 29}, .box = {122, 25}, .promptWidth = 46}};

constexpr DrillLayout plurals{.headline = topHeadline,
                              .instruction = topInstruction,
                              .story = storyAbove(222),
                              .rules = rulesAbove(8, 27),
                              .grid = pluralGrid};
constexpr DrillLayout uncountables{.headline = topHeadline,
                                   .instruction = topInstruction,
                                   .story = storyAbove(222),
                                   .rules = rulesAbove(7, 31),
                                   .grid = uncountableGrid,
                                   .tops = lowerTops(368)};
constexpr DrillLayout measures{.headline = topHeadline,
                               .instruction = topInstruction,
                               .rules = {.origin = {36, 174}, .pitch = {368, 39}, .lines = 13},
                               .grid = measureGrid,
                               .tops = lowerTops(368)};
constexpr DrillLayout reading{.story = {60, 104, 690, 586}, .rules = noRules};
constexpr DrillLayout articles{.headline = {36, 284, 808, 26},
                               .instruction = {36, 98, 808, 42},
                               .rules = {.origin = {36, 156}, .pitch = {404, 28}, .lines = 4},
                               .grid = articleGrid,
                               .texts = articleTexts};
constexpr DrillLayout pronouns{.headline = topHeadline,
                               .instruction = topInstruction,
                               .story = {36, 166, 452, 174},
                               .rules = {.origin = {508, 166}, .pitch = {340, 19}, .lines = 9},
                               .grid = pronounGrid,
                               .texts = pronounTexts,
                               .tops = lowerTops(368)};
constexpr DrillLayout thirdPerson{.headline = topHeadline,
                                  .instruction = topInstruction,
                                  .story = storyAbove(222),
                                  .rules = rulesAbove(6, 36),
                                  .grid = thirdPersonGrid,
                                  .tops = lowerTops(384)};
constexpr DrillLayout ingForms{.headline = topHeadline,
                               .instruction = topInstruction,
                               .story = storyAbove(206),
                               .rules = rulesAbove(5, 38),
                               .grid = ingGrid,
                               .texts = ingTexts};
constexpr DrillLayout adjectives{.headline = topHeadline,
                                 .instruction = topInstruction,
                                 .story = storyAbove(204),
                                 .rules = rulesAbove(4, 44),
                                 .grid = adjectiveGrid,
                                 .tops = lowerTops(376)};
constexpr DrillLayout adverbs{.headline = topHeadline,
                              .instruction = topInstruction,
                              .story = storyAbove(280),
                              .rules = rulesAbove(4, 48),
                              .grid = adverbGrid};
constexpr DrillLayout comparison{.headline = topHeadline,
                                 .instruction = topInstruction,
                                 .story = {476, 178, 368, 300},
                                 .rules = {.origin = {480, 492}, .pitch = {372, 33}, .lines = 6},
                                 .grid = comparisonGrid,
                                 .texts = comparisonTexts,
                                 .tops = {.begin = 336}};
constexpr DrillLayout prepositions{.headline = topHeadline,
                                   .instruction = {36, 122, 808, 20},
                                   .story = storyAbove(192),
                                   .rules = rulesAbove(3, 32),
                                   .grid = prepositionGrid,
                                   .texts = prepositionTexts};
constexpr DrillLayout regularPast{.headline = topHeadline,
                                  .instruction = topInstruction,
                                  .story = storyAbove(280),
                                  .rules = rulesAbove(4, 48),
                                  .grid = regularPastGrid};
constexpr DrillLayout irregularPast{
    .headline = topHeadline, .instruction = topInstruction, .rules = noRules, .grid = irregularPastGrid};
constexpr DrillLayout numbers{.headline = topHeadline,
                              .instruction = topInstruction,
                              .story = {36, 175, 280, 518},
                              .rules = noRules,
                              .grid = numberGrid};

struct Named {
    std::string_view drill;
    const DrillLayout* layout;
};

constexpr std::array all{
    Named{"frmLesson", &plurals},       Named{"frmLesson2", &uncountables},
    Named{"frmLesson2_2", &measures},   Named{"frmLesson3", &reading},
    Named{"frmLesson3_2", &articles},   Named{"frmLesson4", &pronouns},
    Named{"frmLesson7", &thirdPerson},  Named{"frmLesson8", &ingForms},
    Named{"frmLesson9", &adjectives},   Named{"frmLesson10", &adverbs},
    Named{"frmLesson11", &comparison},  Named{"frmLesson17", &prepositions},
    Named{"frmLesson18", &regularPast}, Named{"frmLesson18_2", &irregularPast},
    Named{"frmLesson24", &numbers},
};

}  // namespace

const DrillLayout& layoutOf(std::string_view drill) {
    return *std::find_if(all.begin(), all.end(), [&](const Named& row) {
                return row.drill == drill;
            })->layout;
}

}  // namespace lessons
