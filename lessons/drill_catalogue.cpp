#include "lessons/drill_catalogue.h"

#include <algorithm>
#include <array>

namespace lessons {

namespace {

constexpr std::array drills{
    Drill{
        .name = "frmLesson",
        .headline = "◈ 셀 수 있는 명사의 복수형 만들기",
        .layout = &layouts::plurals,
        .boxes = 28,
        .ruleLines = 8,
        .prompts = 28,
    },
};

}  // namespace

std::span<const Drill> drillCatalogue() {
    return drills;
}

const Drill* findDrill(std::string_view name) {
    const auto row =
        std::find_if(drills.begin(), drills.end(), [&](const Drill& drill) { return drill.name == name; });
    return row == drills.end() ? nullptr : &*row;
}

}  // namespace lessons
