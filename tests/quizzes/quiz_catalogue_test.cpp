#include "catalogue/quizzes.h"

#include "catalogue/dispatch.h"
#include "tests/quizzes/quiz_desk.h"

#include <functional>
#include <set>

using catalogue::Column;
using catalogue::findQuiz;
using catalogue::quizEntries;
using catalogue::QuizEntry;
using catalogue::Shape;

namespace {

QuizDesk::Question fullQuestion() {
    return {{"q1", "Two words"}, {"q2", "a"}, {"q3", "1"}, {"q4", "c"}, {"q5", "d"},
            {"q6", "e"},         {"q7", "f"}, {"a1", "a"}, {"a2", "e"}};
}

int arraySize(const core::Screen* screen, const char* name) {
    int size = 0;
    while (screen->findChild<QWidget*>(QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(size)) !=
           nullptr)
        ++size;
    return size;
}

/// Opens every screen in turn on one step and looks at it; `prepare` comes between the rows and the screen.
void onEveryScreen(const std::function<void(QuizDesk&)>& prepare,
                   const std::function<void(QuizDesk&, const QuizEntry&, core::Screen*)>& look) {
    QuizDesk desk;
    for (const QuizEntry& entry : quizEntries()) {
        desk.random.draws.clear();
        desk.layStep(2, {fullQuestion()});
        prepare(desk);
        core::Screen* screen = desk.run(entry.form);
        ASSERT_NE(screen, nullptr) << entry.form << desk.failure().toStdString();
        look(desk, entry, screen);
        screen->unload();
        support::settle();
    }
}

void asItIs(QuizDesk&) {}

}  // namespace

TEST(QuizCatalogue, HoldsTwelveScreensEachOnce) {
    std::set<QString> names;
    for (const QuizEntry& entry : quizEntries())
        names.insert(QLatin1String(entry.form));
    EXPECT_EQ(names.size(), 12U);
    EXPECT_EQ(quizEntries().size(), 12U);
}

TEST(QuizCatalogue, HoldsEveryQuizThatTheDispatcherKnows) {
    for (const catalogue::DispatchRow& row : catalogue::dispatchRows()) {
        const QString screen = QLatin1String(row.screen.data(), static_cast<qsizetype>(row.screen.size()));
        if (screen.startsWith(QStringLiteral("frmQuiz"))) {
            EXPECT_NE(findQuiz(screen.toStdString()), nullptr) << screen.toStdString();
        }
    }
}

TEST(QuizCatalogue, ANameThatDiffersInCaseSelectsNoScreen) {
    EXPECT_EQ(findQuiz("frmquiz7"), nullptr);
    EXPECT_EQ(findQuiz("FrmQuiz"), nullptr);
    QuizDesk desk;
    desk.layStep(2, {fullQuestion()});
    desk.screens().open(QStringLiteral("frmquiz7"));
    support::settle();
    EXPECT_EQ(desk.top(), nullptr);
    EXPECT_EQ(desk.failure(), QString());
}

TEST(QuizCatalogue, EveryScreenBuildsWithTheSideThatItsEntryTells) {
    onEveryScreen(asItIs, [](QuizDesk& desk, const QuizEntry& entry, core::Screen* screen) {
        EXPECT_EQ(screen->findChild<QWidget*>(QStringLiteral("picQuiz")) != nullptr,
                  entry.quizCaption != nullptr);
        EXPECT_EQ(screen->findChild<QWidget*>(QStringLiteral("lblAnswer")) != nullptr, entry.hasAnswerLine);
        EXPECT_EQ(caption(screen, "lblTopic"), QStringLiteral("명사 3"));
        EXPECT_EQ(caption(screen, "lblSubTopic"), QStringLiteral("문장에서 명사를 골라 클릭하십시오."));
        EXPECT_EQ(desk.session.scoreSlot, 4) << entry.form;
        EXPECT_TRUE(screen->property("picture").toString().endsWith(QStringLiteral("quiz.jpg")));
        EXPECT_EQ(visible(screen, "lblCurrent"), entry.shape == Shape::OneAtATime) << entry.form;
        EXPECT_FALSE(visible(screen, "picBegin")) << entry.form;
        EXPECT_TRUE(visible(screen, "picNext")) << entry.form;
        EXPECT_FALSE(visible(screen, "picPre")) << entry.form;
        for (const Column& column : entry.columns)
            EXPECT_EQ(arraySize(screen, column.array), 15) << entry.form;
    });
}

TEST(QuizCatalogue, EveryControlThatTabReachesHasANameToBeSpoken) {
    onEveryScreen(asItIs, [](QuizDesk&, const QuizEntry& entry, core::Screen* screen) {
        for (QWidget* control : screen->findChildren<QWidget*>())
            if (control->focusPolicy() != Qt::NoFocus && control->isVisible()) {
                EXPECT_FALSE(control->accessibleName().isEmpty())
                    << entry.form << ' ' << control->objectName().toStdString();
            }
    });
}

TEST(QuizCatalogue, TheKeyboardStartsAtTheContentAndNotAtTheWayOut) {
    onEveryScreen(asItIs, [](QuizDesk&, const QuizEntry& entry, core::Screen* screen) {
        EXPECT_FALSE(support::focusName(screen).startsWith(QStringLiteral("pic"))) << entry.form;
        EXPECT_NE(support::focusName(screen), QLatin1String(entry.form));
    });
}

TEST(QuizCatalogue, AStepWithWordsOffersTheWayBackToThem) {
    onEveryScreen([](QuizDesk& desk) { desk.session.hasWords = QStringLiteral("YES"); },
                  [](QuizDesk&, const QuizEntry& entry, core::Screen* screen) {
                      EXPECT_TRUE(visible(screen, "picPre")) << entry.form;
                  });
}

TEST(QuizCatalogue, InsideAFinalQuizNeitherWayOnNorWayBackIsOffered) {
    onEveryScreen(
        [](QuizDesk& desk) {
            desk.session.hasWords = QStringLiteral("YES");
            desk.enterFinal(1, 2);
        },
        [](QuizDesk&, const QuizEntry& entry, core::Screen* screen) {
            EXPECT_FALSE(visible(screen, "picNext")) << entry.form;
            EXPECT_FALSE(visible(screen, "picPre")) << entry.form;
            EXPECT_TRUE(visible(screen, "lblCurrent")) << entry.form;
            EXPECT_EQ(caption(screen, "lblTotal"), QStringLiteral("10")) << entry.form;
        });
}

TEST(QuizCatalogue, TheAnswerLineIsSeenByTeachersAlone) {
    for (const bool teacher : {false, true})
        onEveryScreen(
            [&](QuizDesk& desk) {
                desk.session.teacherMode = teacher ? QStringLiteral("Teacher") : QString();
            },
            [&](QuizDesk&, const QuizEntry& entry, core::Screen* screen) {
                if (!entry.hasAnswerLine)
                    return;
                EXPECT_EQ(visible(screen, "lblAnswer"), teacher) << entry.form;
                EXPECT_EQ(caption(screen, "lblAnswer"), QStringLiteral("Answer: a / e")) << entry.form;
            });
}

TEST(QuizCatalogue, ElevenScreensEndTheProgramByTheirExit) {
    for (const QuizEntry& entry : quizEntries()) {
        if (entry.exitGoesToTable)
            continue;
        QuizDesk desk;
        desk.layStep(2, {fullQuestion()});
        core::Screen* screen = desk.run(entry.form);
        ASSERT_NE(screen, nullptr) << entry.form;
        press(screen, "picExit");
        EXPECT_TRUE(desk.screens().ended()) << entry.form;
    }
}

TEST(QuizCatalogue, TheFirstQuizLeavesByItsExitToTheTable) {
    QuizDesk desk;
    desk.layStep(2, {fullQuestion()});
    desk.layTable();
    core::Screen* screen = desk.run("frmQuiz");
    ASSERT_NE(screen, nullptr);
    press(screen, "picExit");
    EXPECT_NE(desk.awaitScreen(QStringLiteral("frmTable")), nullptr) << desk.failure().toStdString();
    EXPECT_FALSE(desk.screens().ended());
}
