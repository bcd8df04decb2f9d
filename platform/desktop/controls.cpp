#include "platform/desktop/controls.h"

#include "platform/desktop/hangul.h"
#include "platform/desktop/input_gate.h"
#include "platform/desktop/waiting.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOption>
#include <QtMath>

#include <algorithm>
#include <array>

namespace platform {

namespace {

struct KeyPair {
    int qtKey;
    int code;
};

constexpr std::array keyPairs{
    KeyPair{Qt::Key_Backspace, key::backspace},
    KeyPair{Qt::Key_Return, key::enter},
    KeyPair{Qt::Key_Enter, key::enter},
    KeyPair{Qt::Key_PageUp, key::pageUp},
    KeyPair{Qt::Key_PageDown, key::pageDown},
    KeyPair{Qt::Key_End, key::end},
    KeyPair{Qt::Key_Home, key::home},
    KeyPair{Qt::Key_Left, key::left},
    KeyPair{Qt::Key_Up, key::up},
    KeyPair{Qt::Key_Right, key::right},
    KeyPair{Qt::Key_Down, key::down},
};

/// Runs a handler of a control, unless its form has left the screen.
template <typename... Parameters, typename... Arguments>
void act(const QWidget& control, const std::function<void(Parameters...)>& handler, Arguments... arguments) {
    if (!hasLeft(control))
        run(handler, arguments...);
}

void setColour(QWidget& widget, QPalette::ColorRole role, QRgb colour) {
    QPalette palette = widget.palette();
    palette.setColor(role, QColor::fromRgb(colour));
    widget.setPalette(palette);
}

void paintFocusMark(QWidget& widget) {
    QPainter painter(&widget);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor::fromRgb(colour::accent), 2));
    painter.drawRoundedRect(QRectF(widget.rect()).adjusted(1.5, 1.5, -1.5, -1.5), 5, 5);
}

void paintPanel(QWidget& widget, QRgb fill, QRgb border) {
    QPainter painter(&widget);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor::fromRgb(fill));
    painter.setPen(QPen(QColor::fromRgb(border), 1));
    painter.drawRoundedRect(QRectF(widget.rect()).adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
}

/// The sign of a mark, drawn in a square of 10 by 10 around the origin: a tick, a cross or a padlock.
QPainterPath markPath(BoxMark mark) {
    QPainterPath path;
    if (mark == BoxMark::Right) {
        path.moveTo(-4, 0);
        path.lineTo(-1, 3.5);
        path.lineTo(4.5, -4);
    } else if (mark == BoxMark::Wrong) {
        path.moveTo(-3.5, -3.5);
        path.lineTo(3.5, 3.5);
        path.moveTo(3.5, -3.5);
        path.lineTo(-3.5, 3.5);
    } else if (mark == BoxMark::Given) {
        path.addRoundedRect(QRectF(-4, -0.5, 8, 5.5), 1, 1);
        path.moveTo(-2.5, -0.5);
        path.arcTo(QRectF(-2.5, -5, 5, 6), 180, -180);
        path.lineTo(2.5, -0.5);
    }
    return path;
}

void paintBoxMark(QWidget& box, BoxMark mark, bool underlined, QRgb ground = colour::white) {
    constexpr double signSpace = 24;
    const double scale = box.height() / signSpace;
    const bool wrong = mark == BoxMark::Wrong;
    const QRgb sign = ground == colour::red ? colour::white : wrong ? colour::red : colour::accent;
    QPainter painter(&box);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor::fromRgb(sign), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.translate(box.width() - 11 * scale, box.height() / 2.0);
    painter.scale(scale, scale);
    painter.drawPath(markPath(mark));
    painter.resetTransform();
    if (wrong && underlined)
        painter.drawLine(QPointF(4, box.height() - 2.5), QPointF(box.width() - 4, box.height() - 2.5));
}

QString markDescription(BoxMark mark) {
    switch (mark) {
        case BoxMark::None: return {};
        case BoxMark::Right: return QStringLiteral("Right");
        case BoxMark::Wrong: return QStringLiteral("Wrong, the right answer is shown");
        case BoxMark::Given: return QStringLiteral("Given");
    }
    return {};
}

}  // namespace

int keyCode(int qtKey) {
    for (const KeyPair& pair : keyPairs)
        if (pair.qtKey == qtKey)
            return pair.code;
    return 0;
}

Label::Label(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setMouseTracking(true);
    setIndent(0);
}

void Label::setCaption(const QString& caption) {
    if (text() != caption)
        noteChange(*this);
    setText(caption);
    if (focusPolicy() != Qt::NoFocus)
        setAccessibleName(caption);
}

void Label::setForeColor(QRgb colour) {
    if (foreColor() != colour)
        setColour(*this, QPalette::WindowText, colour);
}

QRgb Label::foreColor() const {
    return palette().color(QPalette::WindowText).rgb();
}

void Label::setBackColor(QRgb colour) {
    setAutoFillBackground(true);
    setColour(*this, QPalette::Window, colour);
}

void Label::setPanel(QRgb fill, QRgb border) {
    panelFill_ = fill;
    panelBorder_ = border;
    update();
}

void Label::setMark(BoxMark mark) {
    if (mark_ == mark)
        return;
    mark_ = mark;
    setAccessibleDescription(markDescription(mark));
    update();
}

void Label::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton;
    event->accept();
}

void Label::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    const bool clicked = pressed_ && event->button() == Qt::LeftButton && rect().contains(event->pos());
    pressed_ = false;
    if (clicked)
        act(*this, onClick);
}

void Label::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    act(*this, onMouseMove);
}

void Label::keyPressEvent(QKeyEvent* event) {
    const bool presses =
        event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (presses && onClick && !event->isAutoRepeat())
        act(*this, onClick);
    else
        QLabel::keyPressEvent(event);
}

void Label::focusInEvent(QFocusEvent* event) {
    QLabel::focusInEvent(event);
    update();
}

void Label::focusOutEvent(QFocusEvent* event) {
    QLabel::focusOutEvent(event);
    update();
}

void Label::paintEvent(QPaintEvent* event) {
    if (qAlpha(panelFill_) != 0)
        paintPanel(*this, panelFill_, panelBorder_);
    QLabel::paintEvent(event);
    if (mark_ != BoxMark::None)
        paintBoxMark(*this, mark_, !text().isEmpty());
    if (hasFocus())
        paintFocusMark(*this);
}

TextBox::TextBox(QWidget* parent) : QLineEdit(parent) {
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setContextMenuPolicy(Qt::NoContextMenu);
    connect(this, &QLineEdit::textChanged, this, [this] { act(*this, onChange); });
}

void TextBox::setForeColor(QRgb colour) {
    if (foreColor() != colour)
        setColour(*this, QPalette::Text, colour);
}

QRgb TextBox::foreColor() const {
    return palette().color(QPalette::Text).rgb();
}

void TextBox::setBackColor(QRgb colour) {
    setColour(*this, QPalette::Base, colour);
}

QRgb TextBox::backColor() const {
    return palette().color(QPalette::Base).rgb();
}

void TextBox::setLocked(bool locked) {
    setReadOnly(locked);
    // The line edit would ask for composed letters again.
    setAttribute(Qt::WA_InputMethodEnabled, false);
}

void TextBox::setMark(BoxMark mark) {
    if (mark_ == mark)
        return;
    mark_ = mark;
    setAccessibleDescription(markDescription(mark));
    update();
}

int TextBox::textRoom() const {
    // The line edit keeps 2 pixels to either side for the caret.
    constexpr int caretRoom = 2 * 2;
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect inside = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    return inside.marginsRemoved(textMargins()).width() - caretRoom;
}

void TextBox::selectAndFocus() {
    setFocus();
    selectAll();
}

void TextBox::keyPressEvent(QKeyEvent* event) {
    const int code = keyCode(event->key());
    // Enter that is held down answers once, not the next question too.
    if (code != 0 && !(code == key::enter && event->isAutoRepeat()))
        act(*this, onKeyDown, code);
    // Enter belongs to the form: it moves between boxes and never edits one.
    if (code == key::enter)
        return;
    const QString latin = latinFromHangul(event->text());
    if (latin != event->text()) {
        if (!isReadOnly())
            insert(latin);
        return;
    }
    QLineEdit::keyPressEvent(event);
    // Arrows at the edge of a box must not wander on to the form as focus moves.
    event->accept();
}

void TextBox::inputMethodEvent(QInputMethodEvent* event) {
    if (!isReadOnly() && !event->commitString().isEmpty())
        insert(latinFromHangul(event->commitString()));
    event->accept();
}

void TextBox::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        act(*this, onClick);
}

void TextBox::mouseMoveEvent(QMouseEvent* event) {
    QLineEdit::mouseMoveEvent(event);
    event->accept();
}

void TextBox::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    // Red on a red ground: the colours stay as set, and the text can be read all the same.
    if (foreColor() == backColor() && !text().isEmpty()) {
        QPainter painter(this);
        painter.setPen(QColor::fromRgb(colour::white));
        painter.drawText(rect().marginsRemoved(textMargins()), Qt::AlignCenter, text());
    }
    if (mark_ != BoxMark::None)
        paintBoxMark(*this, mark_, true, backColor());
    if (hasFocus())
        paintFocusMark(*this);
}

StoryBox::StoryBox(QWidget* parent) : QPlainTextEdit(parent) {
    setReadOnly(true);
    setFrameShape(QFrame::NoFrame);
    setContextMenuPolicy(Qt::NoContextMenu);
    setTabChangesFocus(true);
}

void StoryBox::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    // The box ends where a line ends, so that none is cut through.
    const int top = qRound(document()->documentMargin());
    const int line = qCeil(QFontMetricsF(font()).height());
    const int rest = std::max(0, height() - top) % std::max(1, line);
    if (viewportMargins().bottom() != rest)
        setViewportMargins(0, 0, 0, rest);
}

DropList::DropList(QWidget* parent) : QComboBox(parent) {
    setMaxVisibleItems(16);
    connect(this, &QComboBox::activated, this, [this] { act(*this, onClick); });
}

void DropList::keyPressEvent(QKeyEvent* event) {
    // A letter typed here was meant for a box; it must not pick the entry that begins with it.
    if (isTyped(*event) && event->key() != Qt::Key_Space)
        event->ignore();
    else
        QComboBox::keyPressEvent(event);
}

CommandButton::CommandButton(const QString& caption, QWidget* parent) : QPushButton(caption, parent) {
    setAccessibleName(caption);
    setMouseTracking(true);
    connect(this, &QPushButton::clicked, this, [this] { act(*this, onClick); });
}

PictureButton::PictureButton(QWidget* parent) : QAbstractButton(parent) {
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
    connect(this, &QAbstractButton::clicked, this, [this] { act(*this, onClick); });
}

void PictureButton::setPicture(const QPixmap& picture, const QString& fileName) {
    picture_ = picture;
    setProperty("picture", fileName);
    update();
}

void PictureButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!picture_.isNull())
        painter.drawPixmap(rect(), picture_);
    painter.end();
    if (hasFocus())
        paintFocusMark(*this);
}

void PictureButton::mouseMoveEvent(QMouseEvent* event) {
    QAbstractButton::mouseMoveEvent(event);
    event->accept();
    act(*this, onMouseMove);
}

void PictureButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    act(*this, onMouseMove);
}

}  // namespace platform
