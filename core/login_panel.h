#pragma once

#include "core/screen.h"

namespace core {

/// `frmLogIn2`, the "Please Wait..." panel between start-up and the course table.
class LoginPanel final : public Screen {
    Q_OBJECT
   public:
    explicit LoginPanel(Context& context);

   private:
    void timer2Tick();
    void timer1Tick();
    void goClicked();

    platform::PictureButton* picWait_;
    platform::PictureButton* picBar_;
    platform::CommandButton* cmdGo_;
    platform::Timer* timer1_;
    platform::Timer* timer2_;
    platform::Timer* timer3_;
    Int16 frameCount_;
};

}  // namespace core
