#pragma once

#include <QString>

#include <functional>

namespace core {

/// Who brings screens up. A screen never runs its successor: it asks for it here, leaves, and the successor
/// comes when the handler in hand has ended, so that a walk of any length uses no more stack than one step.
class Navigator {
   public:
    virtual ~Navigator() = default;

    /// Opens a screen by its name. A name that no screen carries opens nothing, and `closed` runs as if that
    /// screen had come and gone. `closed` runs when the screen is gone, before whatever it asked for itself.
    virtual void open(const QString& screen, std::function<void()> closed = {}) = 0;

    /// Ends the program with status 0 when the handler in hand has ended. Nothing is saved: every result was
    /// stored when it happened.
    virtual void endProgram() = 0;
};

}  // namespace core
