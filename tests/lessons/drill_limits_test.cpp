// Steps whose content does not fit their screen.

#include "catalogue/drills.h"
#include "lessons/drill_layout.h"
#include "tests/lessons/drill_desk.h"

#include <gtest/gtest.h>

using namespace lessons_test;
using catalogue::SetUse;
using support::courseStore;

namespace {

QString nameOf(const catalogue::Drill& drill) {
    return QString::fromUtf8(drill.name);
}

class EveryDrill : public ::testing::TestWithParam<std::string> {
   protected:
    const catalogue::Drill& drill_ = *catalogue::findDrill(GetParam());
};

std::vector<std::string> drillNames() {
    std::vector<std::string> names;
    for (const catalogue::Drill& drill : catalogue::drillCatalogue())
        names.emplace_back(drill.name);
    return names;
}

}  // namespace

TEST_P(EveryDrill, EndsTheRunWithStepTableAndCountsWhereItHasTooManyRows) {
    if (drill_.rows == SetUse::Absent)
        return;
    const int room = lessons::boxTotal(lessons::layoutOf(drill_.name));
    DrillDesk desk(nameOf(drill_), DrillDesk::plainRows(room + 1));
    EXPECT_EQ(desk.open(), nullptr);
    const QString said =
        QStringLiteral("step %1 of topic 1 has %2 rows in table 'basic_data', and %3 has room for %4")
            .arg(desk.step())
            .arg(room + 1)
            .arg(nameOf(drill_))
            .arg(room);
    EXPECT_TRUE(desk.failure().contains(said)) << desk.failure().toStdString();
    EXPECT_TRUE(desk.failure().contains(QStringLiteral("'9'")));
}

TEST_P(EveryDrill, EndsTheRunWithStepTableAndCountsWhereItHasTooManyRules) {
    if (drill_.ruleLines == 0)
        return;
    DrillDesk desk(nameOf(drill_));
    desk.setRules(drill_.ruleLines + 1, desk.step());
    EXPECT_EQ(desk.open(), nullptr);
    EXPECT_TRUE(
        desk.failure().contains(QStringLiteral("has %1 rows in table 'gram_tip2', and %2 has room for %3")
                                    .arg(drill_.ruleLines + 1)
                                    .arg(nameOf(drill_))
                                    .arg(drill_.ruleLines)))
        << desk.failure().toStdString();
}

TEST_P(EveryDrill, FailsOrGoesOnWithoutRowsOfItsTablesAsItIsMade) {
    struct Table {
        SetUse use;
        const char* name;
    };
    for (const Table& table : {Table{drill_.tip, "gram_tip"}, Table{drill_.rules, "gram_tip2"},
                               Table{drill_.rows, "basic_Data"}}) {
        DrillDesk desk(nameOf(drill_));
        desk.exec(courseStore, std::string("DELETE FROM ") + table.name);
        const bool opened = desk.open() != nullptr;
        EXPECT_EQ(opened, table.use != SetUse::Needed) << table.name;
        if (opened)
            continue;
        const QString said = QStringLiteral("step %1 of topic 1 has 0 rows in table '%2'")
                                 .arg(desk.step())
                                 .arg(QString::fromUtf8(table.name).toLower());
        EXPECT_TRUE(desk.failure().contains(said)) << desk.failure().toStdString();
        EXPECT_TRUE(desk.failure().contains(QStringLiteral("'3021'")));
    }
}

INSTANTIATE_TEST_SUITE_P(Drills, EveryDrill, ::testing::ValuesIn(drillNames()));

TEST(DrillWithoutRows, FailsAtTheCheckWhereTheLoadLetItPass) {
    DrillDesk desk(QStringLiteral("frmLesson18"), {});
    ASSERT_NE(desk.open(), nullptr);
    desk.begin();
    desk.check();
    EXPECT_TRUE(
        desk.failure().contains(QStringLiteral("step 500 of topic 1 has 0 rows in table 'basic_data'")))
        << desk.failure().toStdString();
}

TEST(ComparisonDrill, EndsTheRunWhereTheSecondListIsTooLong) {
    DrillDesk desk(QStringLiteral("frmLesson11"));
    desk.exec(courseStore, "INSERT INTO basic_Data2 (orderno2, word) VALUES (14, 'more')");
    EXPECT_EQ(desk.open(), nullptr);
    EXPECT_TRUE(desk.failure().contains(
        QStringLiteral("has 14 rows in table 'basic_data2', and frmLesson11 has room for 13")))
        << desk.failure().toStdString();
}

TEST(ComparisonDrill, KeepsItsSamplePromptsWithoutASecondList) {
    DrillDesk desk(QStringLiteral("frmLesson11"));
    desk.exec(courseStore, "DELETE FROM basic_Data2");
    ASSERT_NE(desk.open(), nullptr);
    EXPECT_EQ(desk.caption("lblWord(0)"), QStringLiteral("house"));
}
