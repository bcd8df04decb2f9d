#pragma once

#include "platform/desktop/timer.h"
#include "video/video_screen.h"

namespace video {

/// `frmVideo_2014`, a step's own video before its screen: shows the tips and plays by itself.
class StepVideo final : public VideoScreen {
    Q_OBJECT
   public:
    explicit StepVideo(core::Context& context);

   private:
    void loadStep(StoryBox& story);
    void timer1Tick();
    void exitClicked();

    platform::Timer* timer1_;
    int hiddenTicks_ = 0;
};

}  // namespace video
