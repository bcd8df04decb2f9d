#include "platform/desktop/application.h"

#include "platform/desktop/message_box.h"
#include "platform/desktop/waiting.h"
#include "platform/error.h"
#include "platform/file_limit.h"

#include <QMessageBox>

#include <cstdio>
#include <cstdlib>

namespace platform {

namespace {

/// The window that a box is to stand over: the topmost on view. One that has just come up is not the active
/// one yet.
QWidget* windowOnTop() {
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    QWidget* active = QApplication::activeWindow();
    return active != nullptr && active->isVisible() ? active : nullptr;
}

/// Whatever else has buttons, such as the player or a print preview, is out of reach from now on.
void disableAllWindows() {
    for (QWidget* window : QApplication::topLevelWidgets())
        window->setEnabled(false);
}

void endWithBox(const std::exception& failure) {
    const QString text = failureText(failure);
    std::fprintf(stderr, "%s\n", qPrintable(text));
    std::fflush(stderr);
    // What else fails while the box stands is told above, and does not take it from under the learner's eyes.
    static bool shown = false;
    if (shown)
        return;
    shown = true;
    while (QApplication::overrideCursor() != nullptr)
        QApplication::restoreOverrideCursor();
    // Never ends: nothing of the program runs on, and no screen comes up over the box.
    const Waiting waiting(Waiting::Input::Box);
    QWidget* below = windowOnTop();
    disableAllWindows();
    // Not on the stack, where its owner could not delete it.
    auto* box = new QMessageBox(QMessageBox::Critical, defaultBoxTitle(), text, QMessageBox::Ok, below,
                                Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint | Qt::WindowStaysOnTopHint);
    box->setObjectName(QStringLiteral("errorBox"));
    styleBox(*box);
    box->exec();
    // At once, and without unwinding: what was stored is stored, and nothing of the failed handler runs on.
    std::_Exit(1);
}

bool isInput(const QEvent& event) {
    return event.isInputEvent() || event.type() == QEvent::Shortcut || event.type() == QEvent::InputMethod;
}

}  // namespace

QString failureText(const std::exception& failure) {
    if (const auto* error = dynamic_cast<const RuntimeError*>(&failure))
        return QStringLiteral("Run-time error '%1':\n\n%2").arg(error->number()).arg(error->sentence());
    return QStringLiteral("Run-time error:\n\n%1").arg(QString::fromUtf8(failure.what()));
}

Application::Application(int& argc, char** argv) : QApplication(argc, argv), onFailure(endWithBox) {
    setApplicationName(QStringLiteral("Mendori"));
    setQuitOnLastWindowClosed(false);
    ignoreFileLimitSignal();
}

bool Application::event(QEvent* event) {
    if (event->type() != QEvent::Quit)
        return QApplication::event(event);
    // The learner logs out of the desktop. The toolkit would close one window after the other until one will
    // not, and end nothing while a question stands. Nothing is asked and nothing saved here: every result was
    // stored when it happened.
    toEnd_ = true;
    exit(0);
    return true;
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        if (receiver->isWidgetType() && Waiting::refusesInput() && isInput(*event))
            return true;
        return QApplication::notify(receiver, event);
    } catch (const std::exception& failure) {
        onFailure(failure);
        return true;
    }
}

int Application::run(const std::function<bool()>& start) {
    int status = 0;
    endOnFailure([&] {
        if (start() && !toEnd_)
            status = exec();
    });
    return status;
}

void Application::endOnFailure(const std::function<void()>& work) {
    try {
        work();
    } catch (const std::exception& failure) {
        onFailure(failure);
    }
}

}  // namespace platform
