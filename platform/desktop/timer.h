#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

namespace platform {

/// A form's timer: ticks while enabled. A tick never comes while the handler of the one before still runs,
/// nor while any handler waits in a message box or for a word to be spoken.
class Timer : public QObject {
    Q_OBJECT
   public:
    Timer(const QString& name, int intervalMilliseconds, QObject* parent);

    void setEnabled(bool enabled);
    bool enabled() const { return timer_.isActive(); }

    std::function<void()> onTick;

   private:
    void tick();

    QTimer timer_;
    bool ticking_ = false;
};

}  // namespace platform
