// Tab and typing on every drill: the boxes' own neighbours are the check and Begin, and nothing typed presses
// a button or picks from a list.

#include "catalogue/drills.h"
#include "tests/lessons/drill_desk.h"
#include "tests/support/pressing.h"

using namespace lessons_test;

namespace {

class TabOrder : public ::testing::TestWithParam<std::string> {
   protected:
    DrillDesk desk{QString::fromStdString(GetParam())};
    void SetUp() override { ASSERT_NE(desk.open(), nullptr) << desk.failure().toStdString(); }
    bool hasBoxes() const { return desk.drill().boxes > 0; }
};

std::vector<std::string> drillNames() {
    std::vector<std::string> names;
    for (const catalogue::Drill& drill : catalogue::drillCatalogue())
        names.emplace_back(drill.name);
    return names;
}

}  // namespace

TEST_P(TabOrder, ComesToTheWaysOutLastAndToTheEndOfTheProgramAtTheVeryEnd) {
    support::expectWaysOutLast(desk.form());
    if (!hasBoxes())
        return;
    desk.begin();
    support::expectWaysOutLast(desk.form());
}

TEST_P(TabOrder, FromABoxLeadsToTheCheckAndWhatIsTypedThereDoesNothing) {
    if (!hasBoxes())
        return;
    desk.begin();
    const QStringList before = desk.boxTexts(0, desk.drill().boxes);
    for (const int box : {0, desk.drill().boxes - 1}) {
        support::tabAndType(desk.form(), desk.box(box));
        EXPECT_EQ(support::focusName(&desk.form()), QStringLiteral("picQuiz"));
        EXPECT_TRUE(desk.isShown("picQuiz")) << "the check was not pressed";
        EXPECT_FALSE(desk.screens().ended());
        EXPECT_TRUE(desk.boxes.shown.empty());
        EXPECT_EQ(desk.boxTexts(0, desk.drill().boxes), before);
    }
    QTest::keyClick(desk.form().focusWidget(), Qt::Key_Tab);
    for (const char letter : {'n', 'e', 'x', 't', ' ', 't', 'o'})
        QTest::keyClick(desk.form().focusWidget(), letter);
    EXPECT_EQ(desk.boxTexts(0, desk.drill().boxes), before) << "nor on the next control";
    EXPECT_TRUE(desk.boxes.shown.empty());
}

INSTANTIATE_TEST_SUITE_P(Drills, TabOrder, ::testing::ValuesIn(drillNames()),
                         [](const auto& name) { return name.param; });
