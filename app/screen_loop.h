#pragma once

#include "core/context.h"
#include "core/screen.h"

#include <QHash>
#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>
#include <vector>

namespace app {

/// Makes a screen; its load step is the constructor.
using ScreenMaker = std::function<core::Screen*(core::Context&)>;
/// The makers of all screens by their names.
using ScreenMakers = QHash<QString, ScreenMaker>;

/// Brings screens up, one after the other, from the event loop: what was asked for during a handler opens
/// when that handler has ended.
class ScreenLoop final : public QObject, public core::Navigator {
    Q_OBJECT
   public:
    explicit ScreenLoop(ScreenMakers makers);

    /// Must be set before the first screen opens.
    void setContext(core::Context& context) { context_ = &context; }

    void open(const QString& screen, std::function<void()> closed = {}) override;
    void endProgram() override;
    bool ended() const { return ended_; }

    /// The screens that stand, the last opened last.
    std::vector<core::Screen*> standing() const;
    /// The screen that was opened last and still stands, or null.
    core::Screen* top() const;

   private:
    core::Screen* findStanding(const QString& screen) const;
    void later(std::function<void()> work);
    void show(const QString& screen, const std::function<void()>& closed);
    void screenGone(const std::function<void()>& closed);

    ScreenMakers makers_;
    core::Context* context_ = nullptr;
    std::vector<QPointer<core::Screen>> standing_;
    bool ended_ = false;
};

}  // namespace app
