#include "platform/desktop/timer.h"

#include "platform/desktop/waiting.h"

#include <QPointer>
#include <QScopeGuard>

namespace platform {

Timer::Timer(const QString& name, int intervalMilliseconds, QObject* parent) : QObject(parent) {
    setObjectName(name);
    timer_.setInterval(intervalMilliseconds);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &Timer::tick);
}

void Timer::setEnabled(bool enabled) {
    if (enabled == timer_.isActive())
        return;
    if (enabled)
        timer_.start();
    else
        timer_.stop();
}

void Timer::tick() {
    if (ticking_)
        return;
    const QPointer<Timer> alive(this);
    const auto ended = qScopeGuard([&alive] {
        if (alive)
            alive->ticking_ = false;
    });
    ticking_ = true;
    run(onTick);
}

}  // namespace platform
