#include "platform/desktop/form.h"

#include "tests/support/desk.h"

#include <QGlyphRun>
#include <QPointer>
#include <QRawFont>
#include <QScreen>
#include <QSet>
#include <QTextLayout>

#include <gtest/gtest.h>

using platform::Form;
using platform::Frame;
using platform::TextRole;

namespace {

QRect screen() {
    return QGuiApplication::primaryScreen()->geometry();
}

}  // namespace

TEST(Form, AFormThatFitsKeepsItsDesignSizeInTheMiddleOfTheScreen) {
    Form form("frmTest", QSize(993, 718), nullptr);
    EXPECT_EQ(form.size(), QSize(993, 718));
    EXPECT_EQ(form.scale(), 1.0);
    EXPECT_LE(std::abs(form.geometry().center().x() - screen().center().x()), 1);
    EXPECT_LE(std::abs(form.geometry().center().y() - screen().center().y()), 1);
    platform::Label& label = form.addLabel("lblText", QRect(7, 11, 101, 33), TextRole::Body);
    EXPECT_EQ(label.geometry(), QRect(7, 11, 101, 33));
    EXPECT_EQ(form.objectName(), "frmTest");
    EXPECT_TRUE(form.isWindow());
}

TEST(Form, OnASmallScreenTheFormShrinksWithEverythingOnIt) {
    const QSize design(screen().width() * 2, screen().height());
    Form form("frmTest", design, nullptr);
    EXPECT_EQ(form.scale(), 0.5);
    EXPECT_EQ(form.size(), QSize(screen().width(), screen().height() / 2));
    EXPECT_TRUE(screen().contains(form.geometry()));
    platform::Label& label = form.addLabel("lblText", QRect(100, 40, 201, 61), TextRole::Title);
    EXPECT_EQ(label.geometry(), QRect(50, 20, 101, 31)) << "edges are rounded, so that neighbours still meet";
    EXPECT_EQ(label.font().pixelSize(), platform::roleFont(TextRole::Title, 0.5).pixelSize());
    EXPECT_LT(label.font().pixelSize(), platform::roleFont(TextRole::Title, 1.0).pixelSize());
    EXPECT_EQ(form.placeOf(label), QRect(100, 40, 201, 61)) << "places stay design pixels";
    form.movePlace(label, 200, 100);
    EXPECT_EQ(label.geometry().topLeft(), QPoint(100, 50));
    EXPECT_EQ(form.placeOf(label), QRect(200, 100, 201, 61));
}

TEST(Form, TextNeverShrinksBelowWhatCanBeRead) {
    EXPECT_GE(platform::roleFont(TextRole::Small, 0.1).pixelSize(), 8);
}

TEST(Form, ItsPictureFillsItAndKeepsItsFileName) {
    Form form("frmTest", QSize(200, 100), nullptr);
    QPixmap picture(20, 10);
    picture.fill(Qt::red);
    form.setBackground(picture, "quiz.jpg");
    EXPECT_EQ(form.property("picture").toString(), "quiz.jpg");
    const QImage shown = form.grab().toImage();
    EXPECT_EQ(shown.pixelColor(1, 1), QColor(Qt::red));
    EXPECT_EQ(shown.pixelColor(198, 98), QColor(Qt::red));
}

TEST(Form, AControlThatGoesWithTheKeyboardInItsHandLeavesItToTheForm) {
    Form form("frmTest", QSize(200, 100), nullptr);
    platform::TextBox& box = form.addTextBox("txtWord", QRect(0, 0, 50, 20), TextRole::Answer);
    platform::PictureButton& exit = form.addPictureButton("picExit", QRect(60, 0, 20, 20), "Exit");
    int clicks = 0;
    exit.onClick = [&] { ++clicks; };
    form.show();
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    for (const bool hides : {true, false}) {
        box.setFocus();
        ASSERT_TRUE(box.hasFocus());
        hides ? box.hide() : box.setEnabled(false);
        EXPECT_FALSE(exit.hasFocus());
        EXPECT_TRUE(form.hasFocus());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        EXPECT_EQ(clicks, 0);
        box.show();
        box.setEnabled(true);
    }
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Tab);
    EXPECT_TRUE(exit.hasFocus()) << "Tab goes on as ever";
}

TEST(Form, UnloadingTakesItOffTheScreenOnce) {
    int unloads = 0;
    QPointer<Form> form = new Form("frmTest", QSize(200, 100), nullptr);
    form->onUnload = [&] { ++unloads; };
    form->show();
    form->unload();
    form->unload();
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(form->isUnloaded());
    support::settle();
    EXPECT_TRUE(form.isNull());
    EXPECT_EQ(unloads, 1);
}

TEST(Form, AWindowManagersCloseIsAskedForAndNotObeyed) {
    int asked = 0;
    Form form("frmTest", QSize(200, 100), nullptr);
    form.onCloseRequest = [&] { ++asked; };
    form.show();
    form.close();
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(form.isVisible());
}

TEST(Frame, IsABackdropWithoutControlsThatTellsWhenItIsToBeClosed) {
    Frame frame("frmFrame");
    frame.resize(300, 200);
    const QImage shown = frame.grab().toImage();
    EXPECT_NE(shown.pixelColor(150, 0), shown.pixelColor(150, 199)) << "a ground that grows darker";
    EXPECT_TRUE(frame.findChildren<QWidget*>().isEmpty());
    int asked = 0;
    frame.onCloseRequest = [&] { ++asked; };
    frame.show();
    frame.close();
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(frame.isVisible());
}

TEST(Look, LatinAndHangulComeFromOneFamilyAndNoLetterIsMissing) {
    platform::Label label(nullptr);
    label.setFont(platform::roleFont(TextRole::Body, 1.0));
    QTextLayout layout(QStringLiteral("Unit 3 부사 뷁"), label.font());
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    QSet<QString> families;
    for (const QGlyphRun& run : layout.glyphRuns()) {
        families.insert(run.rawFont().familyName());
        EXPECT_FALSE(run.glyphIndexes().contains(0)) << "an empty box in place of a letter";
    }
    EXPECT_EQ(families.size(), 1);
}
