#include "lessons/box_keys.h"

#include <QTest>

#include <gtest/gtest.h>

using lessons::boxByKey;
namespace key = platform::key;

namespace {

constexpr int count = 10;
constexpr int last = count - 1;

struct BoxKeys : ::testing::Test {
    platform::TextBox box{nullptr};

    /// Where a key leads from a box that holds "abc" with the caret at a place.
    int from(int index, int code, int caret = 1) {
        box.setText(QStringLiteral("abc"));
        box.setCursorPosition(caret);
        return boxByKey(box, index, count, code).value_or(-1);
    }
};

}  // namespace

TEST_F(BoxKeys, GoBackFromAnywhereInTheText) {
    for (const int code : {key::left, key::up, key::pageUp}) {
        EXPECT_EQ(from(4, code), 3) << code;
        EXPECT_EQ(from(0, code), -1) << code;
        EXPECT_EQ(from(last, code), -1) << code;
    }
}

TEST_F(BoxKeys, GoOnByDownAndPageDownFromAnywhereInTheText) {
    for (const int code : {key::down, key::pageDown}) {
        EXPECT_EQ(from(4, code), 5) << code;
        EXPECT_EQ(from(last, code), -1) << code;
    }
}

TEST_F(BoxKeys, GoOnByRightFromTheEndOfTheTextAlone) {
    EXPECT_EQ(from(4, key::right), -1);
    EXPECT_EQ(from(4, key::right, 3), 5);
    EXPECT_EQ(from(last, key::right, 3), -1);
}

TEST_F(BoxKeys, GoToTheFirstBoxByHomeFromTheStartOfTheText) {
    EXPECT_EQ(from(4, key::home), -1);
    EXPECT_EQ(from(4, key::home, 0), 0);
    EXPECT_EQ(from(last, key::home, 0), 0);
}

TEST_F(BoxKeys, NeverLeadByEndToTheLastBoxWhichTheArrowsDoNotLeave) {
    for (const int caret : {0, 1, 3})
        EXPECT_EQ(from(4, key::end, caret), -1) << caret;
    box.clear();
    EXPECT_FALSE(boxByKey(box, 4, count, key::end).has_value()) << "in an empty box either";
}

TEST_F(BoxKeys, LeaveATextThatIsSelectedWhole) {
    box.setText(QStringLiteral("abc"));
    box.selectAll();
    EXPECT_EQ(boxByKey(box, 4, count, key::right).value_or(-1), 5);
    EXPECT_EQ(boxByKey(box, 4, count, key::home).value_or(-1), 0);
}

TEST_F(BoxKeys, SelectAndDoNotMoveWhileShiftIsHeld) {
    int led = 0;
    box.onKeyDown = [&](int code) { led += boxByKey(box, 4, count, code).has_value() ? 1 : 0; };
    box.setText(QStringLiteral("abc"));
    box.setCursorPosition(3);
    QTest::keyClick(&box, Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(box.selectedText(), QStringLiteral("abc"));
    EXPECT_EQ(led, 0);
    QTest::keyClick(&box, Qt::Key_Home);
    EXPECT_EQ(led, 1);
}

TEST_F(BoxKeys, LeadNowhereWhereNoBoxIsInPlay) {
    for (const int code : {key::left, key::right, key::down, key::home, key::end})
        EXPECT_FALSE(boxByKey(box, 0, 0, code).has_value()) << code;
}

TEST_F(BoxKeys, LeaveAllOtherKeysToTheText) {
    EXPECT_EQ(from(4, key::backspace), -1);
    EXPECT_EQ(from(4, key::enter), -1);
}
