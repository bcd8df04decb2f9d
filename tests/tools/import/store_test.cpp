#include "tests/tools/import/fake.h"

#include "tools/import/store.h"

#include <gtest/gtest.h>

namespace {

using namespace tools;
using namespace import_test;

struct Copy {
    SQLite::Database store{":memory:", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE};
    CopyReport report;

    explicit Copy(std::vector<FakeTable> tables, bool salvage = false,
                  const QString& schema = QStringLiteral("tovalin.mdb")) {
        FakeReader reader(std::move(tables));
        report = copyStore(reader, {{}, QStringLiteral("D/tovalin.mdb"), schema}, store, salvage,
                           [](const QString&, qint64) {});
    }

    QString ask(const char* sql) {
        SQLite::Statement query(store, sql);
        QStringList lines;
        while (query.executeStep()) {
            QStringList fields;
            for (int i = 0; i < query.getColumnCount(); ++i)
                fields.append(query.getColumn(i).isNull() ? QStringLiteral("NULL")
                                                          : QString::fromUtf8(query.getColumn(i).getText()));
            lines.append(fields.join(u'|'));
        }
        return lines.join(u';');
    }
};

TEST(StoreCopy, KeepsTheRowsInTheirOrderAndNullApartFromEmpty) {
    Copy copy({newWords()});
    EXPECT_EQ(copy.ask("SELECT * FROM newword ORDER BY rowid"),
              QStringLiteral("2|lantern|등불|NULL;1|air|공기|"));
    EXPECT_TRUE(copy.report.sound);
    ASSERT_EQ(copy.report.tables.size(), 1U);
    EXPECT_TRUE(copy.report.tables[0].proven());
    EXPECT_EQ(copy.report.tables[0].copyRows, 2);
}

TEST(StoreCopy, KeepsTheColumnOrderOfTheSource) {
    FakeTable table = newWords();
    std::swap(table.shape.columns[0], table.shape.columns[1]);
    for (SourceRow& row : table.rows)
        std::swap(row.values[0], row.values[1]);
    Copy copy({table});
    EXPECT_EQ(copy.ask("SELECT * FROM newword LIMIT 1"), QStringLiteral("lantern|2|등불|NULL"));
}

TEST(StoreCopy, ComparesTextsWithoutRegardToCase) {
    Copy copy({newWords()});
    EXPECT_EQ(copy.ask("SELECT recordno FROM newword WHERE word='LANTERN'"), QStringLiteral("2"));
}

TEST(StoreCopy, MakesTheTablesThatTheSourceLacks) {
    Copy copy({newWords()});
    EXPECT_EQ(copy.ask("SELECT count(*) FROM tablework"), QStringLiteral("0"));
    EXPECT_EQ(copy.ask("SELECT count(*) FROM blankno2"), QStringLiteral("0"));
    EXPECT_TRUE(copy.report.notes.contains(
        QStringLiteral("D/tovalin.mdb has no table blankno2; it was made empty.")));
}

TEST(StoreCopy, MakesTheIndexesThatTheCourseLooksUpBy) {
    Copy copy({newWords()});
    EXPECT_EQ(copy.ask("SELECT name FROM sqlite_master WHERE type='index' AND tbl_name='newword'"),
              QStringLiteral("newword_by_1"));
}

TEST(StoreCopy, GivesATableOfItsOwnTheKindsOfTheSource) {
    FakeTable table;
    table.shape = {QStringLiteral("extra \"one\""),
                   {{QStringLiteral("n"), SourceType::Integer, 4},
                    {QStringLiteral("d"), SourceType::Number, 7},
                    {QStringLiteral("when"), SourceType::Date, 8},
                    {QStringLiteral("money"), SourceType::Decimal, 5},
                    {QStringLiteral("picture"), SourceType::Binary, 11}},
                   1};
    table.rows = {row({qlonglong{70000}, 0.1, 46037.0, QStringLiteral("12.3400"), QByteArray("\0x", 2)})};
    Copy copy({table});
    EXPECT_TRUE(copy.report.tables[0].proven());
    EXPECT_EQ(copy.ask("SELECT n, d, \"when\", money, hex(picture), typeof(d) FROM \"extra \"\"one\"\"\""),
              QStringLiteral("70000|0.1|2026-01-15|12.3400|0078|real"));
}

TEST(StoreCopy, TakesAMemoOfAnyLength) {
    const QString tips(200000, QChar(0xc12c));
    FakeTable table;
    table.shape = {QStringLiteral("gram_tip"),
                   {{QStringLiteral("recordno"), SourceType::Integer, 3},
                    {QStringLiteral("topicno"), SourceType::Integer, 3},
                    {QStringLiteral("tips"), SourceType::Text, 12}},
                   1};
    table.rows = {row({qlonglong{1}, qlonglong{1}, tips})};
    Copy copy({table});
    EXPECT_TRUE(copy.report.sound);
    EXPECT_EQ(copy.ask("SELECT length(tips) FROM gram_tip"), QStringLiteral("200000"));
}

TEST(StoreCopy, NamesFileTableRowAndColumnOfATextThatIsNotValid) {
    FakeTable table = newWords();
    table.rows[1].problems.push_back(
        {QStringLiteral("korean"), QStringLiteral("the text is not valid in code page 949"), false});
    Copy copy({table});
    EXPECT_EQ(
        copy.report.problems,
        QStringList{QStringLiteral(
            "D/tovalin.mdb, table newword, row 2, column korean: the text is not valid in code page 949.")});
    EXPECT_FALSE(copy.report.sound);
}

TEST(StoreCopy, NamesAFieldTypeThatIsNotKnown) {
    FakeTable table = newWords();
    table.shape.columns[3] = {QStringLiteral("scode"), SourceType::Unknown, 0x12};
    Copy copy({table});
    EXPECT_TRUE(
        copy.report.problems.contains(QStringLiteral("D/tovalin.mdb, table newword, column scode: the field "
                                                     "type 18 is not known, its values are left out.")));
    EXPECT_FALSE(copy.report.sound);
}

TEST(StoreCopy, GoesOnBehindADamagedRowAndADamagedTable) {
    FakeTable damaged = newWords();
    damaged.rows.insert(damaged.rows.begin() + 1,
                        SourceRow{{}, {{{}, QStringLiteral("the row on page 9 is damaged"), false}}});
    FakeTable lost = newWords();
    lost.shape.name = QStringLiteral("gram_tip2");
    lost.openError = QStringLiteral("the table's definition on page 3 is damaged");
    FakeTable cut = newWords();
    cut.shape.name = QStringLiteral("mine");
    cut.endError = QStringLiteral("the file is damaged: reading it broke down");
    Copy copy({lost, damaged, cut}, true);
    EXPECT_EQ(
        copy.report.problems,
        (QStringList{
            QStringLiteral("D/tovalin.mdb, table gram_tip2: the table's definition on page 3 is damaged."),
            QStringLiteral("D/tovalin.mdb, table newword, row 2: the row on page 9 is damaged."),
            QStringLiteral(
                "D/tovalin.mdb, table mine, row 3: the file is damaged: reading it broke down.")}));
    EXPECT_EQ(copy.ask("SELECT count(*) FROM newword"), QStringLiteral("2"));
    EXPECT_EQ(copy.ask("SELECT count(*) FROM mine"), QStringLiteral("2"));
}

TEST(StoreCopy, LeavesOutADamagedTableThatTheCourseDoesNotUse) {
    FakeTable table = newWords();
    table.shape.name = QStringLiteral("mine");
    table.rows[0].problems.push_back(
        {QStringLiteral("word"), QStringLiteral("the value is cut short"), false});
    Copy copy({table, newWords()});
    EXPECT_TRUE(copy.report.sound);
    EXPECT_TRUE(copy.report.tables[0].leftOut);
    EXPECT_EQ(copy.ask("SELECT count(*) FROM sqlite_master WHERE name='mine'"), QStringLiteral("0"));
    EXPECT_EQ(copy.report.problems.size(), 1);
}

TEST(StoreCopy, TellsAColumnThatTheCourseNeedsAndTheFileLacks) {
    FakeTable table = newWords();
    table.shape.columns.pop_back();
    for (SourceRow& row : table.rows)
        row.values.pop_back();
    Copy copy({table});
    EXPECT_EQ(copy.report.problems,
              QStringList{QStringLiteral("D/tovalin.mdb, table newword, column scode: the course needs "
                                         "this column and the file lacks it.")});
    EXPECT_FALSE(copy.report.sound);
}

TEST(StoreCopy, TakesFieldsThatAreOnlyCopiedByTheirPlaceUnderAnyName) {
    FakeTable table;
    table.shape.name = QStringLiteral("basic_Data");
    for (const char* name : {"topicno", "recordno", "orderno", "word1", "word2", "word3", "memo1", "memo2"})
        table.shape.columns.push_back({QLatin1String(name), SourceType::Text, 10});
    Copy copy({table});
    EXPECT_EQ(copy.report.problems, QStringList());
    EXPECT_TRUE(copy.report.sound);
}

TEST(StoreCopy, FindsAValueThatTheStoreWouldHoldOtherwise) {
    FakeTable table = newWords();
    table.shape.columns[0].type = SourceType::Text;
    table.rows[1].values[0] = QStringLiteral("007");
    Copy copy({table});
    EXPECT_EQ(copy.report.problems,
              QStringList{
                  QStringLiteral("D/tovalin.mdb, table newword, row 2: the copy differs from the source.")});
    EXPECT_FALSE(copy.report.sound);
}

TEST(StoreCopy, ListsOnlyTheFirstProblemsOfATable) {
    FakeTable table = newWords();
    table.rows.resize(1);
    table.rows[0].problems.push_back(
        {QStringLiteral("word"), QStringLiteral("the value is cut short"), false});
    table.rows.resize(100, table.rows[0]);
    Copy copy({table});
    EXPECT_EQ(copy.report.problems.size(), 21);
    EXPECT_EQ(copy.report.problems.last(),
              QStringLiteral("D/tovalin.mdb, table newword: further problems are not listed."));
}

TEST(StoreCopy, OfAFileWithoutAnyTableOfTheCourseIsNoStore) {
    FakeTable table = newWords();
    table.shape.name = QStringLiteral("holidays");
    Copy copy({table});
    EXPECT_FALSE(copy.report.sound);
    EXPECT_TRUE(copy.report.foreign);
    EXPECT_EQ(copy.report.problems,
              QStringList{QStringLiteral(
                  "D/tovalin.mdb: it holds no table that the course uses, and no store is made of it.")});
}

TEST(StoreCopy, SurvivesNamesThatNoStoreCanHave) {
    FakeTable twice = newWords();
    twice.shape.name = QStringLiteral("twice");
    twice.shape.columns[1].name = QStringLiteral("recordno");
    FakeTable reserved = newWords();
    reserved.shape.name = QStringLiteral("sqlite_mine");
    FakeTable nameless;
    nameless.shape.name = QStringLiteral("nameless");
    Copy copy({twice, reserved, nameless, newWords()});
    EXPECT_EQ(copy.report.problems.size(), 3);
    EXPECT_EQ(copy.ask("SELECT count(*) FROM newword"), QStringLiteral("2"));
}

}  // namespace
