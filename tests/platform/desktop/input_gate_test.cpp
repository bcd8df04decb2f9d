#include "platform/desktop/input_gate.h"

#include "platform/desktop/form.h"
#include "platform/desktop/timer.h"
#include "tests/support/pressing.h"

#include <QDialog>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QStyleHints>

using platform::Form;
using platform::TextRole;
using support::Hand;

namespace {

/// Two buttons at one place of which one is shown, and two that stand side by side.
class InputGateTest : public testing::Test {
   protected:
    Form form{QStringLiteral("frmTest"), QSize(400, 300), nullptr};
    platform::PictureButton& begin = form.addPictureButton("picBegin", QRect(10, 10, 80, 40), "Begin");
    platform::PictureButton& quiz = form.addPictureButton("picQuiz", QRect(10, 10, 80, 40), "Answer");
    platform::Label& choice = form.addLabel("lblWord2(0)", QRect(10, 100, 80, 30), TextRole::Body, "is");
    platform::Label& other = form.addLabel("lblWord2(1)", QRect(90, 100, 80, 30), TextRole::Body, "are");
    platform::TextBox& box = form.addTextBox("txtWord", QRect(10, 200, 80, 30), TextRole::Answer);
    Hand hand;
    QStringList pressed;

    InputGateTest() {
        quiz.hide();
        for (platform::PictureButton* button : {&begin, &quiz})
            button->onClick = [this, button] { pressed.append(button->objectName()); };
        for (platform::Label* label : {&choice, &other}) {
            label->setFocusPolicy(Qt::TabFocus);
            label->onClick = [this, label] { pressed.append(label->caption()); };
        }
        form.show();
    }
    void swapOnBegin() {
        begin.onClick = [this] {
            pressed.append("picBegin");
            begin.hide();
            quiz.show();
        };
    }
};

}  // namespace

TEST_F(InputGateTest, ADoubleClickDoesNotPressTheButtonThatTookTheFirstOnesPlace) {
    swapOnBegin();
    hand.clickTwice(begin);
    EXPECT_EQ(pressed, QStringList{"picBegin"});
    hand.click(quiz);
    EXPECT_EQ(pressed, (QStringList{"picBegin", "picQuiz"})) << "a press of its own counts";
}

TEST_F(InputGateTest, ASecondPressThatComesTooSlowlyForADoubleClickCounts) {
    swapOnBegin();
    const int interval = QGuiApplication::styleHints()->mouseDoubleClickInterval();
    hand.click(begin);
    hand.click(quiz, interval - 1);
    EXPECT_EQ(pressed, QStringList{"picBegin"});
    hand.click(quiz, 1);
    EXPECT_EQ(pressed, (QStringList{"picBegin", "picQuiz"}))
        << "time runs from the press that changed things";
}

TEST_F(InputGateTest, ClicksOfAProgramCountHoweverQuickTheyCome) {
    swapOnBegin();
    QTest::mouseClick(&begin, Qt::LeftButton);
    QTest::mouseClick(&quiz, Qt::LeftButton);
    EXPECT_EQ(pressed, (QStringList{"picBegin", "picQuiz"}));
}

TEST_F(InputGateTest, BothHalvesCountOnAControlThatStandsUnchanged) {
    hand.clickTwice(begin);
    hand.clickTwice(choice);
    EXPECT_EQ(pressed, (QStringList{"picBegin", "picBegin", "is", "is"}));
}

TEST_F(InputGateTest, QuickPressesOnTwoUnchangedControlsBothCount) {
    hand.click(choice);
    hand.click(other, Hand::doubleClick);
    EXPECT_EQ(pressed, (QStringList{"is", "are"}));
    pressed.clear();
    const QPoint edge = choice.mapToGlobal(choice.rect().topRight() + QPoint(-1, 15));
    hand.click(form, edge);
    hand.click(form, edge + QPoint(3, 0), Hand::doubleClick);
    EXPECT_EQ(pressed, (QStringList{"is", "are"})) << "also where they touch";
}

TEST_F(InputGateTest, QuickPressesElsewhereCountThoughTheFirstChangedTheScreen) {
    swapOnBegin();
    hand.click(begin);
    hand.click(choice, Hand::doubleClick);
    EXPECT_EQ(pressed, (QStringList{"picBegin", "is"}));
}

TEST_F(InputGateTest, ADoubleClickDoesNotAnswerTheNextQuestion) {
    choice.onClick = [this] {
        pressed.append(choice.caption());
        choice.setCaption("was");
    };
    hand.clickTwice(choice);
    EXPECT_EQ(pressed, QStringList{"is"});
    other.onClick = [this] {
        pressed.append("same words");
        platform::noteChange(other);
    };
    hand.clickTwice(other);
    EXPECT_EQ(pressed, (QStringList{"is", "same words"}));
}

TEST_F(InputGateTest, ADoubleClickThatCarriesNoTimesIsToldByItsKind) {
    swapOnBegin();
    const auto send = [&](QWidget& target, QEvent::Type type) {
        const QPoint place = target.rect().center();
        QMouseEvent press(type, place, target.mapToGlobal(place), Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&target, &press);
        QMouseEvent release(QEvent::MouseButtonRelease, place, target.mapToGlobal(place), Qt::LeftButton,
                            Qt::NoButton, {});
        QCoreApplication::sendEvent(&target, &release);
    };
    send(begin, QEvent::MouseButtonPress);
    send(quiz, QEvent::MouseButtonDblClick);
    EXPECT_EQ(pressed, QStringList{"picBegin"});
    send(quiz, QEvent::MouseButtonPress);
    EXPECT_EQ(pressed, (QStringList{"picBegin", "picQuiz"}));
}

TEST_F(InputGateTest, TheNextScreenNeverGetsTheSecondHalf) {
    QPointer<Form> first = new Form("frmFirst", QSize(400, 300), nullptr);
    platform::PictureButton& table = first->addPictureButton("picTable", QRect(10, 10, 80, 40), "Table");
    table.onClick = [&] { first->unload(); };
    first->show();
    const QPoint place = Hand::middleOf(table);
    form.move(first->pos());
    hand.click(*first, place);
    support::settle();
    ASSERT_TRUE(first.isNull());
    hand.clickAgain(form, place);
    EXPECT_TRUE(pressed.isEmpty());
    hand.clickAgain(form, place);
    EXPECT_TRUE(pressed.isEmpty()) << "nor a third press right after it";
    hand.click(form, place);
    EXPECT_EQ(pressed, QStringList{"picBegin"});
}

TEST_F(InputGateTest, AMessageBoxIsAnsweredByWhateverPressReachesIt) {
    hand.click(begin);
    QMessageBox message(QMessageBox::NoIcon, "Tovalin", "text", QMessageBox::Ok, &form);
    message.show();
    QWidget* ok = message.button(QMessageBox::Ok);
    message.move(message.pos() + Hand::middleOf(begin) - Hand::middleOf(*ok));
    hand.clickAgain(message, Hand::middleOf(*ok));
    EXPECT_FALSE(message.isVisible());
}

TEST_F(InputGateTest, AWindowThatIsNoScreenGetsNoSecondHalfEither) {
    QDialog preview(&form);
    QPushButton close("Close", &preview);
    close.setGeometry(10, 10, 80, 40);
    preview.resize(form.size());
    QObject::connect(&close, &QPushButton::clicked, &close, [this] { pressed.append("Close"); });
    begin.onClick = [&] { preview.show(); };
    const QPoint place = Hand::middleOf(begin);
    hand.click(form, place);
    preview.move(preview.pos() + place - Hand::middleOf(close));
    hand.clickAgain(preview, place);
    EXPECT_TRUE(pressed.isEmpty());
    hand.click(preview, place);
    EXPECT_EQ(pressed, QStringList{"Close"});
}

TEST_F(InputGateTest, APressAfterAKeyIsNoSecondHalf) {
    swapOnBegin();
    hand.click(begin);
    QTest::keyClick(&form, Qt::Key_Return);
    hand.click(quiz, Hand::doubleClick);
    EXPECT_EQ(pressed, (QStringList{"picBegin", "picQuiz"}));
}

TEST_F(InputGateTest, NothingReachesTheHandlersOfAFormThatHasLeft) {
    QPointer<Form> left = new Form("frmLeft", QSize(400, 300), nullptr);
    int told = 0;
    const auto tell = [&] { ++told; };
    platform::PictureButton& picture = left->addPictureButton("picNext", QRect(10, 10, 80, 40), "Next");
    platform::CommandButton& command = left->addButton("cmdGo", QRect(10, 60, 80, 40), "Go");
    platform::Label& label = left->addLabel("lblWord", QRect(10, 110, 80, 30), TextRole::Body, "x");
    platform::TextBox& text = left->addTextBox("txtWord", QRect(10, 150, 80, 30), TextRole::Answer);
    auto& timer = *new platform::Timer("Timer1", 1, left);
    picture.onClick = command.onClick = label.onClick = text.onClick = text.onChange = tell;
    picture.onMouseMove = label.onMouseMove = left->onMouseMove = left->onCloseRequest = tell;
    text.onKeyDown = [&](int) { tell(); };
    timer.onTick = tell;
    label.setFocusPolicy(Qt::TabFocus);
    left->show();
    timer.setEnabled(true);
    left->unload();
    for (QWidget* control : left->findChildren<QWidget*>()) {
        QTest::mouseClick(control, Qt::LeftButton);
        support::hover(*control);
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_A})
            QTest::keyClick(control, key);
    }
    support::hover(*left);
    left->close();
    picture.click();
    command.click();
    text.setText("late");
    QTest::qWait(5);
    EXPECT_EQ(told, 0);
}

TEST_F(InputGateTest, ABlankInsideATypedAnswerPressesNothing) {
    for (QWidget* control : {static_cast<QWidget*>(&begin), static_cast<QWidget*>(&choice)}) {
        control->setFocus();
        for (const char letter : {'b', 'y', ' ', 'a', ' '})
            QTest::keyClick(control, letter);
        EXPECT_TRUE(pressed.isEmpty()) << control->objectName().toStdString();
        QTest::keyClick(control, Qt::Key_Space);
        EXPECT_EQ(pressed.size(), 1) << "a blank of its own is a press";
        pressed.clear();
        QTest::keyClick(control, 'x');
        QTest::keyClick(control, Qt::Key_Right);
        QTest::keyClick(control, Qt::Key_Space);
        EXPECT_EQ(pressed.size(), 1);
        pressed.clear();
    }
}

TEST_F(InputGateTest, BlanksAreTypedIntoBoxesAsEver) {
    box.setFocus();
    for (const char letter : {'n', 'e', 'x', 't', ' ', 't', 'o'})
        QTest::keyClick(&box, letter);
    EXPECT_EQ(box.text(), "next to");
}

TEST_F(InputGateTest, LettersPickNothingFromAClosedList) {
    platform::DropList& list = form.addDropList("ComBo1", QRect(200, 10, 100, 30), "Answer List");
    list.addItems({"next to", "under"});
    list.setCurrentIndex(-1);
    list.onClick = [this] { pressed.append("picked"); };
    list.setFocus();
    for (const char letter : {'n', 'e', 'x', 't', ' ', 'u'})
        QTest::keyClick(&list, letter);
    EXPECT_TRUE(pressed.isEmpty());
    EXPECT_EQ(list.currentIndex(), -1);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(pressed, QStringList{"picked"});
}
