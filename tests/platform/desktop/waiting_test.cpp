#include "platform/desktop/waiting.h"

#include "platform/desktop/form.h"
#include "platform/desktop/message_box.h"
#include "platform/desktop/timer.h"
#include "platform/media/sound.h"
#include "tests/support/assistive.h"
#include "tests/support/desk.h"
#include "tools/media/wave.h"

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include <gtest/gtest.h>

using platform::later;
using platform::Waiting;
using support::settle;
using support::waitFor;

namespace {

/// A form with one of each control, which notes whatever answers.
class WaitingTest : public testing::Test {
   protected:
    QWidget frame;
    QStringList log;
    QPointer<platform::Form> form = new platform::Form(QStringLiteral("frmLesson"), QSize(400, 300), &frame);
    platform::PictureButton& button = form->addPictureButton("picNext", QRect(0, 0, 40, 40), "Next");
    platform::CommandButton& command = form->addButton("cmdGo", QRect(50, 0, 40, 40), "Go");
    platform::Label& label = form->addLabel("lblWord", QRect(100, 0, 40, 40), platform::TextRole::Body);
    platform::TextBox& box = form->addTextBox("txtWord", QRect(150, 0, 40, 40), platform::TextRole::Body);
    platform::Timer& timer = *new platform::Timer("Timer1", 1, form);
    QTemporaryDir folder;

    WaitingTest() {
        const auto note = [this](const char* what) { return [this, what] { log.append(what); }; };
        button.onClick = note("button");
        command.onClick = note("command");
        label.onClick = note("label");
        label.setFocusPolicy(Qt::TabFocus);
        box.onClick = note("box");
        box.onChange = note("change");
        box.onKeyDown = [this](int) { log.append("key"); };
        form->onMouseMove = note("move");
        form->onCloseRequest = note("close");
        timer.onTick = note("tick");
        frame.show();
        form->show();
    }
    ~WaitingTest() override { settle(); }

    /// Whatever a learner, a screen reader or a window manager may try.
    void tryEverything() {
        for (QWidget* control : {static_cast<QWidget*>(&button), static_cast<QWidget*>(&command),
                                 static_cast<QWidget*>(&label), static_cast<QWidget*>(&box)}) {
            support::pressAssistively(*control);
            QTest::mouseClick(control, Qt::LeftButton);
            QTest::keyClick(control, Qt::Key_Space);
            QTest::keyClick(control, Qt::Key_Return);
        }
        support::hover(*form);
    }
    /// A tone of this length, spoken while `meanwhile` happens.
    void speak(double seconds, const std::function<void()>& meanwhile) const {
        tools::Wave wave{22050, {}};
        wave.samples.resize(static_cast<std::size_t>(22050 * seconds));
        const QString file = folder.filePath("word.wav");
        ASSERT_TRUE(tools::writeWave(file, wave));
        platform::DeviceSound sound;
        bool spoken = false;
        QTimer::singleShot(20, form, [&] {
            spoken = Waiting::anywhere();
            meanwhile();
        });
        sound.play(file, true);
        EXPECT_TRUE(spoken);
    }
};

}  // namespace

TEST_F(WaitingTest, WhatIsAskedForRunsInItsOrderWhenNothingWaits) {
    later(form, [this] { log.append("first"); });
    later(form, [this] { log.append("second"); });
    EXPECT_EQ(log, QStringList());
    {
        const Waiting waiting(Waiting::Input::Box);
        later(form, [this] { log.append("third"); });
        settle();
        EXPECT_EQ(log, QStringList());
    }
    later(form, [this] { log.append("fourth"); });
    EXPECT_EQ(log, QStringList());
    settle();
    EXPECT_EQ(log, (QStringList{"first", "second", "third", "fourth"}));
}

TEST_F(WaitingTest, WhatIsAskedForGoesWithTheObjectItWasAskedFor) {
    auto* gone = new QObject;
    later(gone, [this] { log.append("gone"); });
    later(form, [this] { log.append("here"); });
    delete gone;
    settle();
    EXPECT_EQ(log, QStringList{"here"});
}

TEST_F(WaitingTest, AHandlerMayPutAnotherInItsOwnPlace) {
    button.onClick = [this, kept = QString(40, u'x')] {
        button.onClick = [this] { log.append("second"); };
        log.append(kept);
    };
    support::click(button);
    support::click(button);
    EXPECT_EQ(log, (QStringList{QString(40, u'x'), "second"}));
}

TEST_F(WaitingTest, NothingAnswersWhileAWordIsSpoken) {
    timer.setEnabled(true);
    log.clear();
    speak(0.2, [&] {
        tryEverything();
        form->close();
        EXPECT_EQ(log, QStringList());
        EXPECT_EQ(box.text(), "");
    });
    EXPECT_EQ(log, QStringList());
    EXPECT_TRUE(waitFor([&] { return log.contains("close"); }))
        << "the window's close button is not forgotten";
    EXPECT_TRUE(waitFor([&] { return log.contains("tick"); }));
    timer.setEnabled(false);
    log.clear();
    support::click(button);
    EXPECT_EQ(log, QStringList{"button"});
}

TEST_F(WaitingTest, AFormThatGoesWhileAWordIsSpokenStaysInMemoryUntilItIs) {
    speak(0.1, [&] {
        form->unload();
        settle();
        EXPECT_FALSE(form.isNull());
    });
    EXPECT_FALSE(form.isNull());
    settle();
    EXPECT_TRUE(form.isNull());
}

TEST_F(WaitingTest, BehindAMessageNothingAnswersAndNoFormGoesFromMemory) {
    timer.setEnabled(true);
    form->activateWindow();
    ASSERT_TRUE(waitFor([&] { return form->isActiveWindow(); }));
    log.clear();
    QTimer::singleShot(5, &frame, [&] {
        auto* message = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(message, nullptr);
        support::pressAssistively(button);
        support::pressAssistively(command);
        form->close();
        form->unload();
        settle();
        EXPECT_EQ(log, QStringList());
        EXPECT_FALSE(form.isNull());
        message->button(QMessageBox::Yes)->click();
    });
    platform::DesktopBoxes boxes;
    EXPECT_TRUE(boxes.ask("다음?", "Tovalin"));
    EXPECT_FALSE(form.isNull()) << "the handler that asked goes on in it";
    settle();
    EXPECT_TRUE(form.isNull());
}

TEST(MessageUnderAWindowThatDies, GoesWithItAndIsANo) {
    auto* window = new QWidget;
    window->show();
    window->activateWindow();
    ASSERT_TRUE(waitFor([&] { return window->isActiveWindow(); }));
    QTimer::singleShot(5, QCoreApplication::instance(), [window] { delete window; });
    platform::DesktopBoxes boxes;
    EXPECT_FALSE(boxes.ask("다음?", "Tovalin"));
}
