#include "vocabulary/letter_row.h"

#include <QKeyEvent>

namespace vocabulary {

using platform::TextBox;

namespace {

constexpr QSize boxSize(38, 46);
constexpr int boxPitch = 41;
constexpr QRgb given = 0xffe4ebe9;
constexpr QRgb givenInHand = 0xffcfe3e1;

QRgb ground(const TextBox& box, bool inHand) {
    if (box.locked())
        return inHand ? givenInHand : given;
    return inHand ? platform::colour::paleCyan : platform::colour::white;
}

bool isLetterKey(const QKeyEvent& event) {
    return !event.text().isEmpty() && event.text().at(0).isPrint();
}

void applyLook(TextBox& box, bool inHand) {
    if (const QRgb colour = ground(box, inHand); box.backColor() != colour)
        box.setBackColor(colour);
}

}  // namespace

LetterRow::LetterRow(platform::Form& form, const QString& name, QPoint topLeft, const QString& spokenName)
    : QObject(&form), boxes_(name) {
    for (int i = 0; i < boxCount; ++i) {
        const QRect place(topLeft + QPoint(i * boxPitch, 0), boxSize);
        TextBox& box = form.addTextBox(boxes_, place, platform::TextRole::Letter);
        box.setMaxLength(1);
        box.setTextMargins(0, 0, 0, 0);
        box.setAccessibleName(QStringLiteral("%1, letter %2").arg(spokenName).arg(i + 1));
        box.hide();
        box.installEventFilter(this);
        box.onChange = [this, i] {
            if (onLetter && !boxes_(i).text().isEmpty())
                onLetter(i);
        };
        box.onKeyDown = [this, i](int keyCode) {
            if (onKeyDown)
                onKeyDown(i, keyCode);
        };
        // A click takes the letter in hand, as the caret's own moves do.
        box.onClick = [&box] { box.selectAll(); };
    }
}

BoxRow LetterRow::read() const {
    BoxRow row;
    for (int i = 0; i < boxCount; ++i)
        row[static_cast<std::size_t>(i)] = {boxes_(i).text(), isShown(i), boxes_(i).locked()};
    return row;
}

bool LetterRow::isShown(int index) const {
    return !boxes_(index).isHidden();
}

void LetterRow::empty(int count) {
    for (int i = 0; i < count; ++i)
        boxes_(i).clear();
}

void LetterRow::setLocked(bool locked, int count) {
    for (int i = 0; i < count; ++i)
        boxes_(i).setLocked(locked);
}

void LetterRow::showFirst(int count) {
    for (int i = 0; i < boxCount; ++i)
        boxes_(i).setVisible(i < count);
}

void LetterRow::focus(int index) {
    if (isShown(index))
        boxes_(index).selectAndFocus();
}

void LetterRow::stepBack(int index, int keyCode) {
    if ((keyCode == platform::key::backspace || keyCode == platform::key::left) && index > 0)
        focus(index - 1);
}

bool LetterRow::eventFilter(QObject* watched, QEvent* event) {
    auto& box = static_cast<TextBox&>(*watched);
    switch (event->type()) {
        case QEvent::FocusIn: applyLook(box, true); break;
        case QEvent::FocusOut: applyLook(box, false); break;
        case QEvent::ReadOnlyChange: applyLook(box, box.hasFocus()); break;
        // A full box would refuse the key where an arrow has taken the selection off its letter.
        case QEvent::KeyPress:
            if (isLetterKey(*static_cast<QKeyEvent*>(event)) && !box.hasSelectedText())
                box.selectAll();
            break;
        default: break;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace vocabulary
