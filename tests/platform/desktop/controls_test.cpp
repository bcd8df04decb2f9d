#include "platform/desktop/controls.h"

#include "platform/desktop/form.h"
#include "tests/support/desk.h"

#include <QInputMethodEvent>
#include <QScrollBar>
#include <QtMath>

#include <gtest/gtest.h>

using platform::Form;
using platform::TextRole;

namespace {

/// A form with a little of everything, on view.
class ControlsTest : public testing::Test {
   protected:
    Form form{QStringLiteral("frmTest"), QSize(400, 300), nullptr};
    platform::Label& label = form.addLabel("lblText", QRect(10, 10, 100, 30), TextRole::Body, "plain");
    platform::TextBox& box = form.addTextBox("txtWord", QRect(10, 60, 100, 30), TextRole::Answer);
    platform::PictureButton& picture = form.addPictureButton("picNext", QRect(10, 110, 60, 40), "Next");
    platform::CommandButton& button = form.addButton("cmdGo", QRect(10, 170, 60, 30), "Go");
    int clicks = 0;

    void SetUp() override {
        form.show();
        form.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }
    void countClicks() {
        label.onClick = picture.onClick = button.onClick = box.onClick = [this] { ++clicks; };
    }
    static void drag(QWidget& control, QPoint to) {
        QTest::mousePress(&control, Qt::LeftButton, Qt::NoModifier, control.rect().center());
        QTest::mouseRelease(&control, Qt::LeftButton, Qt::NoModifier, to);
    }
    static void commit(QWidget& control, const char* text) {
        QInputMethodEvent event;
        event.setCommitString(QString::fromUtf8(text));
        QCoreApplication::sendEvent(&control, &event);
    }
    static void press(QWidget& control, int key, const char* text) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString::fromUtf8(text));
        QCoreApplication::sendEvent(&control, &event);
    }
    bool showsAccent(QWidget& control) const {
        const QImage image = control.grab().toImage();
        int found = 0;
        for (int x = 0; x < image.width(); ++x)
            for (const int y : {1, 2})
                found += image.pixel(x, y) == platform::colour::accent ? 1 : 0;
        return found > image.width() / 2;
    }
};

}  // namespace

TEST_F(ControlsTest, ALabelIsClickedWhereTheButtonIsPressedAndReleasedInside) {
    countClicks();
    QTest::mouseClick(&label, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
    QTest::mouseClick(&label, Qt::RightButton);
    drag(label, QPoint(300, 300));
    EXPECT_EQ(clicks, 1);
}

TEST_F(ControlsTest, ALabelThatTakesTheFocusIsClickedByKeyboard) {
    countClicks();
    label.setFocusPolicy(Qt::TabFocus);
    label.setFocus();
    for (const int key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_A})
        QTest::keyClick(&label, static_cast<Qt::Key>(key));
    EXPECT_EQ(clicks, 3);
}

TEST_F(ControlsTest, ALabelTellsMovesOfTheMouseAndItsTextToScreenReaders) {
    int moves = 0;
    label.onMouseMove = [&] { ++moves; };
    support::hover(label);
    EXPECT_EQ(moves, 1);
    label.setFocusPolicy(Qt::TabFocus);
    label.setCaption("부사 3 Quiz");
    EXPECT_EQ(label.accessibleName(), "부사 3 Quiz");
}

TEST_F(ControlsTest, ALabelShowsMarkupAsThePlainTextItIs) {
    label.setCaption("<Begin>을 클릭");
    EXPECT_EQ(label.caption(), "<Begin>을 클릭");
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
}

TEST_F(ControlsTest, WhatHasTheFocusShowsAMark) {
    label.setFocusPolicy(Qt::TabFocus);
    for (QWidget* control : {static_cast<QWidget*>(&label), static_cast<QWidget*>(&picture)}) {
        EXPECT_FALSE(showsAccent(*control)) << control->objectName().toStdString();
        control->setFocus(Qt::TabFocusReason);
        EXPECT_TRUE(showsAccent(*control)) << control->objectName().toStdString();
    }
}

TEST_F(ControlsTest, APictureIsPressedByMouseAndBySpaceAndKeepsItsFileName) {
    countClicks();
    QPixmap pixmap(10, 10);
    pixmap.fill(Qt::red);
    picture.setPicture(pixmap, "next1.jpg");
    EXPECT_EQ(picture.property("picture").toString(), "next1.jpg");
    EXPECT_EQ(picture.grab().toImage().pixelColor(30, 20), QColor(Qt::red));
    support::click(picture);
    picture.setFocus();
    QTest::keyClick(&picture, Qt::Key_Space);
    EXPECT_EQ(clicks, 2);
    drag(picture, QPoint(300, 300));
    EXPECT_EQ(clicks, 2);
}

TEST_F(ControlsTest, APictureTellsThatTheMouseCameAndMoved) {
    int moves = 0;
    picture.onMouseMove = [&] { ++moves; };
    QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QCoreApplication::sendEvent(&picture, &enter);
    EXPECT_EQ(moves, 1);
    support::hover(picture);
    EXPECT_EQ(moves, 2);
}

TEST_F(ControlsTest, MovesOverAControlNeverReachTheForm) {
    int moves = 0;
    form.onMouseMove = [&] { ++moves; };
    for (QWidget* control :
         {static_cast<QWidget*>(&label), static_cast<QWidget*>(&box), static_cast<QWidget*>(&picture)})
        support::hover(*control);
    EXPECT_EQ(moves, 0);
    support::hover(form);
    EXPECT_EQ(moves, 1);
}

TEST_F(ControlsTest, ABoxTellsItsKeysChangesAndClicks) {
    countClicks();
    std::vector<int> keys;
    int changes = 0;
    box.onKeyDown = [&](int code) { keys.push_back(code); };
    box.onChange = [&] { ++changes; };
    box.setFocus();
    support::type(box, "cat");
    for (const int key :
         {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown,
          Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End, Qt::Key_Backspace})
        QTest::keyClick(&box, static_cast<Qt::Key>(key));
    EXPECT_EQ(keys, (std::vector<int>{13, 13, 38, 40, 33, 34, 37, 39, 36, 35, 8}));
    EXPECT_EQ(changes, 4);
    EXPECT_EQ(box.text(), "ca");
    EXPECT_EQ(support::focusName(&form), "txtWord") << "keys never move the focus by themselves";
    support::click(box);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ControlsTest, ALockedBoxTakesTheFocusAndNoTyping) {
    box.setText("apple");
    box.setLocked(true);
    box.setFocus();
    support::type(box, "x");
    press(box, Qt::Key_unknown, "ㅁ");
    commit(box, "메");
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(box.text(), "apple");
    EXPECT_EQ(support::focusName(&form), "txtWord");
    box.setLocked(false);
    support::type(box, "s");
    EXPECT_EQ(box.text(), "apples");
}

TEST_F(ControlsTest, ABoxTakesLatinLettersWhateverTheKeyboardMode) {
    box.setFocus();
    for (const char* jamo : {"ㅊ", "ㅁ", "ㅅ"})
        press(box, Qt::Key_unknown, jamo);
    EXPECT_EQ(box.text(), "cat");
    box.clear();
    commit(box, "챗");
    EXPECT_EQ(box.text(), "cot");
    QInputMethodEvent unfinished(QStringLiteral("ㅁ"), {});
    QCoreApplication::sendEvent(&box, &unfinished);
    EXPECT_EQ(box.displayText(), "cot") << "letters still being composed are not shown";
}

TEST_F(ControlsTest, ABoxNeverAsksForComposedLetters) {
    EXPECT_FALSE(box.testAttribute(Qt::WA_InputMethodEnabled));
    box.setLocked(true);
    box.setLocked(false);
    EXPECT_FALSE(box.testAttribute(Qt::WA_InputMethodEnabled));
}

TEST_F(ControlsTest, ABoxTakesNoMoreLettersThanItHolds) {
    box.setMaxLength(1);
    commit(box, "챗");
    EXPECT_EQ(box.text(), "c");
}

TEST_F(ControlsTest, SelectingABoxLetsTypingReplaceItsText) {
    box.setText("wrong");
    box.selectAndFocus();
    support::type(box, "ok");
    EXPECT_EQ(box.text(), "ok");
}

TEST_F(ControlsTest, ColoursCanBeReadBack) {
    label.setForeColor(platform::colour::red);
    box.setForeColor(platform::colour::red);
    box.setBackColor(platform::colour::paleCyan);
    EXPECT_EQ(label.foreColor(), platform::colour::red);
    EXPECT_EQ(box.foreColor(), platform::colour::red);
    EXPECT_EQ(box.backColor(), platform::colour::paleCyan);
}

TEST_F(ControlsTest, ABoxTellsItsMarkToScreenReaders) {
    box.setMark(platform::BoxMark::Wrong);
    EXPECT_EQ(box.mark(), platform::BoxMark::Wrong);
    EXPECT_FALSE(box.accessibleDescription().isEmpty());
    box.setMark(platform::BoxMark::None);
    EXPECT_TRUE(box.accessibleDescription().isEmpty());
}

TEST_F(ControlsTest, AButtonIsPressed) {
    countClicks();
    support::click(button);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(button.accessibleName(), "Go");
}

TEST(StoryBox, EndsWhereALineEnds) {
    for (const int height : {174, 206, 222, 300}) {
        Form form("frmTest", QSize(400, 300), nullptr);
        platform::StoryBox& story = form.addStoryBox("txtStory", QRect(0, 0, 300, height));
        story.setText(QString(QStringLiteral("line\n")).repeated(60));
        form.show();
        const int line = qCeil(QFontMetricsF(story.font()).height());
        const int room = story.viewport()->height() - qRound(story.document()->documentMargin());
        EXPECT_EQ(room % line, 0) << height;
        EXPECT_GT(room, height - 2 * line) << height;
    }
}

TEST(StoryBox, IsScrolledByTheHandleOfItsBar) {
    Form form("frmTest", QSize(400, 300), nullptr);
    platform::StoryBox& story = form.addStoryBox("txtStory", QRect(0, 0, 300, 200));
    story.setText(QString(QStringLiteral("line\n")).repeated(60));
    form.show();
    QScrollBar* bar = story.verticalScrollBar();
    ASSERT_TRUE(bar->isVisible());
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, QPoint(bar->width() / 2, bar->height() - 4));
    const int page = bar->value();
    EXPECT_GT(page, 0) << "a click below the handle turns a page";
    QTest::mousePress(bar, Qt::LeftButton, Qt::NoModifier,
                      QPoint(bar->width() / 2, bar->height() * page / 60 + 10));
    QTest::mouseMove(bar, QPoint(bar->width() / 2, bar->height() * 2));
    QTest::mouseRelease(bar, Qt::LeftButton, Qt::NoModifier, QPoint(bar->width() / 2, bar->height() * 2));
    EXPECT_EQ(bar->value(), bar->maximum());
}

TEST(KeyCode, KeysWithoutACodeHereGiveZero) {
    EXPECT_EQ(platform::keyCode(Qt::Key_A), 0);
    EXPECT_EQ(platform::keyCode(Qt::Key_Tab), 0);
}

TEST(ControlArray, MembersCarryTheirIndexAndOthersAreOutOfRange) {
    Form form("frmTest", QSize(100, 100), nullptr);
    platform::ControlArray<platform::Label> labels("lblRow");
    form.addLabel(labels, QRect(0, 0, 10, 10), TextRole::Body);
    form.addLabel(labels, QRect(0, 20, 10, 10), TextRole::Body);
    EXPECT_EQ(labels.size(), 2);
    EXPECT_EQ(labels(1).objectName(), "lblRow(1)");
    EXPECT_EQ(form.findChild<platform::Label*>("lblRow(0)"), &labels(0));
    for (const int index : {-1, 2})
        try {
            labels(index);
            FAIL() << "there is no member " << index;
        } catch (const platform::RuntimeError& error) {
            EXPECT_EQ(error.number(), 9);
            EXPECT_TRUE(error.sentence().contains(QStringLiteral("lblRow(%1)").arg(index)));
        }
}
