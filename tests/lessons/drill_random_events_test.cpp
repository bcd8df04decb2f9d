// Whatever a learner does with mouse and keys, a drill goes on; a typed apostrophe alone may end the run.

#include "catalogue/drills.h"
#include "tests/lessons/drill_desk.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

using namespace lessons_test;

namespace {

constexpr int eventCount = 600;
constexpr std::array seeds{11U, 23U, 47U};

constexpr std::array keys{Qt::Key_Return, Qt::Key_Left, Qt::Key_Right,    Qt::Key_Up,     Qt::Key_Down,
                          Qt::Key_PageUp, Qt::Key_Home, Qt::Key_PageDown, Qt::Key_Delete, Qt::Key_Backspace,
                          Qt::Key_End,    Qt::Key_Tab,  Qt::Key_Space};

class Learner {
   public:
    Learner(DrillDesk& desk, unsigned seed) : desk_(desk), random_(seed) {
        words_ = desk.rightWords();
        desk.boxes.answers.clear();
    }

    void act() {
        switch (draw(7)) {
            case 0: pressSomeButton(); break;
            case 1: clickSomewhere(); break;
            case 2: support::hover(anyControl()); break;
            case 3: writeAnswer(); break;
            case 4: pressKey(keys[static_cast<std::size_t>(draw(static_cast<int>(keys.size())))]); break;
            default: pressKey(static_cast<Qt::Key>(Qt::Key_A + draw(26))); break;
        }
        support::settle();
    }

   private:
    int draw(int count) { return std::uniform_int_distribution<>(0, count - 1)(random_); }
    QWidget& anyControl() {
        const auto controls = desk_.form().findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        QWidget* control = controls[draw(static_cast<int>(controls.size()))];
        return control->isVisible() && !control->isWindow() ? *control : desk_.form();
    }
    void pressSomeButton() {
        for (const char* name : {"picBegin", "picQuiz"}) {
            auto* button = desk_.form().findChild<PictureButton*>(QString::fromUtf8(name));
            if (button != nullptr && button->isVisible() && draw(2) == 0)
                return support::click(*button);
        }
    }
    void clickSomewhere() {
        QWidget& control = anyControl();
        // Leaving has tests of its own, and a list that hangs open takes all events.
        if (qobject_cast<PictureButton*>(&control) == nullptr &&
            qobject_cast<platform::DropList*>(&control) == nullptr)
            QTest::mouseClick(&control, Qt::LeftButton, Qt::NoModifier, control.rect().center());
    }
    void writeAnswer() {
        if (words_.isEmpty())
            return;
        const int index = draw(static_cast<int>(words_.size()));
        if (!desk_.box(index).locked())
            desk_.box(index).setText(draw(3) == 0 ? QStringLiteral("zzz") : words_[index]);
    }
    void pressKey(Qt::Key key) {
        QWidget* focus = desk_.form().focusWidget();
        const auto* button = qobject_cast<PictureButton*>(focus);
        const bool leaves = key == Qt::Key_Space && button != nullptr;
        if (focus != nullptr && focus->isVisible() && !leaves)
            QTest::keyClick(focus, key);
    }

    DrillDesk& desk_;
    std::mt19937 random_;
    QStringList words_;
};

/// A drill stores full marks or nothing, tells nothing but its own messages, and lists no more than its
/// boxes.
void expectNothingButWhatADrillDoes(DrillDesk& desk) {
    const catalogue::Drill& drill = desk.drill();
    for (const QString& score :
         desk.rows(support::scoreStore, "Select recordno, printf('%g', s4) from score"))
        EXPECT_EQ(score, QStringLiteral("%1|100").arg(desk.step()));
    EXPECT_LE(desk.rows(support::scoreStore, "Select 1 from score").size(), drill.savesScore ? 1 : 0);
    EXPECT_TRUE(desk.session.scoreValue == 0 || desk.session.scoreValue == 100);
    for (const QString& text : desk.boxes.texts())
        EXPECT_TRUE(text == QString::fromUtf8(drill.completion) || text == QString::fromUtf8(drill.missed))
            << text.toStdString();
    const std::string boxes = std::to_string(drill.boxes);
    EXPECT_EQ(desk.row(support::courseStore, "Select count(*), count(distinct orderno) from basic_data"),
              QString::fromStdString(boxes + "|" + boxes));
    EXPECT_EQ(
        desk.rows(support::courseStore, "Select * from blankno where blankno < 0 or blankno >= " + boxes),
        QStringList());
    EXPECT_EQ(desk.row(support::courseStore, "Select count(*) <= " + boxes + " from blankno"),
              QStringLiteral("1"));
}

class RandomEvents : public ::testing::TestWithParam<std::string> {};

std::vector<std::string> drillNames() {
    std::vector<std::string> names;
    for (const catalogue::Drill& drill : catalogue::drillCatalogue())
        names.emplace_back(drill.name);
    return names;
}

}  // namespace

TEST_P(RandomEvents, EndInNoErrorAndStoreNothingButFullMarks) {
    for (const unsigned seed : seeds) {
        DrillDesk desk(QString::fromStdString(GetParam()));
        ASSERT_NE(desk.open(), nullptr) << desk.failure().toStdString();
        Learner learner(desk, seed);
        for (int i = 0; i < eventCount; ++i) {
            learner.act();
            ASSERT_EQ(desk.failure(), QString()) << "seed " << seed << ", event " << i;
        }
        EXPECT_EQ(desk.row(support::courseStore, "PRAGMA integrity_check"), QStringLiteral("ok"));
        expectNothingButWhatADrillDoes(desk);
    }
}

INSTANTIATE_TEST_SUITE_P(Drills, RandomEvents, ::testing::ValuesIn(drillNames()),
                         [](const auto& name) { return name.param; });
