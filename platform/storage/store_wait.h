#pragma once

#include "platform/desktop/waiting.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QString>

#include <optional>

class QMessageBox;

namespace platform {

/// The wait for a store that another program holds. On a desktop a box tells at once what is waited for, the
/// screen goes on being painted while nothing of the course runs, and the learner can give up; without one it
/// is given up by itself after a while. The box goes when the wait ends.
class StoreWait {
   public:
    explicit StoreWait(QString shownName);
    ~StoreWait();
    StoreWait(const StoreWait&) = delete;
    StoreWait& operator=(const StoreWait&) = delete;

    /// Lets a moment pass. False when there is no more waiting.
    bool pause();

   private:
    bool pauseUnderBox();
    void showBox();

    QString shownName_;
    QElapsedTimer since_;
    QPointer<QMessageBox> box_;
    std::optional<Waiting> waiting_;
    bool mayShow_ = false;
};

}  // namespace platform
