#include "platform/application.h"

#include "platform/error.h"
#include "platform/message_box.h"
#include "platform/waiting.h"

#include <QMessageBox>

#include <cstdio>
#include <cstdlib>

namespace platform {

namespace {

void endWithBox(const std::exception& failure) {
    // What else fails while the box stands, such as another timer, must not take it from under the learner's
    // eyes.
    static bool shown = false;
    if (shown)
        return;
    shown = true;
    const QString text = failureText(failure);
    std::fprintf(stderr, "%s\n", qPrintable(text));
    std::fflush(stderr);
    while (QApplication::overrideCursor() != nullptr)
        QApplication::restoreOverrideCursor();
    QMessageBox box(QMessageBox::Critical, defaultBoxTitle(), text, QMessageBox::Ok,
                    QApplication::activeWindow());
    box.setObjectName(QStringLiteral("errorBox"));
    dressBox(box);
    box.exec();
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

void Application::guarded(const std::function<void()>& work) {
    try {
        work();
    } catch (const std::exception& failure) {
        onFailure(failure);
    }
}

}  // namespace platform
