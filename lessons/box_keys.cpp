#include "lessons/box_keys.h"

#include <QGuiApplication>

namespace lessons {

namespace {

namespace key = platform::key;

bool atEdge(const platform::TextBox& here, qsizetype edge) {
    return here.cursorPosition() == edge || here.selectedText() == here.text();
}

/// These move inside a text first, and on from its edge.
bool leavesText(const platform::TextBox& here, int code) {
    // Held, it selects.
    if (QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier))
        return false;
    switch (code) {
        case key::down:
        case key::pageDown: return true;
        case key::home: return atEdge(here, 0);
        case key::right: return atEdge(here, here.text().size());
        default: return false;
    }
}

}  // namespace

std::optional<int> boxByKey(const platform::TextBox& here, int box, int count, int code) {
    const int last = count - 1;
    const bool isLast = box >= last;
    switch (code) {
        // From anywhere in the text. The last box does not answer.
        case key::left:
        case key::up:
        case key::pageUp: return !isLast && box > 0 ? std::optional(box - 1) : std::nullopt;
        case key::right:
        case key::down:
        case key::pageDown: return !isLast && leavesText(here, code) ? std::optional(box + 1) : std::nullopt;
        // The way back out of the last box. End has no such way on: it would lead there.
        case key::home: return count > 0 && leavesText(here, code) ? std::optional(0) : std::nullopt;
        default: return std::nullopt;
    }
}

}  // namespace lessons
