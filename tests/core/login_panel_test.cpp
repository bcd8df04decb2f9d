#include "core/login_panel.h"

#include "core/study_time.h"
#include "platform/desktop/timer.h"
#include "tests/support/recorder.h"

#include <QPointer>

#include <gtest/gtest.h>

using support::Desk;
using support::find;

namespace {

class LoginPanelTest : public testing::Test {
   protected:
    Desk desk;
    support::RecordingNavigator navigator;
    core::Context context = support::contextWith(desk, navigator);
    QPointer<core::LoginPanel> panel = new core::LoginPanel(context);

    platform::Timer& timer(const char* name) const {
        return find<platform::Timer>(panel, QLatin1String(name));
    }
    void tick(const char* name) const { timer(name).onTick(); }
    QString bar() const { return find(panel, "picBar").property("picture").toString(); }
    ~LoginPanelTest() override { delete panel; }
};

}  // namespace

TEST_F(LoginPanelTest, LoadsWithOnlyTheStartingTimerEnabled) {
    EXPECT_TRUE(timer("Timer2").enabled());
    EXPECT_FALSE(timer("Timer1").enabled());
    EXPECT_FALSE(timer("Timer3").enabled());
    EXPECT_EQ(find<platform::Label>(panel, "lblShow").caption(), "Please Wait...");
    EXPECT_EQ(find<platform::CommandButton>(panel, "cmdGo").text(), "Go");
    EXPECT_EQ(find(panel, "picWait").pos(), QPoint(0, 0));
}

TEST_F(LoginPanelTest, HoldsUpNoOtherWindow) {
    panel->show();
    EXPECT_EQ(panel->windowModality(), Qt::NonModal);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(LoginPanelTest, OpensTheTableOnTheSecondTick) {
    tick("Timer2");
    EXPECT_TRUE(navigator.asked.empty());
    EXPECT_FALSE(panel->isUnloaded());
    tick("Timer2");
    EXPECT_EQ(navigator.screens(), QStringList{"frmTable"});
    EXPECT_TRUE(panel->isUnloaded());
    EXPECT_FALSE(timer("Timer2").enabled());
    EXPECT_FALSE(timer("Timer1").enabled()) << "a form that is gone ticks no more";
}

TEST_F(LoginPanelTest, ASlowScreenDoesNotChangeTheSequence) {
    panel->show();
    QTest::qSleep(60);
    EXPECT_TRUE(navigator.asked.empty()) << "time alone opens nothing";
    EXPECT_TRUE(support::waitFor([&] { return !navigator.asked.empty(); }));
    support::settle();
    EXPECT_EQ(navigator.screens(), QStringList{"frmTable"});
}

TEST_F(LoginPanelTest, TheBarRunsThroughItsPicturesAndStartsAgain) {
    tick("Timer2");
    timer("Timer2").setEnabled(false);
    timer("Timer1").setEnabled(true);
    QStringList shown;
    for (int i = 0; i < 12; ++i) {
        tick("Timer1");
        shown.append(bar());
    }
    EXPECT_EQ(shown, (QStringList{"bar2.jpg", "bar3.jpg", "bar4.jpg", "bar5.jpg", "bar6.jpg", "bar7.jpg",
                                  "bar8.jpg", "bar9.jpg", "bar10.jpg", "bar10.jpg", "bar2.jpg", "bar3.jpg"}));
}

TEST_F(LoginPanelTest, ATickOfADisabledTimerDoesNothing) {
    tick("Timer1");
    EXPECT_EQ(bar(), "bar2.jpg") << "the first picture of the design";
    timer("Timer2").setEnabled(false);
    tick("Timer2");
    tick("Timer2");
    EXPECT_TRUE(navigator.asked.empty());
    EXPECT_FALSE(timer("Timer1").enabled());
}

TEST_F(LoginPanelTest, ComesUpWithoutTheFilesOfItsPictures) {
    context.applicationFolder = "H:\\Nowhere";
    const core::LoginPanel bare(context);
    EXPECT_EQ(find(&bare, "picWait").property("picture").toString(), "login.jpg");
    EXPECT_EQ(desk.failure(), "");
}

TEST(StudyTime, CountsSecondsUnderItsTitle) {
    Desk desk;
    core::StudyTime form(desk.context());
    EXPECT_EQ(form.windowTitle(), "Brindle English Study Time");
    EXPECT_EQ(find<platform::Label>(&form, "Label1").caption(), "Brindle English Study Time");
    auto& timer = find<platform::Timer>(&form, "Timer1");
    EXPECT_TRUE(timer.enabled());
    for (int i = 0; i < 3; ++i)
        timer.onTick();
    EXPECT_EQ(find<platform::Label>(&form, "lblTime").caption(), "3");
    EXPECT_EQ(desk.session.elapsedSeconds, 3);
    timer.setEnabled(false);
    timer.onTick();
    EXPECT_EQ(desk.session.elapsedSeconds, 3);
}
