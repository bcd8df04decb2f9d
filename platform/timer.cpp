#include "platform/timer.h"

#include <QScopedValueRollback>

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
    if (ticking_ || !onTick)
        return;
    const QScopedValueRollback<bool> guard(ticking_, true);
    onTick();
}

}  // namespace platform
