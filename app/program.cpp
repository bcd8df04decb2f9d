#include "app/program.h"

#include "app/screens.h"
#include "core/startup.h"
#include "core/turn.h"

namespace app {

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
    return core::awaitTurn(turn_, drives_.resolve(context_.applicationFolder)) &&
           core::StartUp(context_, frame_);
}

}  // namespace app
