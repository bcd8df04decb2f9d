// Tab, typing and double clicks on every quiz screen.

#include "catalogue/quizzes.h"
#include "tests/quizzes/quiz_desk.h"
#include "tests/support/pressing.h"

using support::Hand;

namespace {

std::vector<QuizDesk::Question> questions(int count) {
    return std::vector<QuizDesk::Question>(static_cast<std::size_t>(count), {{"q1", "Two words"},
                                                                             {"q2", "a"},
                                                                             {"q3", "1"},
                                                                             {"q4", "c"},
                                                                             {"q5", "d"},
                                                                             {"q6", "e"},
                                                                             {"q7", "f"},
                                                                             {"a1", "a"},
                                                                             {"a2", "e"}});
}

class QuizTabs : public ::testing::TestWithParam<int> {
   protected:
    const catalogue::QuizEntry& entry = catalogue::quizEntries()[static_cast<std::size_t>(GetParam())];
    QuizDesk desk;
    core::Screen* screen = nullptr;
    void SetUp() override {
        desk.layStep(2, questions(3));
        desk.session.hasWords = QStringLiteral("YES");
        screen = desk.run(entry.form);
        ASSERT_NE(screen, nullptr) << desk.failure().toStdString();
    }
};

}  // namespace

TEST_P(QuizTabs, TheWaysOutComeLastAndTheEndOfTheProgramAtTheVeryEnd) {
    support::expectWaysOutLast(*screen);
}

TEST_P(QuizTabs, TypingOnFromTheLastBoxPressesNothing) {
    platform::TextBox* last = nullptr;
    for (auto* box : screen->findChildren<platform::TextBox*>())
        if (box->isVisible())
            last = box;
    if (last == nullptr)
        return;
    support::tabAndType(*screen, *last);
    EXPECT_FALSE(desk.screens().ended());
    EXPECT_TRUE(desk.boxes.shown.empty());
    EXPECT_TRUE(desk.sound.names().isEmpty());
    EXPECT_EQ(desk.top(), screen);
}

INSTANTIATE_TEST_SUITE_P(EveryQuiz, QuizTabs, ::testing::Range(0, 12), [](const auto& one) {
    return std::string(catalogue::quizEntries()[static_cast<std::size_t>(one.param)].form);
});

namespace {

struct DoubleCase {
    const char* screen;
    const char* choice;
};

class DoubleClickedChoice : public ::testing::TestWithParam<DoubleCase> {
   protected:
    QuizDesk desk;
    Hand hand;
    core::Screen* open() {
        desk.layStep(2, questions(3));
        return desk.run(GetParam().screen);
    }
};

}  // namespace

TEST_P(DoubleClickedChoice, AnswersTheQuestionThatStoodThereAndNotTheNext) {
    core::Screen* screen = open();
    ASSERT_NE(screen, nullptr);
    QWidget& choice = part(screen, GetParam().choice);
    hand.clickTwice(choice);
    EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("2"));
    hand.click(choice);
    EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("3")) << "a press of its own counts";
}

TEST_P(DoubleClickedChoice, AQuickPressOnAnotherChoiceCounts) {
    core::Screen* screen = open();
    ASSERT_NE(screen, nullptr);
    hand.click(part(screen, GetParam().choice));
    const QString other = QString::fromUtf8(GetParam().choice).replace(u'0', u'1');
    hand.click(part(screen, qPrintable(other)), Hand::doubleClick);
    EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("3"));
}

TEST_P(DoubleClickedChoice, ABlankAfterADigitThatAnsweredIsAPress) {
    core::Screen* screen = open();
    ASSERT_NE(screen, nullptr);
    QWidget& choice = part(screen, GetParam().choice);
    choice.setFocus();
    QTest::keyClick(&choice, Qt::Key_1);
    ASSERT_EQ(caption(screen, "lblCurrent"), QStringLiteral("2"));
    QTest::keyClick(&choice, Qt::Key_Space);
    EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("3"));
}

INSTANTIATE_TEST_SUITE_P(OneAtATime, DoubleClickedChoice,
                         ::testing::Values(DoubleCase{"frmQuiz5", "cmdOne(0)"},
                                           DoubleCase{"frmQuiz7", "lblWord2(0)"},
                                           DoubleCase{"frmQuiz8", "lblWord2(0)"}),
                         [](const auto& one) { return std::string(one.param.screen); });

TEST(DoubleClick, FillsOneSlotOfAPoolAndTwoQuickPicksFillTwo) {
    for (const char* form : {"frmQuiz11", "frmQuiz12"}) {
        QuizDesk desk;
        desk.layStep(2, questions(3));
        core::Screen* screen = desk.run(form);
        ASSERT_NE(screen, nullptr) << form;
        Hand hand;
        hand.clickTwice(part(screen, "lblWord3(0)"));
        EXPECT_EQ(caption(screen, "lblWord2(0)"), QStringLiteral("a")) << form;
        EXPECT_EQ(caption(screen, "lblWord2(1)"), QString()) << form;
        hand.click(part(screen, "lblWord3(0)"));
        EXPECT_EQ(caption(screen, "lblWord2(1)"), QStringLiteral("a")) << "one word may be picked twice";
        hand.click(part(screen, "lblWord3(1)"), Hand::doubleClick);
        EXPECT_EQ(caption(screen, "lblWord2(2)"), QStringLiteral("a")) << form;
    }
}

TEST(DoubleClick, OnBeginDoesNotPressTheAnswerThatTakesItsPlace) {
    QuizDesk desk;
    desk.layStep(2, questions(3));
    core::Screen* screen = desk.run("frmQuiz");
    ASSERT_NE(screen, nullptr);
    press(screen, "picQuiz");
    ASSERT_TRUE(visible(screen, "picBegin"));
    Hand hand;
    hand.clickTwice(part(screen, "picBegin"));
    EXPECT_TRUE(visible(screen, "picQuiz"));
    EXPECT_EQ(desk.boxes.shown.size(), 1U) << "nothing was checked again";
    hand.click(part(screen, "picQuiz"));
    EXPECT_EQ(desk.boxes.shown.size(), 2U);
}

TEST(DoubleClick, OnTheCheckPassesOneQuestionForATeacher) {
    for (const char* form : {"frmQuiz6", "frmQuiz10"}) {
        QuizDesk desk;
        desk.layStep(2, questions(3));
        desk.session.teacherMode = QStringLiteral("Teacher");
        core::Screen* screen = desk.run(form);
        ASSERT_NE(screen, nullptr) << form;
        Hand hand;
        hand.clickTwice(part(screen, "picQuiz"));
        EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("2")) << form;
        hand.click(part(screen, "picQuiz"));
        EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("3")) << form;
    }
}

TEST(HeldEnter, AnswersOneQuestion) {
    QuizDesk desk;
    desk.layStep(2, questions(3));
    desk.session.teacherMode = QStringLiteral("Teacher");
    core::Screen* screen = desk.run("frmQuiz6");
    ASSERT_NE(screen, nullptr);
    QTest::keyPress(&part(screen, "txtWord"), Qt::Key_Return);
    ASSERT_EQ(caption(screen, "lblCurrent"), QStringLiteral("2"));
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
    QCoreApplication::sendEvent(&part(screen, "txtWord"), &again);
    EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("2"));
    pressEnter(screen, "txtWord");
    EXPECT_EQ(caption(screen, "lblCurrent"), QStringLiteral("3"));
}
