#pragma once

#include "platform/desktop/look.h"

#include <QPoint>
#include <QRect>
#include <QSize>

#include <span>
#include <string_view>

namespace lessons {

/// Which way a block of boxes is filled: down its columns or across its rows.
enum class Fill { Down, Across };

/// A block of boxes in a grid, each with its prompt at its left where the block has room for prompts.
struct GridBlock {
    int count = 0;
    Fill fill = Fill::Down;
    int lines = 1;  // boxes in a column when filled down, in a row when filled across
    QPoint origin = {};
    QSize pitch = {};
    QSize box = {};
    int promptWidth = 0;
};

struct RulePlaces {
    QPoint origin = {};
    QSize pitch = {};
    int lines = 1;  // lines in a column
};

/// A text that belongs to the form's design.
struct FixedText {
    const char* name = "";
    QRect place = {};
    platform::TextRole role = platform::TextRole::Body;
    const char* text = "";
    bool centred = false;
};

/// How far down the buttons of the side panel stand.
struct Tops {
    int quiz = 344;
    int begin = 344;
    int next = 456;
    int pre = 560;
};

/// Where everything of a drill stands on the card, in design pixels.
struct DrillLayout {
    QRect headline = {};
    QRect instruction = {};
    QRect story = {};
    RulePlaces rules = {};
    std::span<const GridBlock> grid = {};
    std::span<const FixedText> texts = {};
    Tops tops = {};
};

/// The layout of a drill by the name of its screen.
const DrillLayout& layoutOf(std::string_view drill);

/// The place of the n-th box of a block, and that of its prompt.
QRect boxPlace(const GridBlock& block, int n);
QRect promptPlace(const GridBlock& block, int n);
QRect rulePlace(const RulePlaces& rules, int n);

/// Boxes and prompts of all blocks together.
constexpr int boxTotal(const DrillLayout& layout) {
    int total = 0;
    for (const GridBlock& block : layout.grid)
        total += block.count;
    return total;
}
constexpr int promptTotal(const DrillLayout& layout) {
    int total = 0;
    for (const GridBlock& block : layout.grid)
        total += block.promptWidth > 0 ? block.count : 0;
    return total;
}

}  // namespace lessons
