#include "platform/desktop/timer.h"

#include "tests/support/desk.h"

#include <gtest/gtest.h>

using platform::Timer;
using support::waitFor;

TEST(Timer, TicksOnlyWhileEnabled) {
    Timer timer("TimerGo", 1, nullptr);
    int ticks = 0;
    timer.onTick = [&] { ++ticks; };
    EXPECT_FALSE(timer.enabled());
    support::settle();
    EXPECT_EQ(ticks, 0);
    timer.setEnabled(true);
    EXPECT_TRUE(waitFor([&] { return ticks >= 3; }));
    timer.setEnabled(false);
    const int last = ticks;
    QTest::qWait(5);
    EXPECT_EQ(ticks, last);
}

TEST(Timer, ATickThatDisablesItsTimerIsTheOnlyOne) {
    Timer timer("TimerGo", 1, nullptr);
    Timer other("Timer1", 1, nullptr);
    int ticks = 0;
    int others = 0;
    timer.onTick = [&] {
        ++ticks;
        timer.setEnabled(false);
    };
    other.onTick = [&] { ++others; };
    timer.setEnabled(true);
    other.setEnabled(true);
    EXPECT_TRUE(waitFor([&] { return others >= 5; }));
    EXPECT_EQ(ticks, 1);
}

TEST(Timer, NoTickComesWhileTheHandlerOfTheOneBeforeWaits) {
    Timer timer("TimerGo", 1, nullptr);
    Timer other("Timer1", 1, nullptr);
    int depth = 0;
    int deepest = 0;
    int others = 0;
    int ticks = 0;
    other.onTick = [&] { ++others; };
    timer.onTick = [&] {
        ++ticks;
        deepest = std::max(deepest, ++depth);
        others = 0;
        waitFor([&] { return others >= 3; });
        --depth;
    };
    timer.setEnabled(true);
    other.setEnabled(true);
    EXPECT_TRUE(waitFor([&] { return ticks >= 2; }));
    EXPECT_EQ(deepest, 1);
}

TEST(Timer, CarriesItsNameAndNeedsNoHandler) {
    QObject form;
    Timer timer("Timer3", 1, &form);
    timer.setEnabled(true);
    QTest::qWait(3);
    EXPECT_EQ(form.findChild<Timer*>("Timer3"), &timer);
}
