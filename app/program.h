#pragma once

#include "app/screen_loop.h"
#include "core/context.h"
#include "platform/desktop/form.h"
#include "platform/storage/file_lock.h"

namespace app {

/// The program put together: session, desktop services and the screens, around one frame.
class Program {
   public:
    Program();

    /// Waits for its turn where another program works on the same stores, and starts up. False when nobody
    /// is logged in, or would rather not wait, and the program must end. Throws where a store cannot be
    /// opened.
    bool start();

    core::Session& session() { return session_; }
    ScreenLoop& screens() { return screens_; }
    platform::Frame& frame() { return frame_; }
    const platform::Drives& drives() const { return drives_; }

   private:
    platform::FileLock turn_;
    core::Session session_;
    platform::UserSettings settings_;
    platform::Drives drives_;
    platform::SystemClock clock_;
    platform::SystemRandom random_;
    platform::DeviceSound sound_;
    platform::DesktopBoxes boxes_;
    platform::Frame frame_;
    ScreenLoop screens_;
    core::Context context_;
};

}  // namespace app
