#include "lessons/drill_layout.h"

#include <array>

namespace lessons::layouts {

namespace {

constexpr QRect headlineOnTop(36, 94, 800, 26);
constexpr QRect instructionBelow(36, 122, 808, 42);

constexpr std::array pluralGrid{GridBlock{
    .count = 28, .lines = 7, .origin = {36, 414}, .pitch = {204, 40}, .box = {116, 30}, .promptWidth = 76}};

}  // namespace

constexpr DrillLayout plurals{.headline = headlineOnTop,
                              .instruction = instructionBelow,
                              .story = {36, 174, 452, 222},
                              .rules = {.origin = {508, 176}, .pitch = {340, 27}, .lines = 8},
                              .grid = pluralGrid,
                              .texts = {}};

}  // namespace lessons::layouts
