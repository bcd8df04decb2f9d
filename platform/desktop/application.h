#pragma once

#include <QApplication>

#include <exception>
#include <functional>

namespace platform {

/// The application object, and the one place where a failure ends the run: every event handler runs below
/// its `notify`.
class Application : public QApplication {
    Q_OBJECT
   public:
    Application(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;
    /// Runs `start` and, where it gives true, the event loop until the program ends. Gives the exit status.
    int run(const std::function<bool()>& start);
    /// Runs `work` under the same rule as an event handler.
    void endOnFailure(const std::function<void()>& work);

    /// What happens to a failure. The default shows it once in a critical box, tells it on standard error
    /// and ends the process with status 1.
    std::function<void(const std::exception& failure)> onFailure;

   protected:
    bool event(QEvent* event) override;

   private:
    bool toEnd_ = false;  // the desktop has asked, maybe before the event loop began
};

/// "Run-time error '53': …" with the plain sentence on its own paragraph.
QString failureText(const std::exception& failure);

}  // namespace platform
