// Fails in the way its first argument names, and tells on standard output what box the learner is shown.

#include "platform/application.h"
#include "platform/error.h"
#include "platform/timer.h"

#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <cstdio>

namespace {

[[noreturn]] void fail() {
    throw platform::RuntimeError(platform::Fault::FileNotFound,
                                 QStringLiteral("File not found: 'D:\\next1.jpg'."));
}

/// Looks for the box, lets a few more ticks go by, and answers it.
void watch(QTimer& watcher) {
    QObject::connect(&watcher, &QTimer::timeout, &watcher, [&watcher, looks = 0]() mutable {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr || ++looks < 5)
            return;
        watcher.stop();
        std::printf("%s|%d|%d|%s\n", qPrintable(box->objectName()), static_cast<int>(box->icon()),
                    static_cast<int>(box->textFormat()), qPrintable(box->text()));
        std::fflush(stdout);
        box->button(QMessageBox::Ok)->click();
    });
    watcher.start(5);
}

}  // namespace

int main(int argc, char** argv) {
    platform::Application application(argc, argv);
    QTimer watcher;
    watch(watcher);
    const QString way = application.arguments().value(1);
    platform::Timer timer("TimerGo", 1, nullptr);
    timer.onTick = fail;
    platform::Timer another("Timer2", 2, nullptr);
    another.onTick = [] { throw std::runtime_error("another failure"); };
    if (way == QStringLiteral("tick"))
        timer.setEnabled(true);
    else if (way == QStringLiteral("again")) {
        timer.setEnabled(true);
        another.setEnabled(true);
    } else if (way == QStringLiteral("posted"))
        QMetaObject::invokeMethod(&application, fail, Qt::QueuedConnection);
    else
        application.guarded(fail);
    return QApplication::exec();
}
