// Clicks, keys and moves without a plan on every quiz screen: nothing but the errors that the screens are
// known for may come of them, and the stores stay whole.

#include "catalogue/quizzes.h"
#include "tests/quizzes/quiz_desk.h"

#include <QRandomGenerator>

namespace {

constexpr int events = 1000;

const std::vector<QuizDesk::Question> oddQuestions{
    {{"q1", "She go to school."},
     {"q2", "goes"},
     {"q3", "1"},
     {"q4", ""},
     {"q5", "went"},
     {"q6", "x"},
     {"q7", "y"},
     {"a1", "goes"},
     {"a2", "x"}},
    {{"q1", "Hello"},
     {"q2", "Blank"},
     {"q3", "3"},
     {"q4", "c"},
     {"q5", ""},
     {"q6", "is"},
     {"q7", "are"},
     {"a1", "Don't be late"},
     {"a2", "are"}},
    {{"q1", "  a  b "},
     {"q2", "the"},
     {"q3", "0"},
     {"q4", "an"},
     {"q5", "a"},
     {"q6", ""},
     {"q7", ""},
     {"a1", ""},
     {"a2", ""}},
    {{"q1", "나는 집에 있다. 그래서 너는 어디에 있니? 우리는 함께 학교에 갔다."},
     {"q2", "긴 문장"},
     {"q3", "4"},
     {"q4", "o"},
     {"q5", "p"},
     {"q6", "1"},
     {"q7", "2"},
     {"a1", "Blank"},
     {"a2", "1"}}};

class Monkey {
   public:
    explicit Monkey(quint32 seed) : chance_(seed) {}

    void act(core::Screen* screen) {
        QWidget* control = anyControl(screen);
        switch (chance_.bounded(10)) {
            case 0: support::hover(*control); break;
            case 1: support::hover(*screen); break;
            case 2:
            case 3:
            case 4:
                QTest::mouseClick(control, Qt::LeftButton, Qt::NoModifier, control->rect().center());
                break;
            case 5: QTest::keyClick(target(screen), Qt::Key_1 + chance_.bounded(5)); break;
            case 6: answer(screen); break;
            case 7: tap(screen, "picQuiz"); break;
            case 8: tap(screen, "picBegin"); break;
            default: key(target(screen)); break;
        }
    }

   private:
    QWidget* anyControl(core::Screen* screen) {
        QList<QWidget*> controls;
        for (QWidget* control : screen->findChildren<QWidget*>())
            if (control->isVisible() && control->objectName() != QStringLiteral("picExit"))
                controls.append(control);
        return controls[chance_.bounded(static_cast<int>(controls.size()))];
    }

    static QWidget* target(core::Screen* screen) {
        QWidget* focus = screen->focusWidget();
        const bool exits = focus != nullptr && focus->objectName() == QStringLiteral("picExit");
        return focus == nullptr || exits ? screen : focus;
    }

    static void tap(core::Screen* screen, const char* name) {
        auto* button = screen->findChild<QWidget*>(QLatin1String(name));
        if (button != nullptr && button->isVisible())
            QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, button->rect().center());
    }

    /// Types a right answer where there is a box, so that the ends are reached as well.
    void answer(core::Screen* screen) {
        auto* typed = qobject_cast<platform::TextBox*>(target(screen));
        if (typed == nullptr || typed->locked())
            return;
        const auto& question = oddQuestions[chance_.bounded(static_cast<quint32>(oddQuestions.size()))];
        typed->setText(QString::fromStdString(question.at(chance_.bounded(2) == 0 ? "a1" : "a2")));
        QTest::keyClick(typed, Qt::Key_Return);
    }

    void key(QWidget* widget) {
        static const QList<Qt::Key> keys{Qt::Key_Backspace, Qt::Key_Left,  Qt::Key_Right, Qt::Key_Return,
                                         Qt::Key_Tab,       Qt::Key_Space, Qt::Key_Down,  Qt::Key_Home,
                                         Qt::Key_Delete,    Qt::Key_Escape};
        if (chance_.bounded(3) == 0)
            QTest::keyClick(widget, "aeiouDT' -019"[chance_.bounded(13)]);
        else
            QTest::keyClick(widget, keys[chance_.bounded(static_cast<int>(keys.size()))]);
    }

    QRandomGenerator chance_;
};

bool isKnown(const QString& form, const QString& failure) {
    if (form == QStringLiteral("frmQuiz9"))
        return failure.contains(QStringLiteral("table 'blankno'"));
    return form.startsWith(QStringLiteral("frmQuiz1")) && failure.contains(QStringLiteral("lblWord2(15)"));
}

void openQuiz(QuizDesk& desk, const QString& form, bool final) {
    desk.layStep(250, oddQuestions);
    desk.random.draws.clear();
    if (final)
        desk.enterFinal(1, 20);
    else
        desk.session.stepType = QStringLiteral("Quiz");
    EXPECT_NE(desk.open(form), nullptr) << desk.failure().toStdString();
}

void expectWholeStores(const QuizDesk& desk) {
    EXPECT_EQ(desk.row(support::courseStore, "PRAGMA integrity_check"), QStringLiteral("ok"));
    EXPECT_EQ(desk.row(support::scoreStore, "PRAGMA integrity_check"), QStringLiteral("ok"));
    EXPECT_EQ(desk.row(support::courseStore, "Select count(*), count(distinct orderno) from quiz_data_New3"),
              QStringLiteral("4|4"));
}

/// A table stores full marks or nothing, and one question at a time the share of its four.
void expectLikelyScores(const QuizDesk& desk, const QString& form, bool final) {
    const bool table = catalogue::findQuiz(form.toStdString())->shape == catalogue::Shape::Table;
    EXPECT_LE(desk.scores().size(), 1);
    for (const QString& stored : desk.scores()) {
        bool whole = false;
        const int score = stored.section(u'|', 1).toInt(&whole);
        EXPECT_TRUE(whole && score >= 0 && score <= 100) << stored.toStdString();
        EXPECT_TRUE(final || score % (table ? 100 : 25) == 0) << stored.toStdString();
        EXPECT_EQ(stored.section(u'|', 0, 0), final ? QStringLiteral("20") : QStringLiteral("250"));
    }
    for (const core::Int16 score : desk.session.finalStepScores)
        EXPECT_TRUE(score >= 0 && score <= 100) << static_cast<int>(score);
    EXPECT_TRUE(desk.session.scoreValue >= 0 && desk.session.scoreValue <= 100);
    EXPECT_TRUE(desk.session.finalStepNo >= 0 && desk.session.finalStepNo <= 21);
}

/// The question on show is one of those that there are.
void expectLikelyCounters(const QuizDesk& desk, const core::Screen* screen, bool final) {
    if (final || !support::find(screen, QStringLiteral("lblCurrent")).isVisible())
        return;
    const auto number = [screen](const char* name) {
        return support::find<platform::Label>(screen, QLatin1String(name)).caption().toInt();
    };
    EXPECT_EQ(number("lblTotal"), 4);
    EXPECT_TRUE(number("lblCurrent") >= 1 && number("lblCurrent") <= 4) << number("lblCurrent");
    EXPECT_TRUE(desk.session.recordNo == 250);
}

/// The quiz on show, after whatever was on its way has come up; another screen that came is closed.
core::Screen* standing(QuizDesk& desk, const QString& form) {
    if (desk.top() != nullptr && desk.top()->objectName() == form)
        return desk.top();
    support::settle();
    if (desk.top() != nullptr && desk.top()->objectName() != form) {
        desk.top()->unload();
        support::settle();
    }
    return desk.top();
}

/// Runs the events; a known error ends the run of a screen, and a new desk takes up the rest.
void runMonkey(const QString& form, quint32 seed, bool final) {
    Monkey monkey(seed);
    int left = events;
    while (left > 0) {
        QuizDesk desk;
        desk.layTable();
        desk.exec(support::courseStore,
                  "Insert into tablework_Final (recordno, topicno, pageno, Title, useform) "
                  "with recursive n(i) as (select 1 union all select i + 1 from n where i < 20) "
                  "select 250, 1, i, 't', '" +
                      form.toStdString() + "' from n");
        while (left > 0 && desk.failure().isEmpty()) {
            core::Screen* screen = standing(desk, form);
            if (screen == nullptr) {
                openQuiz(desk, form, final);
                screen = desk.top();
            }
            --left;
            monkey.act(screen);
            if (left % 8 == 0)
                support::settle();
            if (desk.top() != nullptr && desk.top()->objectName() == form && desk.failure().isEmpty())
                expectLikelyCounters(desk, desk.top(), final);
        }
        support::settle();
        EXPECT_TRUE(desk.failure().isEmpty() || isKnown(form, desk.failure()))
            << form.toStdString() << " seed " << seed << ": " << desk.failure().toStdString();
        expectWholeStores(desk);
        expectLikelyScores(desk, form, final);
    }
}

class RandomEvents : public ::testing::TestWithParam<int> {};

}  // namespace

TEST_P(RandomEvents, LeaveTheQuizStandingAndTheStoresWhole) {
    const catalogue::QuizEntry& entry = catalogue::quizEntries()[static_cast<std::size_t>(GetParam())];
    for (const quint32 seed : {1U, 2U, 3U, 4U})
        runMonkey(QLatin1String(entry.form), seed, seed % 2 == 0);
}

INSTANTIATE_TEST_SUITE_P(EveryQuiz, RandomEvents, ::testing::Range(0, 12), [](const auto& one) {
    return std::string(catalogue::quizEntries()[static_cast<std::size_t>(one.param)].form);
});

TEST(RandomEventsEarly, BeforeTheFirstTickNothingIsAnswered) {
    for (const catalogue::QuizEntry& entry : catalogue::quizEntries()) {
        QuizDesk desk;
        desk.layStep(250, oddQuestions);
        core::Screen* screen = nullptr;
        desk.screens().open(QLatin1String(entry.form));
        QCoreApplication::sendPostedEvents();
        screen = desk.top();
        ASSERT_NE(screen, nullptr) << entry.form;
        for (QWidget* control : screen->findChildren<QWidget*>())
            if (control->isVisible() && qobject_cast<platform::PictureButton*>(control) == nullptr)
                QTest::mouseClick(control, Qt::LeftButton);
        QTest::keyClick(screen, Qt::Key_1);
        EXPECT_NE(desk.awaitScreen(QLatin1String(entry.form)), nullptr)
            << entry.form << desk.failure().toStdString();
        EXPECT_TRUE(desk.scores().isEmpty());
        EXPECT_TRUE(desk.sound.names().isEmpty()) << entry.form;
    }
}
