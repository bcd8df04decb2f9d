#include "catalogue/sheets.h"

#include "tests/worksheets/sheet_list.h"

#include <QFile>
#include <QString>

#include <gtest/gtest.h>

#include <set>
#include <string>

using catalogue::SheetTemplate;

TEST(SheetTables, EveryNumberHasItsBuilderAndItsTwoTemplates) {
    ASSERT_EQ(sheetList.size(), 260U);
    for (const Sheet& sheet : sheetList) {
        EXPECT_EQ(catalogue::builderOf(sheet.recordNo), sheet.builder) << sheet.recordNo;
        const SheetTemplate* row = catalogue::templateOf(sheet.recordNo);
        EXPECT_EQ(row == nullptr ? "" : row->file, std::string_view(sheet.file)) << sheet.recordNo;
        EXPECT_EQ(row == nullptr ? "" : row->teacherFile, std::string_view(sheet.teacherFile))
            << sheet.recordNo;
    }
}

TEST(SheetTables, TwentyLessonsAreRefused) {
    const std::set<int> refused{29,  56,  67,  95,  101, 107, 115, 127, 133, 146,
                                152, 162, 170, 206, 216, 220, 223, 230, 241, 253};
    for (int recordNo = 0; recordNo <= 300; ++recordNo)
        EXPECT_EQ(catalogue::isRefused(recordNo), refused.contains(recordNo)) << recordNo;
    EXPECT_EQ(catalogue::refusedSteps().size(), refused.size());
}

TEST(SheetTables, ThreeRefusedLessonsStandInBothTablesAllTheSame) {
    for (const int recordNo : {170, 206, 216}) {
        EXPECT_TRUE(catalogue::isRefused(recordNo));
        EXPECT_NE(catalogue::builderOf(recordNo), Builder::None);
        EXPECT_NE(catalogue::templateOf(recordNo), nullptr);
    }
}

TEST(SheetTables, AFinalInsideARangeOfAnotherBuilderStaysAFinal) {
    EXPECT_EQ(catalogue::builderOf(205), Builder::Final);
    EXPECT_EQ(catalogue::builderOf(215), Builder::Final);
    EXPECT_EQ(catalogue::templateOf(205)->file, "\\gram7.rpt");
    EXPECT_EQ(catalogue::templateOf(215)->file, "\\gram8.rpt");
}

TEST(SheetTables, NumbersOutsideTheCourseHaveNothing) {
    for (const int recordNo : {-1, 0, 258, 30000}) {
        EXPECT_EQ(catalogue::builderOf(recordNo), Builder::None);
        EXPECT_EQ(catalogue::templateOf(recordNo), nullptr);
    }
}

TEST(SheetTables, EveryTemplateNamedIsThereInItsExactSpelling) {
    for (const SheetTemplate& row : catalogue::sheetTemplates())
        for (const std::string_view file : {row.file, row.teacherFile})
            EXPECT_TRUE(QFile::exists(QStringLiteral(MENDORI_SOURCE "/reports/") +
                                      QString::fromStdString(std::string(file.substr(1)))))
                << file;
}

TEST(SheetTables, TablesOpenedFirstFollowTheTemplate) {
    const auto opened = [](int recordNo) { return catalogue::templateOf(recordNo)->openedFirst; };
    EXPECT_EQ(opened(1)[0], "");
    EXPECT_EQ(opened(190)[0], "");
    EXPECT_EQ(opened(5)[0], "quiz_data_new3");
    EXPECT_EQ(opened(9)[0], "quiz_data_new3");
    EXPECT_EQ(opened(30)[0], "tempword");
    EXPECT_EQ(opened(94)[0], "tempword");
    EXPECT_EQ(opened(94)[1], "tablework_final");
    EXPECT_EQ(opened(215)[1], "tablework_final");
}
