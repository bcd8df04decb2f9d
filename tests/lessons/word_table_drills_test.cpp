// The drills that are rows of the catalogue and nothing else, each where it differs from its siblings.

#include "tests/lessons/drill_desk.h"

#include "course/walk.h"

#include <gtest/gtest.h>

using namespace lessons_test;
using support::courseStore;
using support::scoreStore;

namespace {

const QString fanfare = QStringLiteral("contestbegin.wav");

bool finishes(DrillDesk& desk) {
    desk.open();
    desk.fail({});
    return desk.boxes.lastText().startsWith(QStringLiteral("Good Job!  Lesson Completed!\n\n")) &&
           desk.row(scoreStore, "SELECT s4 FROM score").toDouble() == 100;
}

class WordTable : public ::testing::TestWithParam<const char*> {};

}  // namespace

TEST_P(WordTable, IsStudiedFailedTypedAgainAndDone) {
    DrillDesk desk(QString::fromUtf8(GetParam()));
    ASSERT_NE(desk.open(), nullptr) << desk.failure().toStdString();
    const int last = desk.drill().boxes - 1;
    desk.fail({0, last});
    EXPECT_EQ(desk.wrongBoxes(), (QStringList{QStringLiteral("0"), QString::number(last)}));
    EXPECT_EQ(desk.boxTexts(0, last + 1), desk.rightWords());
    EXPECT_EQ(desk.box(0).foreColor(), colour::red);
    EXPECT_EQ(desk.box(1).foreColor(), colour::black);
    EXPECT_TRUE(desk.box(1).locked());
    desk.begin();
    EXPECT_EQ(desk.focusedBox(), 0);
    EXPECT_EQ(desk.boxText(1), desk.rightWords()[1]);
    desk.key(last - 1, Qt::Key_Return);
    EXPECT_EQ(desk.focusedBox(), last);
    desk.key(last, Qt::Key_Return);
    desk.key(last, Qt::Key_Left);
    EXPECT_EQ(desk.focusedBox(), last);
    desk.answerAndCheck();
    EXPECT_EQ(desk.row(scoreStore, "SELECT s4 FROM score").toDouble(), 100);
    EXPECT_EQ(desk.failure(), QString());
}

INSTANTIATE_TEST_SUITE_P(Screens, WordTable,
                         ::testing::Values("frmLesson", "frmLesson4", "frmLesson7", "frmLesson8",
                                           "frmLesson9", "frmLesson10", "frmLesson11", "frmLesson17",
                                           "frmLesson18", "frmLesson18_2", "frmLesson24"),
                         [](const auto& screen) { return std::string(screen.param); });

TEST(RegularPastDrill, FinishesInSilenceWithTheMessageAlone) {
    DrillDesk desk(QStringLiteral("frmLesson18"));
    EXPECT_TRUE(finishes(desk));
    EXPECT_FALSE(desk.sound.names().contains(fanfare, Qt::CaseInsensitive));
}

TEST(IrregularPastDrill, FinishesInSilenceToo) {
    DrillDesk desk(QStringLiteral("frmLesson18_2"));
    EXPECT_TRUE(finishes(desk));
    EXPECT_FALSE(desk.sound.names().contains(fanfare, Qt::CaseInsensitive));
}

TEST(IrregularPastDrill, ShowsAndChecksAsManyBoxesAsTheStepHasRows) {
    DrillDesk desk(QStringLiteral("frmLesson18_2"), DrillDesk::plainRows(10));
    desk.open();
    for (int i = 0; i < 16; ++i) {
        EXPECT_EQ(desk.box(i).isEnabled(), i < 10) << i;
        EXPECT_EQ(desk.isShown(QStringLiteral("lblWord(%1)").arg(i).toUtf8().constData()), i < 10) << i;
    }
    desk.begin();
    desk.key(8, Qt::Key_Return);
    EXPECT_EQ(desk.focusedBox(), 9);
    desk.key(9, Qt::Key_Return);
    EXPECT_EQ(desk.focusedBox(), 9);
    desk.key(0, Qt::Key_End);
    EXPECT_EQ(desk.focusedBox(), 9);
    desk.answerAndCheck();
    EXPECT_EQ(desk.row(scoreStore, "SELECT s4 FROM score").toDouble(), 100);
    EXPECT_FALSE(desk.box(10).locked());
}

TEST(IrregularPastDrill, StandsEmptyWithoutRowsAndGivesFullMarksForIt) {
    DrillDesk desk(QStringLiteral("frmLesson18_2"), {});
    ASSERT_NE(desk.open(), nullptr) << desk.failure().toStdString();
    EXPECT_FALSE(desk.box(0).isEnabled());
    desk.begin();
    desk.check();
    EXPECT_EQ(desk.row(scoreStore, "SELECT s4 FROM score").toDouble(), 100);
    EXPECT_EQ(desk.failure(), QString());
}

TEST(IrregularPastDrill, GoesOnWithNoQuestionInAReview) {
    DrillDesk desk(QStringLiteral("frmLesson18_2"));
    desk.exec(courseStore,
              "INSERT INTO tablework (recordno, topicno, pageno, Type, Title, wordno, useform) VALUES "
              "(77, 1, 3, 'Quiz', 'x', 0, 'none'), (999, 1, 4, 'Quiz', 'y', 0, 'none')");
    desk.session.reviewMode = QStringLiteral("YES");
    desk.session.reviewRecordNo = 77;
    desk.open();
    desk.press("picNext");
    EXPECT_TRUE(desk.boxes.shown.empty());
    EXPECT_EQ(desk.session.recordNo, 77);
}

TEST(PronounDrill, KeepsItsPersonsWhateverTheStepAndAsksForTheFirstWord) {
    DrillDesk desk(QStringLiteral("frmLesson4"));
    desk.open();
    EXPECT_EQ(desk.caption("Label1(0)"), QStringLiteral("I"));
    EXPECT_EQ(desk.caption("Label1(12)"), QStringLiteral("it"));
    EXPECT_EQ(desk.caption("Label1(13)"), QStringLiteral("it"));
    EXPECT_EQ(desk.caption("Label1(14)"), QStringLiteral("we"));
    EXPECT_EQ(desk.caption("Label1(34)"), QStringLiteral("you and Jane"));
    EXPECT_EQ(desk.caption("Label2"), QStringLiteral("소유격"));
    EXPECT_EQ(desk.caption("Label3"), QStringLiteral("목적격"));
    EXPECT_EQ(desk.caption("Label4"), QStringLiteral("소유대명사"));
    EXPECT_EQ(desk.boxText(0), QStringLiteral("aword1"));
    EXPECT_EQ(desk.caption("lblAnswer"), QStringLiteral("Quiz"));
    desk.begin();
    desk.check();
    EXPECT_EQ(desk.boxText(0), QStringLiteral("aword1"));
    EXPECT_EQ(desk.blanks().front(), QStringLiteral("1|0|aword1|NO"));
}

TEST(PronounDrill, LeavesTheNextTextUnselectedByEnterInTheFirstPassAlone) {
    DrillDesk desk(QStringLiteral("frmLesson4"));
    desk.open();
    desk.begin();
    desk.answer(1, QStringLiteral("abc"));
    desk.box(1).deselect();
    desk.key(0, Qt::Key_Return);
    EXPECT_EQ(desk.focusedBox(), 1);
    EXPECT_FALSE(desk.box(1).hasSelectedText());
    desk.key(2, Qt::Key_Left);
    EXPECT_EQ(desk.box(1).selectedText(), QStringLiteral("abc"));
    desk.check();
    desk.begin();
    desk.answer(1, QStringLiteral("abc"));
    desk.key(0, Qt::Key_Return);
    EXPECT_EQ(desk.box(1).selectedText(), QStringLiteral("abc"));
}

TEST(PronounDrill, HidesNextInAReview) {
    DrillDesk desk(QStringLiteral("frmLesson4"));
    desk.session.reviewMode = QStringLiteral("YES");
    desk.open();
    EXPECT_FALSE(desk.isShown("picNext"));
}

TEST(ComparisonDrill, ShowsOneWordAndAsksForTheOther) {
    DrillDesk desk(QStringLiteral("frmLesson11"));
    desk.open();
    EXPECT_EQ(desk.caption("lblAnswer"), QStringLiteral("Anaswer"));
    EXPECT_EQ(desk.caption("lblWord(12)"), QStringLiteral("prompt13"));
    EXPECT_EQ(desk.boxText(0), QStringLiteral("aword1"));
    EXPECT_EQ(desk.content("word3"), QStringList(26, QStringLiteral("left over")));
    desk.begin();
    desk.check();
    EXPECT_EQ(desk.boxText(0), QStringLiteral("aword1s"));
}

TEST(ComparisonDrill, ReadsItsSecondListWholeWhateverTheStep) {
    DrillDesk desk(QStringLiteral("frmLesson11"));
    desk.setSecondList(3);
    desk.open();
    EXPECT_EQ(desk.caption("lblWord(2)"), QStringLiteral("prompt3"));
    EXPECT_EQ(desk.caption("lblWord(3)"), QStringLiteral("house"));
}

TEST(NumberDrill, HasNoRuleLinesAndLetsTheLastButOneAnswerToEnter) {
    DrillDesk desk(QStringLiteral("frmLesson24"));
    desk.open();
    EXPECT_EQ(desk.form().findChild<Label*>(QStringLiteral("lblTopic3(0)")), nullptr);
    desk.begin();
    desk.key(52, Qt::Key_Return);
    EXPECT_EQ(desk.focusedBox(), 53);
    desk.key(53, Qt::Key_Return);
    EXPECT_EQ(desk.focusedBox(), 53);
}

TEST(CompletionMessage, LooksAtTheReviewOnSomeScreensAlone) {
    struct Case {
        const char* screen;
        bool tests;
    };
    for (const Case& c : {Case{"frmLesson", true}, Case{"frmLesson2", false}, Case{"frmLesson2_2", false},
                          Case{"frmLesson3_2", true}, Case{"frmLesson4", true}, Case{"frmLesson7", true},
                          Case{"frmLesson8", true}, Case{"frmLesson9", true}, Case{"frmLesson10", false},
                          Case{"frmLesson11", false}, Case{"frmLesson17", false}, Case{"frmLesson18", true},
                          Case{"frmLesson18_2", true}, Case{"frmLesson24", false}}) {
        DrillDesk desk(QString::fromUtf8(c.screen));
        desk.session.reviewMode = QStringLiteral("YES");
        desk.open();
        desk.fail({});
        EXPECT_EQ(desk.boxes.shown.empty(), c.tests) << c.screen;
    }
}

TEST(TermOrder, ShowsWhereATypedQuoteMakesAConditionOfItsOwn) {
    // With the box named first, the condition holds for any row; with the word first, "and" binds it to its
    // box.
    const QString quote = QStringLiteral("' or word='cword3s");
    for (const auto& [screen, marked] : {std::pair{"frmLesson", "2"}, std::pair{"frmLesson24", "-"}}) {
        DrillDesk desk(QString::fromUtf8(screen));
        desk.open();
        desk.begin();
        desk.box(0).setText(quote);
        desk.check();
        EXPECT_EQ(desk.failure(), QString());
        EXPECT_EQ(desk.rows(courseStore, "SELECT blankno FROM blankno WHERE showword='YES'")
                      .value(0, QStringLiteral("-")),
                  QString::fromUtf8(marked))
            << screen;
    }
}
