#pragma once

#include "tests/support/desk.h"

#include <gtest/gtest.h>

#include <QMouseEvent>

namespace support {

/// A hand on the mouse whose presses have the times of a real one, which the clicks of the toolkit's own test
/// library keep apart.
class Hand {
   public:
    static constexpr int doubleClick = 150;  // milliseconds between the halves
    static constexpr int later = 2000;

    /// A press of the left button at a place of the screen, for the control that stands there on a form.
    void click(QWidget& form, QPoint globalPlace, int millisecondsAfter = later,
               QEvent::Type press = QEvent::MouseButtonPress) {
        time_ += static_cast<quint64>(millisecondsAfter);
        QWidget* under = form.childAt(form.mapFromGlobal(globalPlace));
        QPointer<QWidget> target = under == nullptr ? &form : under;
        send(target, globalPlace, press, Qt::LeftButton);
        if (target != nullptr)
            send(target, globalPlace, QEvent::MouseButtonRelease, Qt::NoButton);
    }
    void click(QWidget& control, int millisecondsAfter = later) {
        click(*control.window(), middleOf(control), millisecondsAfter);
    }
    /// The second press of a double click, on whatever control stands there on a form.
    void clickAgain(QWidget& form, QPoint globalPlace, int millisecondsAfter = doubleClick) {
        click(form, globalPlace, millisecondsAfter, QEvent::MouseButtonDblClick);
    }
    /// Both halves on a form that stays.
    void clickTwice(QWidget& control) {
        QWidget& form = *control.window();
        const QPoint place = middleOf(control);
        click(form, place);
        settle();
        clickAgain(form, place);
        settle();
    }

    static QPoint middleOf(const QWidget& control) { return control.mapToGlobal(control.rect().center()); }

   private:
    static void send(QWidget* target, QPoint place, QEvent::Type type, Qt::MouseButtons held) {
        QMouseEvent event(type, target->mapFromGlobal(place), place, Qt::LeftButton, held, Qt::NoModifier);
        event.setTimestamp(time_);
        QCoreApplication::sendEvent(target, &event);
    }

    // One clock for all hands: time never goes back.
    static inline quint64 time_ = 1000000;
};

/// The names of the controls that Tab reaches on a form, in its order, pressed until it comes round.
inline QStringList tabStops(core::Screen& form) {
    QStringList stops;
    form.setFocus();
    for (int i = 0; i < 300; ++i) {
        QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
        const QString name = form.focusWidget()->objectName();
        if (stops.contains(name))
            break;
        stops.append(name);
    }
    return stops;
}

/// Where a control belongs in the order of Tab: answers, what checks them, Begin, a list beside the answers,
/// then the ways out.
inline int tabRank(const QString& name) {
    static const std::vector<QStringList> ranks{
        {QStringLiteral("picQuiz"), QStringLiteral("picRight"), QStringLiteral("cmdReset"),
         QStringLiteral("cmdAnswer"), QStringLiteral("cmdPractice"), QStringLiteral("picUp"),
         QStringLiteral("picUp2"), QStringLiteral("picUp3")},
        {QStringLiteral("picBegin")},
        {QStringLiteral("ComBo1")},
        {QStringLiteral("picNext")},
        {QStringLiteral("picPre")},
        {QStringLiteral("picTable")},
        {QStringLiteral("picExit")}};
    for (std::size_t i = 0; i < ranks.size(); ++i)
        if (ranks[i].contains(name))
            return static_cast<int>(i) + 1;
    return 0;
}

inline void expectWaysOutLast(core::Screen& form) {
    const QStringList stops = tabStops(form);
    ASSERT_FALSE(stops.isEmpty());
    EXPECT_EQ(stops.last(), QStringLiteral("picExit"));
    for (qsizetype i = 1; i < stops.size(); ++i)
        EXPECT_LE(tabRank(stops[i - 1]), tabRank(stops[i]))
            << form.objectName().toStdString() << ": " << stops.join(u' ').toStdString();
}

/// Types an answer of two words where Tab leads to from a box, as a learner does who thinks to be in the next
/// box.
inline void tabAndType(core::Screen& form, QWidget& box) {
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Tab);
    for (const char letter : {'n', 'e', 'x', 't', ' ', 't', 'o'})
        QTest::keyClick(form.focusWidget(), letter);
}

}  // namespace support
