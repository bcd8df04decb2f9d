// Text tables as spreadsheets write them, and every way in which one can be broken.

#include "tools/coursefiles/table_file.h"

#include <gtest/gtest.h>

namespace {

using namespace tools;

const QString name = QStringLiteral("unit01/newword.csv");

TableFile parse(const QByteArray& text) {
    return parseTable(text, name);
}

/// "place: sentence" of what is wrong with a table.
QString wrong(const QByteArray& text) {
    try {
        parse(text);
    } catch (const SourceError& error) {
        EXPECT_FALSE(error.right().isEmpty());
        return error.place().text() + QStringLiteral(": ") + error.sentence();
    }
    return {};
}

TEST(TableFile, HasItsFieldsByNameAndItsRowsByLine) {
    const TableFile table = parse("recordno,Word\n1,cat\n2,dog\n");
    EXPECT_EQ(table.table, QStringLiteral("newword"));
    ASSERT_EQ(table.rows.size(), 2U);
    EXPECT_EQ(table.field(table.rows[1], QStringLiteral("word")), QStringLiteral("dog"));
    EXPECT_EQ(table.rows[1].line, 3);
    EXPECT_EQ(table.field(table.rows[1], QStringLiteral("korean")), QString());
}

TEST(TableFile, TakesAByteOrderMarkAndAnyEndOfLine) {
    for (const QByteArray text : {"\xEF\xBB\xBFrecordno,word\n1,cat\n", "recordno,word\r\n1,cat\r\n",
                                  "recordno,word\r1,cat\r", "recordno,word\n1,cat"}) {
        const TableFile table = parse(text);
        EXPECT_EQ(table.columns, (QStringList{QStringLiteral("recordno"), QStringLiteral("word")}));
        ASSERT_EQ(table.rows.size(), 1U);
        EXPECT_EQ(table.rows[0].fields[1], QStringLiteral("cat"));
    }
}

TEST(TableFile, KeepsLineBreaksCommasAndMarksInQuotesAndCountsLinesBehindThem) {
    const TableFile table = parse("recordno,tips\n1,\"one, \"\"two\"\"\nthree\"\n2,x\n");
    ASSERT_EQ(table.rows.size(), 2U);
    EXPECT_EQ(table.rows[0].fields[1], QStringLiteral("one, \"two\"\nthree"));
    EXPECT_EQ(table.rows[0].line, 2);
    EXPECT_EQ(table.rows[1].line, 4);
}

TEST(TableFile, KeepsBlanksAtTheEdgesOfAField) {
    EXPECT_EQ(parse("word\n cat \n").rows[0].fields[0], QStringLiteral(" cat "));
}

TEST(TableFile, PassesOverRowsWithoutAnyText) {
    EXPECT_EQ(parse("recordno,word\n\n1,cat\n,\n\n").rows.size(), 1U);
}

TEST(TableFile, TellsTheRowAndTheFirstFieldThatARowLacks) {
    EXPECT_EQ(wrong("recordno,word,korean\n1,cat\n"),
              QStringLiteral("unit01/newword.csv:2, field 'korean': the row has 2 fields, and the first line "
                             "names 3"));
    EXPECT_EQ(
        wrong("recordno,word\n1\n"),
        QStringLiteral("unit01/newword.csv:2, field 'word': the row has 1 field, and the first line names "
                       "2"));
    EXPECT_EQ(wrong("recordno,word\n1,cat,x\n"),
              QStringLiteral("unit01/newword.csv:2: the row has 3 fields, and the first line names 2"));
}

TEST(TableFile, GoesOnBehindRowsOfAnotherLengthWhereSomebodyCollectsThem) {
    ReadErrors damages;
    const TableFile table = parseTable("recordno,word\n1\n2,dog\n3,cow,x\n", name, &damages);
    EXPECT_EQ(damages.size(), 2U);
    ASSERT_EQ(table.rows.size(), 1U);
    EXPECT_EQ(table.rows[0].line, 3);
}

TEST(TableFile, TellsTheFieldOfATextThatIsNotUtf8) {
    EXPECT_EQ(wrong("recordno,word,korean\n1,cat,\xB0\xED\n"),
              QStringLiteral("unit01/newword.csv:2, field 'korean': the text is not UTF-8"));
    EXPECT_EQ(wrong(QByteArray("recordno,word\n1,c\0t\n", 20)),
              QStringLiteral("unit01/newword.csv:2, field 'word': the text holds a byte of value 0"));
    EXPECT_EQ(wrong("\xFF\xFEr"), QStringLiteral("unit01/newword.csv:1: the text is UTF-16, not UTF-8"));
}

TEST(TableFile, TellsAMarkOutOfPlaceAndAQuotedTextWithoutEnd) {
    EXPECT_EQ(
        wrong("recordno,word\n1,c\"at\n"),
        QStringLiteral("unit01/newword.csv:2, field 'word': a quotation mark stands in the wrong place"));
    EXPECT_EQ(wrong("recordno,word\n1,\"cat\n2,dog\n"),
              QStringLiteral("unit01/newword.csv:2, field 'word': a quoted text does not end"));
}

TEST(TableFile, TellsAFirstLineThatNamesNothingOrAFieldTwice) {
    EXPECT_EQ(wrong(""), QStringLiteral("unit01/newword.csv:1: the first line must name the fields"));
    EXPECT_EQ(wrong("word,Word\na,b\n"),
              QStringLiteral("unit01/newword.csv:1, field 'Word': the first line names this field twice"));
}

TEST(TableFile, TellsAFileThatIsNotThere) {
    EXPECT_THROW(readTableFile(QStringLiteral("/no/such/file.csv"), name), SourceError);
}

TEST(TableFile, TellsACharacterThatIsCutOffAtTheEnd) {
    const QString expected = QStringLiteral("unit01/newword.csv:2, field 'korean': the text is not UTF-8");
    for (const char* cut : {"\xEA", "\xEA\xB3", "\xF0\x9F\x99", "cat\xC3"})
        for (const char* end : {"", "\n"})
            EXPECT_EQ(wrong(QByteArray("recordno,word,korean\n1,cat,") + cut + end), expected);
    EXPECT_EQ(wrong("recordno,wor\xC3\n"), QStringLiteral("unit01/newword.csv:1: the text is not UTF-8"));
}

}  // namespace
