#include "platform/desktop/message_box.h"

#include "tests/support/desk.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include <gtest/gtest.h>

using platform::DesktopBoxes;

namespace {

struct Seen {
    QString text;
    QString title;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    Qt::TextFormat format = Qt::AutoText;
    QMessageBox::StandardButtons buttons;
    QString shownText;
    QString advice;
};

/// Answers the next box with a real click once it stands, and tells what it looked like.
Seen answer(QMessageBox::StandardButton button, const std::function<void()>& show) {
    Seen seen;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr || !box->isVisible())
            return;
        poll.stop();
        seen = {box->text(), box->windowTitle(),    box->icon(), box->textFormat(), box->standardButtons(),
                {},          box->informativeText()};
        if (const auto* label = box->findChild<QLabel*>("qt_msgbox_label"))
            seen.shownText = label->text();
        QTest::mouseClick(box->button(button), Qt::LeftButton);
    });
    poll.start(1);
    show();
    return seen;
}

}  // namespace

TEST(DesktopBoxes, ANoticeIsARealWindowWithItsIconAndTheDefaultTitle) {
    DesktopBoxes boxes;
    const Seen seen = answer(QMessageBox::Ok, [&] { boxes.notice("끝났습니다.\n\nDone"); });
    EXPECT_EQ(seen.text, "끝났습니다.\n\nDone");
    EXPECT_EQ(seen.icon, QMessageBox::Information);
    EXPECT_EQ(seen.title, platform::defaultBoxTitle());
    EXPECT_EQ(seen.buttons, QMessageBox::Ok);
}

TEST(DesktopBoxes, NamesInAngleBracketsStayPlainText) {
    DesktopBoxes boxes;
    const Seen seen = answer(QMessageBox::Ok, [&] { boxes.plain("먼저 <Begin>을 클릭하십시오."); });
    EXPECT_EQ(seen.format, Qt::PlainText);
    EXPECT_EQ(seen.shownText, "먼저 <Begin>을 클릭하십시오.");
    EXPECT_EQ(seen.icon, QMessageBox::NoIcon);
}

TEST(DesktopBoxes, AQuestionGivesTheLearnersAnswer) {
    DesktopBoxes boxes;
    for (const bool yes : {true, false}) {
        bool answered = !yes;
        const Seen seen = answer(yes ? QMessageBox::Yes : QMessageBox::No,
                                 [&] { answered = boxes.ask("다음?", "Tovalin"); });
        EXPECT_EQ(answered, yes);
        EXPECT_EQ(seen.icon, QMessageBox::Question);
        EXPECT_EQ(seen.title, "Tovalin");
        EXPECT_EQ(seen.buttons, QMessageBox::Yes | QMessageBox::No);
    }
}

TEST(DesktopBoxes, AQuestionIsAnsweredByItsTwoButtonsAlone) {
    DesktopBoxes boxes;
    bool stood = false;
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        QTest::keyClick(box, Qt::Key_Escape);
        QTest::keyClick(box->button(QMessageBox::Yes), Qt::Key_Escape);
        box->close();
        stood = box->isVisible();
        QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
    });
    EXPECT_TRUE(boxes.ask("다음?", "Tovalin"));
    EXPECT_TRUE(stood);
}

TEST(DesktopBoxes, EscapeClosesANotice) {
    DesktopBoxes boxes;
    QTimer::singleShot(0, [&] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
    boxes.notice("끝났습니다.");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(DesktopBoxes, AStopBoxCarriesTheStopIcon) {
    DesktopBoxes boxes;
    const Seen seen = answer(QMessageBox::Ok, [&] {
        boxes.show({"Log In Required.", platform::BoxIcon::Stop, {}, false});
    });
    EXPECT_EQ(seen.icon, QMessageBox::Critical);
}

TEST(DesktopBoxes, HandTheKeyboardBackToTheWindowThatAsked) {
    QLineEdit window;
    window.show();
    window.activateWindow();
    ASSERT_TRUE(support::waitFor([&] { return window.isActiveWindow(); }));
    DesktopBoxes boxes;
    answer(QMessageBox::Ok, [&] { boxes.notice("끝났습니다."); });
    EXPECT_TRUE(support::waitFor([&] { return window.hasFocus(); }));
}

TEST(DesktopBoxes, WhatCanBeTriedAgainAsksForItAndTellsWhatToDo) {
    DesktopBoxes boxes;
    for (const auto button : {QMessageBox::Retry, QMessageBox::Cancel}) {
        bool again = false;
        const Seen seen =
            answer(button, [&] { again = boxes.askAgain("저장하지 못했습니다.", "Close the other one."); });
        EXPECT_EQ(again, button == QMessageBox::Retry);
        EXPECT_EQ(seen.text, "저장하지 못했습니다.");
        EXPECT_EQ(seen.advice, "Close the other one.");
        EXPECT_EQ(seen.icon, QMessageBox::Critical);
        EXPECT_EQ(seen.buttons, QMessageBox::Retry | QMessageBox::Cancel);
    }
}

TEST(DesktopBoxes, AdviceStandsBesideTheTextAndLeavesItAsItIs) {
    DesktopBoxes boxes;
    const Seen seen = answer(QMessageBox::Ok, [&] {
        boxes.show({"Please Insert USB Drive", platform::BoxIcon::Stop, {}, false, "Run <setup>."});
    });
    EXPECT_EQ(seen.text, "Please Insert USB Drive");
    EXPECT_EQ(seen.shownText, "Please Insert USB Drive");
    EXPECT_EQ(seen.advice, "Run <setup>.");
}
