#include "platform/storage/store_wait.h"

#include "platform/desktop/message_box.h"

#include <QApplication>
#include <QEventLoop>
#include <QMessageBox>
#include <QThread>
#include <QTimer>

#include <chrono>
#include <utility>

namespace platform {

namespace {

// How often the store is asked for again, and how long that goes on where nobody can be told, in
// milliseconds.
constexpr int askInterval = 100;
constexpr qint64 patience = 15000;
constexpr std::chrono::milliseconds plainPause{20};

// The wait that has its box on the screen. What a timer asks for meanwhile waits under the same box.
StoreWait* shown = nullptr;

bool onDesktop() {
    auto* application = qobject_cast<QApplication*>(QCoreApplication::instance());
    return application != nullptr && QThread::currentThread() == application->thread();
}

}  // namespace

StoreWait::StoreWait(QString shownName) : shownName_(std::move(shownName)), mayShow_(onDesktop()) {
    since_.start();
}

StoreWait::~StoreWait() {
    delete box_.data();
    if (shown == this)
        shown = nullptr;
}

bool StoreWait::pause() {
    if (mayShow_)
        return pauseUnderBox();
    if (since_.hasExpired(patience))
        return false;
    QThread::msleep(plainPause.count());
    return true;
}

void StoreWait::showBox() {
    shown = this;
    waiting_.emplace(Waiting::Input::Box);
    QWidget* below = QApplication::activeModalWidget();
    if (below == nullptr)
        below = QApplication::activeWindow();
    box_ = new QMessageBox(
        QMessageBox::Information, defaultBoxTitle(),
        QStringLiteral("다른 프로그램이 학습 데이타를 쓰고 있습니다. 끝나면 바로 이어집니다.\n\n"
                       "Another program is using '%1'. The course goes on as soon as it is free.")
            .arg(shownName_),
        QMessageBox::Cancel, below);
    box_->setObjectName(QStringLiteral("storeWaitBox"));
    box_->setWindowModality(Qt::ApplicationModal);
    styleBox(*box_);
    box_->show();
}

bool StoreWait::pauseUnderBox() {
    if (shown == nullptr)
        showBox();
    QEventLoop loop;
    const QPointer<QMessageBox> box = shown->box_;
    if (box)
        QObject::connect(box, &QMessageBox::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(askInterval, &loop, &QEventLoop::quit);
    if (box && box->isVisible())
        loop.exec();
    // Pressed away, or gone with the window below it: nothing tells any more that somebody waits.
    return box && box->isVisible();
}

}  // namespace platform
