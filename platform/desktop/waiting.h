#pragma once

#include <QtGlobal>

#include <functional>
#include <utility>

class QObject;

namespace platform {

/// Stands for as long as a handler waits: in a message box, or for the end of a sound. The windows keep
/// painting meanwhile, but nothing else of the course runs: no timer ticks, no control or window answers, no
/// screen opens and no form goes from memory, for the handler that waits has yet to go on in it.
class Waiting {
   public:
    /// What the learner can reach meanwhile.
    enum class Input { Box, Nothing };

    explicit Waiting(Input input);
    ~Waiting();
    Q_DISABLE_COPY_MOVE(Waiting)

    /// Whether anything waits.
    static bool anywhere();
    /// Whether something waits that takes no mouse and no keys.
    static bool refusesInput();

   private:
    Input input_;
};

/// Runs `work` from the event loop, in the order of asking, if `context` still lives then. It runs when the
/// handler in hand has ended, and one that waits has not ended.
void later(QObject* context, std::function<void()> work);

/// Runs a handler of a control, a timer or a window, where there is one. Nothing runs while another waits.
template <typename... Parameters, typename... Arguments>
void run(const std::function<void(Parameters...)>& handler, Arguments&&... arguments) {
    if (!handler || Waiting::anywhere())
        return;
    // Kept for as long as it runs: it may put another handler in its place.
    const auto running = handler;
    running(std::forward<Arguments>(arguments)...);
}

/// Runs a handler that is never left out: where something waits, it comes when that is over.
void runOrLater(QObject* context, const std::function<void()>& handler);

}  // namespace platform
