#include "tests/vocabulary/word_desk.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>

namespace {

const WordDesk::Words oddWords{
    {"leaf", "나뭇잎"},          {"hmm", "흠"},           {"eau", "물"},
    {"Apple", "사과"},           {"o''clock", "시"},      {"ice cream", "아이스크림"},
    {"queueing", "줄서기"},      {"bcdfghjkla", "아"},    {"responsibility", "책임"},
    {"abcdefghijklmnopq", "긴"}, {"yy", "와이"},          {"mystery", "수수께끼"},
    {"AEIOUea", "모음"},         {"well-known", "유명한"}};

/// So few that a quiz of them is often done, and short enough to be right at once.
const WordDesk::Words fewWords{{"hmm", "흠"}, {"eau", "물"}};

/// Clicks, keys and moves of the mouse without a plan, the same ones for the same seed.
class Monkey {
   public:
    explicit Monkey(quint32 seed) : chance_(seed) {}

    void act(QWidget* form) {
        QList<QWidget*> controls;
        for (QWidget* control : form->findChildren<QWidget*>())
            if (control->isVisible() && !control->objectName().isEmpty() && !leaves(*control))
                controls.append(control);
        if (controls.isEmpty())
            return;
        QWidget* control = controls[chance_.bounded(static_cast<int>(controls.size()))];
        switch (chance_.bounded(8)) {
            case 0: support::hover(*control); break;
            case 1: support::hover(*form); break;
            case 2:
            case 3:
                QTest::mouseClick(control, Qt::LeftButton, Qt::NoModifier, control->rect().center());
                break;
            case 4: key(form->focusWidget() != nullptr ? form->focusWidget() : form); break;
            default: rightLetter(form); break;
        }
    }

   private:
    /// Leaving the screen is not what is tried here.
    static bool leaves(const QWidget& control) {
        return QStringList{QStringLiteral("picExit"), QStringLiteral("picTable"), QStringLiteral("picPre"),
                           QStringLiteral("picNext")}
            .contains(control.objectName());
    }

    /// Types what belongs into the box in hand, so that the later stages are reached as well.
    void rightLetter(QWidget* form) {
        QWidget* widget = form->focusWidget();
        if (qobject_cast<platform::TextBox*>(widget) == nullptr)
            return;
        const QString word = wordInHand(form);
        const QString name = widget->objectName();
        const int index = name.mid(name.indexOf(u'(') + 1).chopped(1).toInt();
        if (name.startsWith(QStringLiteral("txtType")) && index < word.size()) {
            QTest::keyClick(widget, word[index].toLatin1());
            // Once more, before the program has gone on to the next word.
            if (index == word.size() - 1 && chance_.bounded(2) == 0)
                QTest::keyClick(widget, Qt::Key_Return);
        } else if (chance_.bounded(8) == 0)
            support::type(*widget, word + u'\r');
    }

    static QString wordInHand(const QWidget* form) {
        const auto* meaning = form->findChild<platform::Label*>(QStringLiteral("lblDef2"));
        if (meaning == nullptr)
            meaning = form->findChild<platform::Label*>(QStringLiteral("lblWord"));
        for (const auto& [word, korean] : oddWords)
            if (meaning != nullptr && meaning->caption() == QString::fromStdString(korean))
                return QString::fromStdString(word).replace(QStringLiteral("''"), QStringLiteral("'"));
        return {};
    }

    void key(QWidget* widget) {
        static const QList<Qt::Key> keys{Qt::Key_Backspace, Qt::Key_Left, Qt::Key_Right, Qt::Key_Return,
                                         Qt::Key_Tab,       Qt::Key_Home, Qt::Key_Down,  Qt::Key_Delete};
        if (leaves(*widget))
            QTest::keyClick(widget, Qt::Key_Tab);
        else if (chance_.bounded(3) == 0)
            QTest::keyClick(widget, keys[chance_.bounded(static_cast<int>(keys.size()))]);
        else
            QTest::keyClick(widget, "aeiouyhmlfstAr' -x"[chance_.bounded(18)]);
    }

    QRandomGenerator chance_;
};

int numberOn(const QWidget* form, const char* name) {
    const auto* counter = form->findChild<platform::Label*>(QLatin1String(name));
    return counter == nullptr ? 0 : counter->caption().toInt();
}

/// The counters of any of the three screens lie within its list.
void expectLikelyCounters(const QWidget* form) {
    const int total = numberOn(form, "lblTotal");
    EXPECT_TRUE(total >= 0 && total <= static_cast<int>(oddWords.size())) << total;
    EXPECT_TRUE(numberOn(form, "lblNow") >= 0 && numberOn(form, "lblNow") <= total);
    // Past the last pair the number stays.
    EXPECT_TRUE(numberOn(form, "lblCurrent") >= 0 && numberOn(form, "lblCurrent") <= total);
    EXPECT_GE(numberOn(form, "lblMiss"), 0);
}

/// The stored results of the three parts are shares of a list.
void expectLikelyResults(const WordDesk& desk) {
    EXPECT_LE(desk.rows(support::scoreStore, "select 1 from score").size(), 1);
    for (const QString& stored :
         desk.rows(support::scoreStore, "select s1, s2, s3, printf('%g', s4) from score")) {
        for (const QString& part : stored.split(u'|')) {
            bool number = false;
            const double score = part.toDouble(&number);
            EXPECT_TRUE(!number || (score >= 0 && score <= 100)) << stored.toStdString();
        }
    }
    EXPECT_TRUE(desk.session.scoreValue >= 0 && desk.session.scoreValue <= 100)
        << static_cast<int>(desk.session.scoreValue);
    const std::string words = std::to_string(oddWords.size());
    for (const char* table : {"testword", "testword2", "testword6"})
        EXPECT_EQ(
            desk.row(support::testWordStore, "select count(*) <= " + words + " from " + std::string(table)),
            QStringLiteral("1"))
            << table;
}

void runMonkey(const char* screen, const WordDesk::Words& words, quint32 seed, int events) {
    WordDesk desk(words);
    Monkey monkey(seed);
    desk.open(QLatin1String(screen));
    for (int i = 0; i < events && desk.failure().isEmpty(); ++i) {
        if (desk.top() == nullptr || desk.top()->objectName() != QLatin1String(screen))
            desk.open(QLatin1String(screen));
        monkey.act(desk.top());
        if (i % 16 == 0)
            support::settle();
        if (desk.top() != nullptr && desk.top()->objectName() == QLatin1String(screen))
            expectLikelyCounters(desk.top());
        EXPECT_TRUE(desk.session.scoreValue >= 0 && desk.session.scoreValue <= 100);
    }
    expectLikelyResults(desk);
    EXPECT_EQ(desk.failure(), QString()) << screen << " seed " << seed;
}

}  // namespace

TEST(RandomEvents, LeaveTheSpellingCoachStanding) {
    for (const quint32 seed : {1U, 2U, 3U, 4U})
        runMonkey("frmVoca2", oddWords, seed, 1500);
}

TEST(RandomEvents, LeaveWordMatchingStanding) {
    for (const quint32 seed : {11U, 12U, 13U, 14U})
        runMonkey("frmVoca3", oddWords, seed, 800);
}

TEST(RandomEvents, LeaveTheVocabularyQuizStanding) {
    for (const quint32 seed : {21U, 22U, 23U, 24U}) {
        runMonkey("frmVoca4", oddWords, seed, 800);
        runMonkey("frmVoca4", fewWords, seed, 800);
    }
}

TEST(RandomEvents, BeforeTheFirstTickLeaveTheSpellingCoachStanding) {
    WordDesk desk(oddWords);
    desk.screens().open(QStringLiteral("frmVoca2"));
    ASSERT_TRUE(support::waitFor([&] { return desk.top() != nullptr; }));
    Monkey monkey(31);
    for (int i = 0; i < 300; ++i)
        monkey.act(desk.top());
    EXPECT_EQ(desk.failure(), QString());
}
