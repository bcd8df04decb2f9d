#pragma once

#include "app/screen_loop.h"

namespace app {

/// Every screen of the program by the name that the course knows it by.
ScreenMakers allScreens();

}  // namespace app
