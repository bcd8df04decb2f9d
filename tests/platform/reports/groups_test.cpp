#include "platform/reports/layout.h"
#include "tests/platform/reports/sheet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

using platform::layOutReport;
using platform::PieceRole;
using platform::ReportData;
using platform::ReportRow;
using support::oneColumn;
using support::question;
using support::text;
using support::texts;

TEST(ReportGroups, GroupsAreHeadedAndTheHeadIsRepeatedOnThePagesTheyGoOnTo) {
    auto report = oneColumn();
    report.group = {QStringLiteral("ranges"),
                    QStringLiteral("from"),
                    QStringLiteral("to"),
                    QStringLiteral("no"),
                    {},
                    text("{Title}"),
                    true};
    ReportData data;
    data.ranges = {{{QStringLiteral("from"), QStringLiteral("1")},
                    {QStringLiteral("to"), QStringLiteral("9")},
                    {QStringLiteral("title"), QStringLiteral("첫째")}},
                   {{QStringLiteral("from"), QStringLiteral("10")},
                    {QStringLiteral("to"), QStringLiteral("20")},
                    {QStringLiteral("title"), QStringLiteral("둘째")}}};
    for (int i = 0; i < 60; ++i) {
        ReportRow row = question(QStringLiteral("q ____"), QStringLiteral("a"));
        row.insert(QStringLiteral("no"), QString::number(i < 5 ? 9 : 10));
        data.rows.push_back(row);
    }
    const auto layout = layOutReport(report, data);
    const auto heads = texts(layout, PieceRole::GroupHead);
    EXPECT_EQ(heads.value(0), QStringLiteral("첫째"));
    EXPECT_EQ(heads.count(QStringLiteral("둘째")), static_cast<int>(layout.pages.size()));
}

TEST(ReportGroups, ACountThatRestartsBeginsAnotherPart) {
    auto report = oneColumn();
    report.items[0].number = text("{n}");
    report.group.restart = QStringLiteral("n");
    report.group.text = text("Part {group}");
    report.group.evenAlone = false;
    ReportData data;
    for (const char* n : {"1", "2", "3"}) {
        data.rows.push_back(question(QStringLiteral("q ____"), QStringLiteral("a")));
        data.rows.back().insert(QStringLiteral("n"), QLatin1String(n));
    }
    EXPECT_TRUE(texts(layOutReport(report, data), PieceRole::GroupHead).isEmpty());
    data.rows.push_back(data.rows[0]);
    const auto layout = layOutReport(report, data);
    EXPECT_EQ(texts(layout, PieceRole::GroupHead),
              QStringList({QStringLiteral("Part 1"), QStringLiteral("Part 2")}));
    EXPECT_EQ(texts(layout, PieceRole::Number).last(), QStringLiteral("1."));
}

TEST(ReportGroups, RangesThatSayTheSameShareAHeadingUpToTheNextRestart) {
    auto report = oneColumn();
    report.group = {QStringLiteral("ranges"),
                    QStringLiteral("from"),
                    QStringLiteral("from"),
                    QStringLiteral("no"),
                    QStringLiteral("n"),
                    text("Part {part}.  {guide}"),
                    false};
    ReportData data;
    const std::vector<std::array<const char*, 2>> ranges{{"2", "write"}, {"3", "fill"}, {"4", "fill"}};
    for (const auto& [from, guide] : ranges)
        data.ranges.push_back(
            {{QStringLiteral("from"), QLatin1String(from)}, {QStringLiteral("guide"), QLatin1String(guide)}});
    const std::vector<std::array<const char*, 2>> rows{
        {"2", "1"}, {"3", "2"}, {"4", "3"}, {"4", "4"}, {"3", "1"}};
    for (const auto& [no, n] : rows) {
        data.rows.push_back(question(QStringLiteral("q ____"), QStringLiteral("a")));
        data.rows.back().insert(QStringLiteral("no"), QLatin1String(no));
        data.rows.back().insert(QStringLiteral("n"), QLatin1String(n));
    }
    EXPECT_EQ(texts(layOutReport(report, data), PieceRole::GroupHead).join(u' ').simplified(),
              QStringLiteral("Part 1. write Part 1. fill Part 2. fill"));
}

TEST(ReportGroups, AHeadingTakesTwoOfItsRowsAlong) {
    auto report = oneColumn();
    report.group.restart = QStringLiteral("n");
    report.group.text = text("Part {part}");
    // The second part begins at every place of a page in turn.
    for (int first = 10; first <= 50; ++first) {
        ReportData data;
        for (int i = 0; i < first + 5; ++i) {
            data.rows.push_back(question(QStringLiteral("q ____"), QStringLiteral("a")));
            data.rows.back().insert(QStringLiteral("n"), QString::number(i < first ? i : i - first));
        }
        const auto layout = layOutReport(report, data);
        const auto page = std::find_if(layout.pages.begin(), layout.pages.end(), [](const auto& p) {
            return std::any_of(p.pieces.begin(), p.pieces.end(),
                               [](const auto& piece) { return piece.text == QStringLiteral("Part 2"); });
        });
        ASSERT_NE(page, layout.pages.end());
        const auto rows = std::count_if(page->pieces.begin(), page->pieces.end(), [&](const auto& piece) {
            return piece.role == PieceRole::Number && piece.row >= first;
        });
        EXPECT_GE(rows, 2) << first;
    }
}
