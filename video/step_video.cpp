#include "video/step_video.h"

#include "video/tips.h"
#include "video/video_files.h"

#include <QWindow>

namespace video {

using platform::TextRole;

namespace {

constexpr int timerInterval = 10;
// A window that never comes to view must not keep the video waiting for ever.
constexpr int hiddenTickLimit = 100;

}  // namespace

StepVideo::StepVideo(core::Context& context)
    : VideoScreen(context, QStringLiteral("frmVideo_2014"), QStringLiteral("original.jpg")) {
    setAccessibleName(QStringLiteral("Video lesson of the step"));
    addLabel(QStringLiteral("lblTitle"), QRect(24, 20, 500, 36), TextRole::Title, session().stepTitle);
    Label& bookTitle = addBookTitle(QRect(536, 22, 272, 32), TextRole::Heading);
    bookTitle.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    bookTitle.setForeColor(platform::colour::accent);
    StoryBox& story = addStory(QRect(36, 104, 800, 584));
    PictureButton& exit = addHoverButton(QStringLiteral("picExit"), QRect(872, 456, 104, 76),
                                         QStringLiteral("next"), QStringLiteral("Go on to the lesson"));
    exit.onClick = [this] { exitClicked(); };
    // Space goes on as soon as the player is closed.
    exit.setFocus();
    PictureButton& end = addHoverButton(QStringLiteral("picExit2"), QRect(832, 16, 136, 44),
                                        QStringLiteral("exits"), QStringLiteral("Exit"));
    end.onClick = [this] { endProgram(); };
    timer1_ = new platform::Timer(QStringLiteral("Timer1"), timerInterval, this);
    timer1_->onTick = [this] { timer1Tick(); };
    loadStep(story);
}

void StepVideo::loadStep(StoryBox& story) {
    const Tips tips =
        readTips(context(), QStringLiteral("recordno=%1").arg(session().recordNo), VideoNumber::Needed);
    story.setText(tips.story);
    session().videoFile = stepVideoFile(session().videoRoot, tips.videoNumber.toInt16());
    timer1_->setEnabled(true);
}

void StepVideo::timer1Tick() {
    if (!timer1_->enabled())
        return;
    // The tips are to be on the screen before the player covers them.
    const bool seen = windowHandle() != nullptr && windowHandle()->isExposed();
    if (!seen && ++hiddenTicks_ < hiddenTickLimit)
        return;
    timer1_->setEnabled(false);
    repaint();
    context().navigator.open(QStringLiteral("frmVideo2"));
}

void StepVideo::exitClicked() {
    timer1_->setEnabled(false);
    unload();
}

}  // namespace video
