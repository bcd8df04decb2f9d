#include "lessons/drill_layout.h"

namespace lessons {

namespace {

constexpr int gapToPrompt = 8;

QPoint cell(QPoint origin, QSize pitch, Fill fill, int lines, int n) {
    const int along = n % lines;
    const int across = n / lines;
    const int column = fill == Fill::Down ? across : along;
    const int row = fill == Fill::Down ? along : across;
    return origin + QPoint(column * pitch.width(), row * pitch.height());
}

}  // namespace

QRect boxPlace(const GridBlock& block, int n) {
    return {cell(block.origin, block.pitch, block.fill, block.lines, n) + QPoint(block.promptWidth, 0),
            block.box};
}

QRect promptPlace(const GridBlock& block, int n) {
    return {cell(block.origin, block.pitch, block.fill, block.lines, n),
            QSize(block.promptWidth - gapToPrompt, block.box.height())};
}

QRect rulePlace(const RulePlaces& rules, int n) {
    return {cell(rules.origin, rules.pitch, Fill::Down, rules.lines, n), rules.pitch - QSize(8, 0)};
}

}  // namespace lessons
