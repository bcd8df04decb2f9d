#pragma once

#include "core/screen.h"

namespace core {

/// `frmTime`, a small counter of the seconds studied. No screen of the course opens it.
class StudyTime final : public Screen {
    Q_OBJECT
   public:
    explicit StudyTime(Context& context);

   private:
    void tick();

    platform::Label* lblTime_;
    platform::Timer* timer1_;
};

}  // namespace core
