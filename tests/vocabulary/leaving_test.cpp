// Tab, double clicks and quick second presses on the word exercises.

#include "tests/support/pressing.h"
#include "tests/vocabulary/word_desk.h"

using support::find;
using support::Hand;

namespace {

class WordScreen : public ::testing::TestWithParam<const char*> {
   protected:
    WordDesk desk{manyWords(4)};
    Hand hand;
    core::Screen* screen = nullptr;
    void SetUp() override {
        screen = desk.open(QString::fromUtf8(GetParam()));
        ASSERT_NE(screen, nullptr) << desk.failure().toStdString();
    }
};

/// The second half of a double click, on the screen that has come.
void clickAgainOn(WordDesk& desk, Hand& hand, const char* screen, QPoint place) {
    ASSERT_NE(desk.awaitScreen(QString::fromUtf8(screen)), nullptr) << desk.failure().toStdString();
    hand.clickAgain(*desk.top(), place);
    support::settle();
    EXPECT_EQ(desk.failure(), QString());
    EXPECT_FALSE(desk.screens().ended());
    ASSERT_NE(desk.top(), nullptr);
    EXPECT_EQ(desk.top()->objectName(), QString::fromUtf8(screen));
}

}  // namespace

TEST_P(WordScreen, TabComesToTheWaysOutLast) {
    support::expectWaysOutLast(*screen);
    if (auto* begin = screen->findChild<platform::PictureButton*>(QStringLiteral("picBegin"))) {
        support::click(*begin);
        support::expectWaysOutLast(*screen);
    }
}

TEST_P(WordScreen, ADoubleClickOnBackToTheTablePressesNothingThere) {
    const QPoint place = Hand::middleOf(find(screen, QStringLiteral("picTable")));
    hand.click(*screen, place);
    clickAgainOn(desk, hand, "frmTable", place);
}

TEST_P(WordScreen, AfterItHasLeftNoPressReachesItsHandlers) {
    const QList<QWidget*> controls = screen->findChildren<QWidget*>();
    QTest::mouseClick(&find(screen, QStringLiteral("picTable")), Qt::LeftButton);
    ASSERT_TRUE(screen->isUnloaded());
    for (QWidget* control : controls) {
        QTest::mouseClick(control, Qt::LeftButton);
        if (auto* button = qobject_cast<QAbstractButton*>(control))
            button->click();
    }
    EXPECT_EQ(desk.failure(), QString());
    EXPECT_FALSE(desk.screens().ended());
    EXPECT_NE(desk.awaitScreen(QStringLiteral("frmTable")), nullptr);
    EXPECT_EQ(desk.screens().standing().size(), 1U);
    EXPECT_TRUE(desk.boxes.shown.empty());
}

INSTANTIATE_TEST_SUITE_P(Words, WordScreen, ::testing::Values("frmVoca2", "frmVoca3", "frmVoca4"),
                         [](const auto& name) { return std::string(name.param); });

TEST(WordScreens, ADoubleClickOnNextSkipsNoScreen) {
    WordDesk desk(manyWords(4));
    Hand hand;
    core::Screen* coach = desk.open(QStringLiteral("frmVoca2"));
    ASSERT_NE(coach, nullptr);
    const QPoint place = Hand::middleOf(find(coach, QStringLiteral("picNext")));
    hand.click(*coach, place);
    clickAgainOn(desk, hand, "frmVoca3", place);
    hand.click(*desk.top(), place);
    EXPECT_NE(desk.awaitScreen(QStringLiteral("frmVoca4")), nullptr) << "a press of its own goes on";
}

TEST(SpellingCoachDoubleClick, OnTheCheckAnswersOneWord) {
    WordDesk desk(manyWords(2));
    core::Screen* screen = desk.open(QStringLiteral("frmVoca2"));
    ASSERT_NE(screen, nullptr) << desk.failure().toStdString();
    support::settle();
    auto& entry = find<platform::TextBox>(screen, QStringLiteral("txtWord"));
    entry.setFocus();
    spell(screen, manyWords(2).front().first.c_str());
    Hand hand;
    hand.clickTwice(find<QWidget>(screen, QStringLiteral("cmdAnswer")));
    EXPECT_EQ(label(screen, "lblNow").caption(), QStringLiteral("1"));
    EXPECT_TRUE(desk.boxes.shown.empty());
}
