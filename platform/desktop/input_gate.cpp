#include "platform/desktop/input_gate.h"

#include "platform/desktop/form.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPointer>
#include <QStyleHints>

#include <utility>

namespace platform {

namespace {

/// The form that a control stands on, or that its drop-down list hangs from; null for one on another window,
/// such as a message box.
const Form* formOf(const QWidget& control) {
    const QWidget* window = control.window();
    while (window->windowType() == Qt::Popup && window->parentWidget() != nullptr)
        window = window->parentWidget()->window();
    return qobject_cast<const Form*>(window);
}

bool isInput(QEvent::Type type) {
    switch (type) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::Enter:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::ShortcutOverride:
        case QEvent::Shortcut:
        case QEvent::InputMethod: return true;
        default: return false;
    }
}

/// Sees every event before its receiver does.
class InputGate final : public QObject {
   public:
    explicit InputGate(QObject* parent) : QObject(parent) {}

    void noteChange(const QWidget& control) {
        if (last_.target == &control)
            last_.changed = true;
    }
    void noteShortcut() { typedOn_.clear(); }

   protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (!isInput(event->type()) || !watched->isWidgetType())
            return false;
        auto& widget = *static_cast<QWidget*>(watched);
        const bool refused = hasLeft(widget) || refuses(widget, *event);
        if (refused)
            event->accept();
        return refused;
    }

   private:
    /// A press of the left button, and what stood at its place.
    struct Press {
        QPointer<QWidget> target;
        QPoint place;
        quint64 time = 0;
        bool changed = false;
    };

    bool refuses(QWidget& widget, const QEvent& event) {
        switch (event.type()) {
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonDblClick:
                typedOn_.clear();
                return refusesPress(widget, static_cast<const QMouseEvent&>(event));
            case QEvent::MouseButtonRelease: return refusesRelease(static_cast<const QMouseEvent&>(event));
            case QEvent::KeyPress:
                // Nobody types between the halves of a double click.
                last_ = {};
                return refusesBlank(widget, static_cast<const QKeyEvent&>(event));
            default: return false;
        }
    }

    bool refusesPress(QWidget& widget, const QMouseEvent& event) {
        if (event.button() != Qt::LeftButton)
            return false;
        // What a control does not take goes on to its form; that is the same press.
        if (event.timestamp() != 0 && event.timestamp() == last_.time && last_.target != nullptr &&
            widget.isAncestorOf(last_.target))
            return false;
        releaseRefused_ = isSecondHalf(event) && hasChanged(widget);
        if (!releaseRefused_)
            last_ = {&widget, event.globalPosition().toPoint(), event.timestamp(), false};
        return releaseRefused_;
    }

    bool refusesRelease(const QMouseEvent& event) {
        return event.button() == Qt::LeftButton && std::exchange(releaseRefused_, false);
    }

    bool isSecondHalf(const QMouseEvent& event) const {
        const QStyleHints& hints = *QGuiApplication::styleHints();
        const QPoint way = event.globalPosition().toPoint() - last_.place;
        const int near = hints.mouseDoubleClickDistance();
        if (qAbs(way.x()) > near || qAbs(way.y()) > near)
            return false;
        // An event that carries no time tells by its kind alone.
        if (last_.time == 0 || event.timestamp() == 0)
            return event.type() == QEvent::MouseButtonDblClick;
        return event.timestamp() >= last_.time &&
               event.timestamp() - last_.time < static_cast<quint64>(hints.mouseDoubleClickInterval());
    }

    /// Whether the place of the last press holds something else by now.
    bool hasChanged(const QWidget& widget) const {
        // A message box is answered by whatever press reaches it.
        if (qobject_cast<const QMessageBox*>(widget.window()) != nullptr)
            return false;
        const QWidget* before = last_.target;
        if (last_.changed || before == nullptr || hasLeft(*before) || before->window() != widget.window())
            return true;
        return before != &widget && (!before->isVisible() || !before->isEnabled() ||
                                     !before->rect().contains(before->mapFromGlobal(last_.place)));
    }

    bool refusesBlank(QWidget& widget, const QKeyEvent& event) {
        const bool pressable = qobject_cast<QAbstractButton*>(&widget) != nullptr ||
                               qobject_cast<Label*>(&widget) != nullptr ||
                               qobject_cast<QComboBox*>(&widget) != nullptr;
        // What a button does not take goes on to its form; that is the same key.
        if (!pressable || formOf(widget) == nullptr)
            return false;
        const bool blank = event.key() == Qt::Key_Space;
        const bool refused = blank && typedOn_ == &widget;
        typedOn_ = isTyped(event) && !blank ? &widget : nullptr;
        return refused;
    }

    Press last_;
    bool releaseRefused_ = false;
    QPointer<QWidget> typedOn_;
};

QPointer<InputGate>& theGate() {
    static QPointer<InputGate> gate;
    return gate;
}

}  // namespace

bool isTyped(const QKeyEvent& event) {
    constexpr Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return !event.text().isEmpty() && event.text().at(0).isPrint() && !(event.modifiers() & commands);
}

bool hasLeft(const QWidget& control) {
    const Form* form = formOf(control);
    return form != nullptr && form->isUnloaded();
}

void noteChange(const QWidget& control) {
    if (theGate() != nullptr)
        theGate()->noteChange(control);
}

void noteShortcut() {
    if (theGate() != nullptr)
        theGate()->noteShortcut();
}

void watchInput() {
    if (theGate() != nullptr)
        return;
    theGate() = new InputGate(QCoreApplication::instance());
    QCoreApplication::instance()->installEventFilter(theGate());
}

}  // namespace platform
