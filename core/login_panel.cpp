#include "core/login_panel.h"

#include <QCoreApplication>

namespace core {

namespace {

constexpr QSize panelSize(420, 160);
constexpr int startTicks = 2;
constexpr int barFrames = 11;

}  // namespace

LoginPanel::LoginPanel(Context& context) : Screen(context, QStringLiteral("frmLogIn2"), panelSize) {
    setAccessibleName(QStringLiteral("Please wait"));
    // The one screen that holds nothing up.
    setWindowModality(Qt::NonModal);
    picWait_ =
        &addPictureButton(QStringLiteral("picWait"), QRect(0, 0, 420, 160), QStringLiteral("Please wait"));
    picBar_ =
        &addPictureButton(QStringLiteral("picBar"), QRect(110, 96, 280, 20), QStringLiteral("Progress"));
    for (auto* picture : {picWait_, picBar_})
        picture->setFocusPolicy(Qt::NoFocus);
    addLabel(QStringLiteral("lblShow"), QRect(110, 48, 280, 36), platform::TextRole::Heading,
             QStringLiteral("Please Wait..."));
    cmdGo_ = &addButton(QStringLiteral("cmdGo"), QRect(350, 130, 50, 22), QStringLiteral("Go"));
    cmdGo_->hide();
    cmdGo_->onClick = [this] { goClicked(); };

    timer2_ = new platform::Timer(QStringLiteral("Timer2"), 10, this);
    timer2_->onTick = [this] { timer2Tick(); };
    timer1_ = new platform::Timer(QStringLiteral("Timer1"), 100, this);
    timer1_->onTick = [this] { timer1Tick(); };
    timer3_ = new platform::Timer(QStringLiteral("Timer3"), 300, this);

    frameCount_ = 0;
    movePlace(*picWait_, 0, 0);
    loadDesignPicture(*picWait_, QStringLiteral("interface\\login.jpg"));
    loadDesignPicture(*picBar_, QStringLiteral("button\\bar2.jpg"));
    timer2_->setEnabled(true);
}

void LoginPanel::timer2Tick() {
    if (!timer2_->enabled())
        return;
    ++frameCount_;
    if (frameCount_ != startTicks)
        return;
    timer1_->setEnabled(true);
    timer2_->setEnabled(false);
    frameCount_ = 1;
    cmdGo_->onClick();
}

void LoginPanel::timer1Tick() {
    if (!timer1_->enabled())
        return;
    ++frameCount_;
    if (frameCount_ < barFrames) {
        loadPicture(*picBar_, QStringLiteral("button\\bar%1.jpg").arg(frameCount_));
        QCoreApplication::processEvents();
    } else {
        frameCount_ = 1;
    }
}

void LoginPanel::goClicked() {
    unload();
    context().navigator.open(QStringLiteral("frmTable"));
}

}  // namespace core
