#include "quizzes/quiz_look.h"

namespace quizzes {

using platform::Label;
using platform::TextRole;

namespace {

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

void applyLook(Label& label, Look look) {
    label.setWordWrap(true);
    label.setAlignment(Qt::AlignCenter);
    if (look == Look::Choice)
        label.setPanel(platform::colour::choice, platform::colour::choiceLine);
    if (look == Look::Slot)
        label.setPanel(platform::colour::white, platform::colour::boxLine);
    if (look == Look::Choice || look == Look::Slot)
        label.setContentsMargins(padding, 0, padding, 0);
}

void applyLook(platform::CommandButton& button) {
    QPalette palette = button.palette();
    palette.setColor(QPalette::Button, QColor::fromRgb(platform::colour::choice));
    palette.setColor(QPalette::ButtonText, Qt::black);
    button.setPalette(palette);
}

void makeClickable(Label& label) {
    label.setFocusPolicy(Qt::TabFocus);
    label.setCursor(Qt::PointingHandCursor);
}

}  // namespace quizzes
