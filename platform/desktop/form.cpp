#include "platform/desktop/form.h"

#include "platform/desktop/input_gate.h"
#include "platform/desktop/timer.h"
#include "platform/desktop/waiting.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace platform {

namespace {

QRect screenRect() {
    return QGuiApplication::primaryScreen()->geometry();
}

}  // namespace

Frame::Frame(const QString& name) : QWidget(nullptr, Qt::FramelessWindowHint) {
    setObjectName(name);
    setAccessibleName(QStringLiteral("Course backdrop"));
}

// Painted and not loaded: a picture the size of the screen would cost more than the rest of the start.
void Frame::paintEvent(QPaintEvent*) {
    QLinearGradient ground(0, 0, 0, height());
    ground.setColorAt(0.0, QColor::fromRgb(colour::backdropTop));
    ground.setColorAt(1.0, QColor::fromRgb(colour::backdropBottom));
    QPainter(this).fillRect(rect(), ground);
}

void Frame::closeEvent(QCloseEvent* event) {
    event->ignore();
    runOrLater(this, onCloseRequest);
}

Form::Form(const QString& name, QSize designSize, QWidget* frame)
    : QWidget(frame, Qt::Dialog | Qt::FramelessWindowHint), designSize_(designSize) {
    watchInput();
    setObjectName(name);
    setWindowModality(Qt::ApplicationModal);
    setMouseTracking(true);
    const QRect screen = screenRect();
    scale_ = std::min({1.0, static_cast<double>(screen.width()) / designSize.width(),
                       static_cast<double>(screen.height()) / designSize.height()});
    const QSize size(qRound(designSize.width() * scale_), qRound(designSize.height() * scale_));
    setFixedSize(size);
    move(screen.x() + (screen.width() - size.width()) / 2,
         screen.y() + (screen.height() - size.height()) / 2);
}

Form::~Form() = default;

QRect Form::scaled(const QRect& r) const {
    const QPoint topLeft(qRound(r.left() * scale_), qRound(r.top() * scale_));
    const QPoint end(qRound((r.left() + r.width()) * scale_), qRound((r.top() + r.height()) * scale_));
    return {topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())};
}

void Form::place(QWidget& control, const QRect& designRect) {
    control.setProperty("designRect", designRect);
    control.setGeometry(scaled(designRect));
}

void Form::movePlace(QWidget& control, int left, int top) {
    place(control, QRect(QPoint(left, top), placeOf(control).size()));
}

QRect Form::placeOf(const QWidget& control) const {
    return control.property("designRect").toRect();
}

void Form::setBackground(const QPixmap& picture, const QString& fileName) {
    const qreal ratio = devicePixelRatioF();
    const QSize pixels = size() * ratio;
    background_ = picture.size() == pixels
                      ? picture
                      : picture.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    background_.setDevicePixelRatio(ratio);
    setProperty("picture", fileName);
    update();
}

Label& Form::addLabel(const QString& name, const QRect& designRect, TextRole role, const QString& caption) {
    auto* label = new Label(this);
    label->setObjectName(name);
    label->setFont(roleFont(role, scale_));
    label->setCaption(caption);
    place(*label, designRect);
    return *label;
}

TextBox& Form::addTextBox(const QString& name, const QRect& designRect, TextRole role) {
    auto* box = new TextBox(this);
    box->setObjectName(name);
    box->setFont(roleFont(role, scale_));
    box->setAlignment(Qt::AlignCenter);
    place(*box, designRect);
    return *box;
}

StoryBox& Form::addStoryBox(const QString& name, const QRect& designRect) {
    auto* box = new StoryBox(this);
    box->setObjectName(name);
    box->setFont(roleFont(TextRole::Body, scale_));
    place(*box, designRect);
    return *box;
}

DropList& Form::addDropList(const QString& name, const QRect& designRect, const QString& spokenName) {
    auto* list = new DropList(this);
    list->setObjectName(name);
    list->setAccessibleName(spokenName);
    list->setFont(roleFont(TextRole::Body, scale_));
    place(*list, designRect);
    return *list;
}

PictureButton& Form::addPictureButton(const QString& name, const QRect& designRect,
                                      const QString& spokenName) {
    auto* button = new PictureButton(this);
    button->setObjectName(name);
    button->setAccessibleName(spokenName);
    place(*button, designRect);
    return *button;
}

CommandButton& Form::addButton(const QString& name, const QRect& designRect, const QString& caption) {
    auto* button = new CommandButton(caption, this);
    button->setObjectName(name);
    button->setFont(roleFont(TextRole::Caption, scale_));
    place(*button, designRect);
    return *button;
}

Label& Form::addLabel(ControlArray<Label>& array, const QRect& designRect, TextRole role) {
    Label& label = addLabel(array.memberName(array.size()), designRect, role);
    array.add(&label);
    return label;
}

TextBox& Form::addTextBox(ControlArray<TextBox>& array, const QRect& designRect, TextRole role) {
    TextBox& box = addTextBox(array.memberName(array.size()), designRect, role);
    array.add(&box);
    return box;
}

CommandButton& Form::addButton(ControlArray<CommandButton>& array, const QRect& designRect,
                               const QString& caption) {
    CommandButton& button = addButton(array.memberName(array.size()), designRect, caption);
    array.add(&button);
    return button;
}

void Form::unload() {
    if (unloaded_)
        return;
    unloaded_ = true;
    for (Timer* timer : findChildren<Timer*>())
        timer->setEnabled(false);
    hide();
    // Without a window manager nobody hands the keyboard back to the window below.
    if (parentWidget() != nullptr)
        parentWidget()->window()->activateWindow();
    // A handler of this very form may be waiting, and goes on in it.
    runOrLater(this, [this] { deleteLater(); });
    if (onUnload)
        onUnload();
}

void Form::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (background_.isNull())
        painter.fillRect(rect(), palette().window());
    else
        painter.drawPixmap(0, 0, background_);
}

void Form::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    if (!unloaded_)
        run(onMouseMove);
}

void Form::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (!unloaded_)
        runOrLater(this, onCloseRequest);
}

void Form::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (std::exchange(tabsOrdered_, true))
        return;
    orderTabs();
}

void Form::putLast(const std::vector<QWidget*>& controls) {
    // The order is a ring, and the toolkit takes its first control for the one behind the last already,
    // unless the form stands between them.
    const Qt::FocusPolicy policy = focusPolicy();
    setFocusPolicy(Qt::TabFocus);
    for (QWidget* control : controls) {
        if (control == nullptr)
            continue;
        // Only a control that takes the keyboard can have another put behind it.
        QWidget* last = previousInFocusChain();
        while (last != this && (last->focusPolicy() == Qt::NoFocus || last->parentWidget() != this))
            last = last->previousInFocusChain();
        if (last != control)
            setTabOrder(last, control);
    }
    setFocusPolicy(policy);
}

// A control that is hidden or disabled while it has the keyboard leaves it to the form: its neighbour in the
// order of Tab may be the way out of the program.
bool Form::focusNextPrevChild(bool next) {
    const QWidget* focused = QApplication::focusWidget();
    if (focused == nullptr || (focused->isVisible() && focused->isEnabled()))
        return QWidget::focusNextPrevChild(next);
    setFocus();
    return true;
}

}  // namespace platform
