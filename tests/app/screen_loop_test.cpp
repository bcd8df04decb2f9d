#include "app/screen_loop.h"

#include "app/screens.h"
#include "catalogue/dispatch.h"
#include "core/startup.h"
#include "platform/desktop/waiting.h"
#include "tests/support/desk.h"

#include <QElapsedTimer>
#include <QPointer>

#include <gtest/gtest.h>

using app::ScreenLoop;
using app::ScreenMakers;
using support::Desk;
using support::settle;
using support::waitFor;

namespace {

/// A bare screen that does what a test tells it once it stands.
class BareScreen final : public core::Screen {
   public:
    BareScreen(core::Context& context, const QString& name) : Screen(context, name, QSize(200, 100)) {
        addPictureButton("picExit", QRect(0, 0, 20, 20), "Exit").onClick = [this] { endProgram(); };
    }
    using Screen::endProgram;
};

class ScreenLoopTest : public testing::Test {
   protected:
    Desk desk;
    QStringList log;
    std::unique_ptr<ScreenLoop> loop;
    std::unique_ptr<core::Context> context;

    ScreenLoopTest() {
        ScreenMakers makers;
        for (const char* name : {"frmA", "frmB", "frmC"})
            makers.insert(name, [this, name](core::Context& where) {
                log.append(QStringLiteral("load ") + QLatin1String(name));
                return new BareScreen(where, QLatin1String(name));
            });
        makers.insert("frmBroken",
                      [](core::Context&) -> core::Screen* { throw std::runtime_error("no picture"); });
        loop = std::make_unique<ScreenLoop>(makers);
        const core::Context& all = desk.context();
        context = std::make_unique<core::Context>(core::Context{all.session, all.drives, all.settings,
                                                                all.clock, all.random, all.sound, all.boxes,
                                                                *loop, all.applicationFolder, all.frame});
        loop->setContext(*context);
    }
    QString top() const { return loop->top() == nullptr ? QString() : loop->top()->objectName(); }
    core::Screen* open(const char* name) {
        loop->open(QLatin1String(name));
        waitFor([&] { return top() == QLatin1String(name); });
        return loop->top();
    }
};

}  // namespace

TEST_F(ScreenLoopTest, AScreenOpensWhenTheHandlerInHandHasEnded) {
    loop->open("frmA");
    EXPECT_EQ(loop->top(), nullptr);
    settle();
    EXPECT_EQ(top(), "frmA");
    EXPECT_TRUE(loop->top()->isVisible());
    EXPECT_EQ(loop->top()->windowModality(), Qt::ApplicationModal);
}

TEST_F(ScreenLoopTest, TheSuccessorComesAfterTheScreenHasGone) {
    core::Screen* a = open("frmA");
    QPointer<core::Screen> watched = a;
    loop->open("frmB");
    a->unload();
    log.append("handler ends");
    settle();
    EXPECT_TRUE(watched.isNull());
    EXPECT_EQ(log, (QStringList{"load frmA", "handler ends", "load frmB"}));
    EXPECT_EQ(top(), "frmB");
}

TEST_F(ScreenLoopTest, WhatFollowsAScreenRunsWhenItIsGoneAndBeforeWhatItAskedFor) {
    loop->open("frmA", [this] {
        log.append("closed");
        loop->open("frmB");
    });
    settle();
    core::Screen* a = loop->top();
    a->unload();
    loop->open("frmC");
    settle();
    EXPECT_EQ(log, (QStringList{"load frmA", "closed", "load frmC", "load frmB"}));
}

TEST_F(ScreenLoopTest, ANameThatNoScreenCarriesOpensNothingAndWhatFollowsRuns) {
    loop->open("frmUnknown");
    loop->open("frmVideo_Missing", [this] { log.append("closed"); });
    settle();
    EXPECT_EQ(loop->top(), nullptr);
    EXPECT_EQ(log, QStringList{"closed"});
    EXPECT_EQ(desk.failure(), "");
}

TEST_F(ScreenLoopTest, AScreenOverAnotherGivesTheKeyboardBackWhenItGoes) {
    core::Screen* a = open("frmA");
    core::Screen* b = open("frmB");
    EXPECT_EQ(loop->standing(), (std::vector<core::Screen*>{a, b}));
    b->unload();
    settle();
    EXPECT_EQ(loop->top(), a);
    EXPECT_TRUE(waitFor([&] { return a->isActiveWindow(); }));
}

TEST_F(ScreenLoopTest, AScreenThatStandsIsBroughtForwardAndNotMadeASecondTime) {
    core::Screen* a = open("frmA");
    loop->open("frmB");
    loop->open("frmB", [this] { log.append("closed"); });
    settle();
    EXPECT_EQ(log, (QStringList{"load frmA", "load frmB"}));
    EXPECT_EQ(loop->standing().size(), 2U);
    loop->top()->unload();
    settle();
    EXPECT_EQ(loop->top(), a);
    EXPECT_NE(open("frmB"), nullptr) << "once gone it can come again";
    EXPECT_EQ(log, (QStringList{"load frmA", "load frmB", "closed", "load frmB"}));
}

TEST_F(ScreenLoopTest, WhateverFollowsAScreenThatWasAskedForTwiceRunsInTheOrderOfAsking) {
    loop->open("frmA", [this] { log.append("first"); });
    loop->open("frmA", [this] { log.append("second"); });
    loop->open("frmA");
    settle();
    loop->top()->unload();
    settle();
    EXPECT_EQ(log, (QStringList{"load frmA", "first", "second"}));
}

TEST_F(ScreenLoopTest, NoScreenOpensWhileAHandlerWaits) {
    loop->open("frmA");
    {
        const platform::Waiting waiting(platform::Waiting::Input::Box);
        settle();
        EXPECT_EQ(loop->top(), nullptr);
        loop->open("frmB");
        settle();
        EXPECT_EQ(log, QStringList());
    }
    settle();
    EXPECT_EQ(log, (QStringList{"load frmA", "load frmB"}));
}

TEST_F(ScreenLoopTest, TheKeyboardStartsOnTheFormSoThatSpaceEndsNothing) {
    core::Screen* a = open("frmA");
    ASSERT_TRUE(waitFor([&] { return a->isActiveWindow(); }));
    EXPECT_EQ(QApplication::focusWidget(), a);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_FALSE(loop->ended());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(support::focusName(a), "picExit") << "by keyboard it is reached on purpose";
    core::Screen* b = open("frmB");
    b->unload();
    settle();
    EXPECT_FALSE(loop->ended());
}

TEST_F(ScreenLoopTest, AScreenThatCannotLoadEndsInTheOnePlaceForFailures) {
    loop->open("frmBroken");
    settle();
    EXPECT_TRUE(desk.failure().contains("no picture"));
}

TEST_F(ScreenLoopTest, AfterTheEndNothingOpensAnyMore) {
    core::Screen* a = open("frmA");
    loop->open("frmB");
    static_cast<BareScreen*>(a)->endProgram();
    settle();
    EXPECT_TRUE(loop->ended());
    EXPECT_EQ(top(), "frmA");
}

TEST_F(ScreenLoopTest, ClosingTheWindowOfAScreenEndsTheProgram) {
    open("frmA")->close();
    EXPECT_TRUE(loop->ended());
}

TEST_F(ScreenLoopTest, TenThousandStepsUseNoMoreStackThanOne) {
    constexpr int steps = 10000;
    int opened = 0;
    quintptr lowest = ~quintptr(0);
    quintptr highest = 0;
    std::size_t mostStanding = 0;
    ScreenMakers makers;
    ScreenLoop* walk = nullptr;
    makers.insert("frmStep", [&](core::Context& where) {
        const char here = 0;
        lowest = std::min(lowest, reinterpret_cast<quintptr>(&here));
        highest = std::max(highest, reinterpret_cast<quintptr>(&here));
        auto* screen = new BareScreen(where, "frmStep");
        QMetaObject::invokeMethod(
            screen,
            [&, screen] {
                mostStanding = std::max(mostStanding, walk->standing().size());
                screen->unload();
                if (++opened < steps)
                    walk->open("frmStep");
            },
            Qt::QueuedConnection);
        return screen;
    });
    ScreenLoop walking(makers);
    walk = &walking;
    const core::Context& all = desk.context();
    core::Context where{all.session, all.drives, all.settings,          all.clock, all.random, all.sound,
                        all.boxes,   walking,    all.applicationFolder, all.frame};
    walking.setContext(where);
    walking.open("frmStep");
    // Waiting by condition sleeps between looks, and ten thousand screens want none of that.
    QElapsedTimer clock;
    clock.start();
    while (opened < steps && clock.elapsed() < 90000)
        settle();
    EXPECT_EQ(opened, steps);
    EXPECT_LE(highest - lowest, 64U * 1024U);
    EXPECT_EQ(mostStanding, 1U);
    settle();
    EXPECT_EQ(all.frame->findChildren<core::Screen*>().size(), 0) << "what has gone is gone from memory too";
}

TEST(Screens, EveryScreenThatTheCourseNamesHasAMaker) {
    const ScreenMakers makers = app::allScreens();
    for (const char* name : {"frmLogIn2", "frmTime", "frmTable"})
        EXPECT_TRUE(makers.contains(QLatin1String(name))) << name;
    for (const catalogue::DispatchRow& row : catalogue::dispatchRows()) {
        const bool opens =
            row.screen.empty() || makers.contains(QString::fromStdString(std::string(row.screen)));
        EXPECT_TRUE(opens) << row.screen;
    }
}

TEST(Story, FromStartUpThroughTheLogInPanelToTheTable) {
    Desk desk;
    desk.exec(support::courseStore,
              "insert into topic values(1,'명사'); insert into "
              "tablework(recordno,topicno,pageno,Type,Title,Data,wordno,useform) "
              "values(1,1,1,'Lesson','명사','',0,'frmLesson')");
    desk.settings.values["Mendori/General Information/UserID"] = "1001";
    desk.session = core::Session();
    platform::Frame frame("frmFrame");
    ASSERT_TRUE(core::StartUp(desk.context(), frame));
    core::Screen* table = desk.awaitScreen("frmTable");
    ASSERT_NE(table, nullptr) << desk.failure().toStdString();
    EXPECT_EQ(support::find<platform::Label>(table, "lblTopic2").caption(), "명사");
    EXPECT_EQ(desk.screens().standing().size(), 1U) << "the panel has gone";
    support::click(support::find(table, "picFinal"));
    EXPECT_EQ(desk.top(), nullptr);
    EXPECT_TRUE(frame.isVisible()) << "only the frame remains, and the program runs on";
    EXPECT_FALSE(desk.screens().ended());
}
