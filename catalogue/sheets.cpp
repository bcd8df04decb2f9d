#include "catalogue/sheets.h"

#include <algorithm>

namespace catalogue {

namespace {

struct BuilderRange {
    int first;
    int last;
    Builder builder;
};

// Checked from the top: the finals lie inside ranges of other builders.
constexpr std::array builders{
    BuilderRange{94, 94, Builder::Final},
    BuilderRange{126, 126, Builder::Final},
    BuilderRange{145, 145, Builder::Final},
    BuilderRange{169, 169, Builder::Final},
    BuilderRange{205, 205, Builder::Final},
    BuilderRange{215, 215, Builder::Final},
    BuilderRange{252, 252, Builder::Final},
    BuilderRange{1, 1, Builder::TwoUpDrill},
    BuilderRange{74, 74, Builder::TwoUpDrill},
    BuilderRange{2, 7, Builder::None},
    BuilderRange{8, 13, Builder::TwoUpQuiz},
    BuilderRange{14, 14, Builder::Numbering},
    BuilderRange{15, 15, Builder::SentenceMasks},
    BuilderRange{21, 21, Builder::SentenceMasks},
    BuilderRange{45, 45, Builder::SentenceMasks},
    BuilderRange{16, 20, Builder::ThreeColumns},
    BuilderRange{22, 28, Builder::ThreeColumns},
    BuilderRange{165, 166, Builder::TwoColumns},
    BuilderRange{208, 208, Builder::TwoColumns},
    BuilderRange{256, 257, Builder::TwoColumns},
    BuilderRange{30, 44, Builder::OneColumn},
    BuilderRange{46, 55, Builder::OneColumn},
    BuilderRange{57, 73, Builder::OneColumn},
    BuilderRange{77, 93, Builder::OneColumn},
    BuilderRange{98, 100, Builder::OneColumn},
    BuilderRange{104, 106, Builder::OneColumn},
    BuilderRange{108, 120, Builder::OneColumn},
    BuilderRange{124, 125, Builder::OneColumn},
    BuilderRange{137, 143, Builder::OneColumn},
    BuilderRange{153, 161, Builder::OneColumn},
    BuilderRange{163, 164, Builder::OneColumn},
    BuilderRange{197, 207, Builder::OneColumn},
    BuilderRange{209, 222, Builder::OneColumn},
    BuilderRange{224, 229, Builder::OneColumn},
    BuilderRange{231, 240, Builder::OneColumn},
    BuilderRange{250, 251, Builder::OneColumn},
    BuilderRange{254, 255, Builder::OneColumn},
    BuilderRange{121, 123, Builder::SwappedColumns},
    BuilderRange{128, 132, Builder::SwappedColumns},
    BuilderRange{134, 136, Builder::SwappedColumns},
    BuilderRange{147, 151, Builder::SwappedColumns},
    BuilderRange{75, 76, Builder::TwoUpQuiz},
    BuilderRange{96, 97, Builder::TwoUpQuiz},
    BuilderRange{102, 103, Builder::TwoUpQuiz},
    BuilderRange{170, 182, Builder::WordBank},
    BuilderRange{183, 186, Builder::TwoUpDrill},
    BuilderRange{187, 196, Builder::TwoUpQuiz},
    BuilderRange{242, 248, Builder::Brackets},
};

constexpr std::array refused{29,  56,  67,  95,  101, 107, 115, 127, 133, 146,
                             152, 162, 170, 206, 216, 220, 223, 230, 241, 253};

constexpr std::array withSecondLine{121, 134, 165, 208};

constexpr std::array<std::string_view, 2> lines{"tempword", ""};
constexpr std::array<std::string_view, 2> finals{"tempword", "tablework_final"};
constexpr std::array<std::string_view, 2> questions{"quiz_data_new3", ""};

// Both spellings of the teacher's suffix are names of files.
constexpr std::array templates{
    SheetTemplate{1, 1, "\\gram1.rpt", "\\gram1_T.rpt"},
    SheetTemplate{74, 76, "\\gram1.rpt", "\\gram1_T.rpt"},
    SheetTemplate{96, 97, "\\gram1.rpt", "\\gram1_T.rpt"},
    SheetTemplate{102, 103, "\\gram1.rpt", "\\gram1_T.rpt"},
    SheetTemplate{94, 94, "\\gram7.rpt", "\\gram7_T.rpt", finals},
    SheetTemplate{205, 205, "\\gram7.rpt", "\\gram7_T.rpt", finals},
    SheetTemplate{252, 252, "\\gram7.rpt", "\\gram7_T.rpt", finals},
    SheetTemplate{126, 126, "\\gram8.rpt", "\\gram8_t.rpt", finals},
    SheetTemplate{145, 145, "\\gram8.rpt", "\\gram8_t.rpt", finals},
    SheetTemplate{169, 169, "\\gram8.rpt", "\\gram8_t.rpt", finals},
    SheetTemplate{215, 215, "\\gram8.rpt", "\\gram8_t.rpt", finals},
    SheetTemplate{2, 7, "\\gram2.rpt", "\\gram2_T.rpt", questions},
    SheetTemplate{8, 13, "\\gram1.rpt", "\\gram1_T.rpt", questions},
    SheetTemplate{14, 14, "\\gram2.rpt", "\\gram2_t.rpt", questions},
    SheetTemplate{15, 15, "\\gram3.rpt", "\\gram3_T.rpt", lines},
    SheetTemplate{21, 21, "\\gram3.rpt", "\\gram3_T.rpt", lines},
    SheetTemplate{45, 45, "\\gram3.rpt", "\\gram3_T.rpt", lines},
    SheetTemplate{16, 20, "\\gram4.rpt", "\\gram4_T.rpt", lines},
    SheetTemplate{22, 28, "\\gram4.rpt", "\\gram4_t.rpt", lines},
    SheetTemplate{30, 44, "\\gram4.rpt", "\\gram4_t.rpt", lines},
    SheetTemplate{46, 55, "\\gram4.rpt", "\\gram4_t.rpt", lines},
    SheetTemplate{57, 73, "\\gram4.rpt", "\\gram4_t.rpt", lines},
    SheetTemplate{77, 93, "\\gram4.rpt", "\\gram4_t.rpt", lines},
    SheetTemplate{98, 100, "\\gram4.rpt", "\\gram4_t.rpt", lines},
    SheetTemplate{104, 106, "\\gram4.rpt", "\\gram4_t.rpt", lines},
    SheetTemplate{108, 120, "\\gram4.rpt", "\\gram4_t.rpt", lines},
    SheetTemplate{125, 125, "\\gram4.rpt", "\\gram4_t.rpt", lines},
    SheetTemplate{121, 123, "\\gram5.rpt", "\\gram5_t.rpt", lines},
    SheetTemplate{128, 132, "\\gram5.rpt", "\\gram5_t.rpt", lines},
    SheetTemplate{134, 136, "\\gram5.rpt", "\\gram5_t.rpt", lines},
    SheetTemplate{147, 151, "\\gram5.rpt", "\\gram5_t.rpt", lines},
    SheetTemplate{165, 166, "\\gram5.rpt", "\\gram5_t.rpt", lines},
    SheetTemplate{137, 143, "\\gram4.rpt", "\\gram4_t.rpt", lines},
    SheetTemplate{153, 161, "\\gram4.rpt", "\\gram4_t.rpt", lines},
    SheetTemplate{163, 164, "\\gram4.rpt", "\\gram4_t.rpt", lines},
    SheetTemplate{170, 182, "\\gram6.rpt", "\\gram6_t.rpt", lines},
    SheetTemplate{183, 196, "\\gram1.rpt", "\\gram1_t.rpt"},
    SheetTemplate{197, 207, "\\gram4.rpt", "\\gram4_t.rpt", lines},
    SheetTemplate{209, 222, "\\gram4.rpt", "\\gram4_t.rpt", lines},
    SheetTemplate{224, 229, "\\gram4.rpt", "\\gram4_t.rpt", lines},
    SheetTemplate{231, 240, "\\gram4.rpt", "\\gram4_t.rpt", lines},
    SheetTemplate{250, 251, "\\gram4.rpt", "\\gram4_t.rpt", lines},
    SheetTemplate{254, 257, "\\gram4.rpt", "\\gram4_t.rpt", lines},
    // The teacher gets the pupils' sheet once more here.
    SheetTemplate{208, 208, "\\gram5.rpt", "\\gram5.rpt", lines},
    SheetTemplate{242, 248, "\\gram5.rpt", "\\gram5_t.rpt", lines},
};

template <typename Rows>
auto rowOf(const Rows& rows, int recordNo) {
    return std::find_if(rows.begin(), rows.end(),
                        [&](const auto& row) { return recordNo >= row.first && recordNo <= row.last; });
}

}  // namespace

Builder builderOf(int recordNo) {
    const auto row = rowOf(builders, recordNo);
    return row == builders.end() ? Builder::None : row->builder;
}

std::span<const int> refusedSteps() {
    return refused;
}

bool isRefused(int recordNo) {
    return std::find(refused.begin(), refused.end(), recordNo) != refused.end();
}

std::span<const int> secondLineStarts() {
    return withSecondLine;
}

bool hasSecondLine(int firstStep) {
    return std::find(withSecondLine.begin(), withSecondLine.end(), firstStep) != withSecondLine.end();
}

const SheetTemplate* templateOf(int recordNo) {
    const auto row = rowOf(templates, recordNo);
    return row == templates.end() ? nullptr : &*row;
}

std::span<const SheetTemplate> sheetTemplates() {
    return templates;
}

}  // namespace catalogue
