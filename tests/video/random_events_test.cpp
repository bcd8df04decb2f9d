#include "tests/video/video_desk.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using namespace support;

void sendRandomEvent(QWidget& form, std::mt19937& draw) {
    constexpr std::array keys{Qt::Key_Tab, Qt::Key_Space,    Qt::Key_Return,
                              Qt::Key_Up,  Qt::Key_PageDown, Qt::Key_Q};
    const QPoint place(static_cast<int>(draw() % 993), static_cast<int>(draw() % 718));
    QWidget* under = form.childAt(place);
    QWidget* aim = form.focusWidget() != nullptr ? form.focusWidget() : &form;
    switch (draw() % 3) {
        case 0: QTest::keyClick(aim, keys[draw() % keys.size()]); break;
        case 1:
            if (under != nullptr)
                QTest::mouseClick(under, Qt::LeftButton, {}, under->mapFrom(&form, place));
            break;
        default: hover(under != nullptr ? *under : form);
    }
}

/// Keeps a screen and whatever it opens busy; ends what ends.
void fuzz(VideoDesk& desk, const QString& screen, unsigned seed) {
    std::mt19937 draw(seed);
    const core::Int16 recordNo = desk.session.recordNo;
    for (int i = 0; i < 300 && desk.failure().isEmpty() && !desk.screens().ended(); ++i) {
        if (desk.top() == nullptr)
            desk.open(screen);
        if (core::Screen* top = desk.top()) {
            sendRandomEvent(*top, draw);
            if (top->objectName() == QStringLiteral("frmVideo2") && draw() % 4 == 0)
                QTest::keyClick(top, Qt::Key_Escape);
        }
        settle();
    }
    EXPECT_EQ(desk.failure(), QString()) << "seed " << seed;
    // Looking at videos earns nothing, moves no step and leaves no heap of screens.
    EXPECT_EQ(desk.rows(scoreStore, "select * from score"), QStringList()) << "seed " << seed;
    EXPECT_EQ(desk.session.recordNo, recordNo) << "seed " << seed;
    EXPECT_LE(desk.screens().standing().size(), 2U) << "seed " << seed;
}

TEST(VideoScreens, RandomEventsOnTheMenuDoNoHarm) {
    for (const unsigned seed : {11U, 12U}) {
        VideoDesk desk;
        desk.makeVideo(3, 1.0);
        fuzz(desk, QStringLiteral("frmVideo"), seed);
    }
}

TEST(VideoScreens, RandomEventsOnTheStepsVideoDoNoHarm) {
    for (const unsigned seed : {21U, 22U}) {
        VideoDesk desk;
        desk.session.recordNo = 21;
        desk.makeVideo(3, 1.0);
        fuzz(desk, QStringLiteral("frmVideo_2014"), seed);
    }
}

}  // namespace
