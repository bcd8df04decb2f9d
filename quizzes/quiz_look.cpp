#include "quizzes/quiz_look.h"

namespace quizzes {

using platform::Label;
using platform::TextRole;

namespace {

constexpr QRgb choiceFill = 0xffe8f4f3;
constexpr QRgb choiceBorder = 0xff7fb0ae;
constexpr int padding = 8;

}  // namespace

TextRole roleOf(Look look) {
    switch (look) {
        case Look::Sentence: return TextRole::Sentence;
        case Look::Line: return TextRole::Row;
        case Look::Choice:
        case Look::Slot: break;
    }
    return TextRole::Choice;
}

void dress(Label& label, Look look) {
    label.setWordWrap(true);
    label.setAlignment(Qt::AlignCenter);
    if (look == Look::Choice)
        label.setPanel(choiceFill, choiceBorder);
    if (look == Look::Slot)
        label.setPanel(platform::colour::white, platform::colour::line);
    if (look == Look::Choice || look == Look::Slot)
        label.setContentsMargins(padding, 0, padding, 0);
}

void makeClickable(Label& label) {
    label.setFocusPolicy(Qt::TabFocus);
    label.setCursor(Qt::PointingHandCursor);
}

}  // namespace quizzes
