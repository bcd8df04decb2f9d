#include "app/program.h"

#include "app/screens.h"
#include "core/startup.h"
#include "core/turn.h"
#include "course/table_ahead.h"
#include "platform/desktop/waiting.h"

#include <QTimer>

#include <chrono>

namespace app {

namespace {

constexpr std::chrono::milliseconds panelShown{1};

}  // namespace

Program::Program()
    : drives_(core::drivesRoot(settings_)),
      frame_(QStringLiteral("frmFrame")),
      screens_(allScreens()),
      context_{session_, drives_,  settings_,
               clock_,   random_,  sound_,
               boxes_,   screens_, core::applicationFolder(settings_, drives_),
               &frame_} {
    screens_.setContext(context_);
    frame_.onCloseRequest = [this] {
        session_.closeDictionary();
        screens_.endProgram();
    };
}

bool Program::start() {
    if (!core::awaitTurn(turn_, drives_.resolve(context_.applicationFolder)) ||
        !core::StartUp(context_, frame_))
        return false;
    // The panel that stands first only waits.
    QTimer::singleShot(panelShown, &frame_,
                       [this] { platform::later(&frame_, [this] { course::readTableAhead(context_); }); });
    return true;
}

}  // namespace app
