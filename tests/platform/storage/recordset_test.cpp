#include "platform/storage/recordset.h"

#include "tests/support/store.h"

using platform::Recordset;
using support::errorOf;

namespace {

/// Five words, two of them alike but for case, one without a mark.
class RecordsetTest : public testing::Test {
   protected:
    support::TemporaryStore store{
        "create table words(orderno INTEGER, Word TEXT COLLATE NOCASE, mark REAL, note TEXT COLLATE NOCASE);"
        "insert into words values(3,'pear',100,''),(1,'Apple',37.5,'N/A'),(2,'fig',0,'33000'),"
        "(5,'APPLE',NULL,NULL),(4,'kiwi',80,'12.5')"};
    platform::Database database = store.open();

    Recordset open(const char* rest = "") const {
        return database.openRecordset(QStringLiteral("Select * from words ") + QString::fromUtf8(rest));
    }
    static QStringList words(Recordset set) {
        QStringList found;
        for (; !set.eof(); set.moveNext())
            found.append(set.text("word"));
        return found;
    }
};

}  // namespace

TEST_F(RecordsetTest, OpensAtItsFirstRowInTheOrderOfTheQuery) {
    EXPECT_EQ(open("order by orderno").text("word"), "Apple");
    EXPECT_EQ(words(open("where orderno > 1 order by orderno desc")),
              (QStringList{"APPLE", "kiwi", "pear", "fig"}));
    EXPECT_EQ(words(open()), (QStringList{"pear", "Apple", "fig", "APPLE", "kiwi"})) << "stored order";
}

TEST_F(RecordsetTest, AnEmptySetStandsAtItsStartAndItsEnd) {
    Recordset none = open("where orderno=99");
    EXPECT_TRUE(none.bof());
    EXPECT_TRUE(none.eof());
    EXPECT_EQ(none.recordCount(), 0);
    EXPECT_EQ(errorOf([&] { none.moveFirst(); }), 3021);
    EXPECT_EQ(errorOf([&] { none.moveLast(); }), 3021);
    EXPECT_EQ(errorOf([&] { none.moveNext(); }), 3021);
    EXPECT_EQ(errorOf([&] { none.text("word"); }), 3021);
}

TEST_F(RecordsetTest, CountsOneRowUntilItHasMovedToTheLast) {
    Recordset set = open();
    EXPECT_EQ(set.recordCount(), 1);
    set.moveNext();
    EXPECT_EQ(set.recordCount(), 2);
    set.moveLast();
    EXPECT_EQ(set.recordCount(), 5);
    set.moveFirst();
    EXPECT_EQ(set.recordCount(), 5);
}

TEST_F(RecordsetTest, MovesByACountAndStandsAtTheEndBeyondTheLastRow) {
    Recordset set = open("order by orderno");
    set.move(3);
    EXPECT_EQ(set.text("word"), "kiwi");
    set.move(0);
    EXPECT_EQ(set.text("word"), "kiwi");
    set.move(7);
    EXPECT_TRUE(set.eof());
    EXPECT_EQ(errorOf([&] { set.moveNext(); }), 3021);
}

TEST_F(RecordsetTest, FieldsAreFoundInAnyCaseAndByIndex) {
    const Recordset set = open("order by orderno");
    EXPECT_EQ(set.text("WORD"), "Apple");
    EXPECT_EQ(set.text("Word"), "Apple");
    EXPECT_EQ(set.value(1).toText(), "Apple");
    EXPECT_EQ(set.fieldCount(), 4);
    EXPECT_EQ(set.fieldName(0), "orderno");
    EXPECT_EQ(set.findField("MARK"), 2);
    EXPECT_EQ(set.findField("colour"), -1);
}

TEST_F(RecordsetTest, AFieldThatTheTableLacksIsNamed) {
    const Recordset set = open();
    QString sentence;
    EXPECT_EQ(errorOf([&] { set.text("colour"); }, &sentence), 3265);
    EXPECT_TRUE(sentence.contains("colour") && sentence.contains("words") &&
                sentence.contains("D:\\tovalin.mdb"));
    EXPECT_EQ(errorOf([&] { set.value(4); }), 3265);
}

TEST_F(RecordsetTest, TextsCompareWithoutRegardToCase) {
    EXPECT_EQ(words(open("where word='aPPle' order by orderno")), (QStringList{"Apple", "APPLE"}));
    Recordset set = open("order by orderno");
    set.findFirst("word='FIG'");
    EXPECT_FALSE(set.noMatch());
    EXPECT_EQ(set.text("word"), "fig");
}

TEST_F(RecordsetTest, FindFirstTakesTheFirstMatchInTheOrderOfTheSet) {
    Recordset set = open("order by orderno desc");
    set.findFirst("word='apple'");
    EXPECT_EQ(set.integer("orderno"), 5);
    set.moveNext();
    EXPECT_EQ(set.text("word"), "kiwi");
}

TEST_F(RecordsetTest, FindFirstWithoutAMatchLeavesThePlace) {
    Recordset set = open("order by orderno");
    set.moveNext();
    set.findFirst("word='mango'");
    EXPECT_TRUE(set.noMatch());
    EXPECT_EQ(set.text("word"), "fig");
}

TEST_F(RecordsetTest, FindFirstStaysWithinTheRowsOfTheQuery) {
    Recordset set = open("where orderno>2");
    set.findFirst("word='fig'");
    EXPECT_TRUE(set.noMatch());
}

TEST_F(RecordsetTest, AnApostropheInsideACriterionIsASyntaxError) {
    Recordset set = open();
    QString sentence;
    EXPECT_EQ(errorOf([&] { set.findFirst("word='don't'"); }, &sentence), 3077);
    EXPECT_TRUE(sentence.contains("Syntax error")) << sentence.toStdString();
    EXPECT_EQ(errorOf([&] { open("where word='don't'"); }), 3077);
}

TEST_F(RecordsetTest, ARowEditedThroughOneSetIsSeenByAnother) {
    Recordset one = open("order by orderno");
    const Recordset other = open("order by orderno");
    EXPECT_EQ(other.text("word"), "Apple");
    one.edit();
    one.set("word", "plum");
    one.update();
    EXPECT_EQ(other.text("word"), "plum");
}

TEST_F(RecordsetTest, ARowAddedThroughOneSetIsSeenByTheNextThatOpens) {
    Recordset one = open();
    one.addNew();
    one.set("orderno", 6);
    one.set("word", "lime");
    one.update();
    Recordset other = open("order by orderno");
    other.moveLast();
    EXPECT_EQ(other.text("word"), "lime");
    EXPECT_EQ(other.recordCount(), 6);
}

TEST_F(RecordsetTest, AnAddedRowJoinsAtTheEndAndThePlaceIsThatFromBefore) {
    Recordset set = open("order by orderno");
    set.moveNext();
    set.addNew();
    EXPECT_TRUE(set.value("word").isNull()) << "a new row starts without values";
    set.set("orderno", 0);
    set.set("word", "lime");
    set.update();
    EXPECT_EQ(set.text("word"), "fig");
    EXPECT_EQ(words(set), (QStringList{"fig", "pear", "kiwi", "APPLE", "lime"}));
    set.moveLast();
    EXPECT_EQ(set.recordCount(), 6);
    EXPECT_EQ(store.rows("select note from words where word='lime'"), QStringList{"NULL"});
}

TEST_F(RecordsetTest, ARowAddedToAnEmptySetIsReachedByAMove) {
    Recordset set = open("where orderno=99");
    set.addNew();
    set.set("word", "lime");
    set.update();
    EXPECT_FALSE(set.isEmpty());
    EXPECT_EQ(errorOf([&] { set.text("word"); }), 3021) << "the place is still before it";
    set.moveNext();
    EXPECT_EQ(set.text("word"), "lime");
}

TEST_F(RecordsetTest, AnEditWritesOnlyTheFieldsThatWereSet) {
    Recordset set = open("where orderno=4");
    set.edit();
    set.set("note", "");
    EXPECT_EQ(set.text("note"), "") << "what was set can be read before it is stored";
    set.update();
    EXPECT_EQ(store.rows("select * from words where orderno=4"), QStringList{"4|kiwi|80.0|"});
}

TEST_F(RecordsetTest, AMoveDropsAnEditThatWasNotStored) {
    Recordset set = open("order by orderno");
    set.edit();
    set.set("word", "plum");
    set.moveNext();
    EXPECT_EQ(set.text("word"), "fig");
    EXPECT_EQ(errorOf([&] { set.update(); }), 5);
    EXPECT_EQ(store.rows("select count(*) from words where word='plum'"), QStringList{"0"});
}

TEST_F(RecordsetTest, SettingAFieldWithoutAnEditIsAnError) {
    Recordset set = open();
    EXPECT_EQ(errorOf([&] { set.set("word", "plum"); }), 5);
    EXPECT_EQ(errorOf([&] { set.update(); }), 5);
}

TEST_F(RecordsetTest, ADeletedRowLeavesThePlaceOnNothingUntilTheNextMove) {
    Recordset set = open("order by orderno");
    set.moveNext();
    set.remove();
    EXPECT_EQ(errorOf([&] { set.text("word"); }), 3021);
    set.moveNext();
    EXPECT_EQ(set.text("word"), "pear");
    set.moveLast();
    EXPECT_EQ(set.recordCount(), 4);
    set.findFirst("word='fig'");
    EXPECT_TRUE(set.noMatch());
}

TEST_F(RecordsetTest, DeletingEveryRowEmptiesTheTable) {
    Recordset set = open();
    deleteAll(set);
    EXPECT_TRUE(set.isEmpty());
    EXPECT_EQ(store.rows("select count(*) from words"), QStringList{"0"});
    deleteAll(set);
}

TEST_F(RecordsetTest, ARowDeletedThroughAnotherSetIsNoCurrentRecord) {
    const Recordset one = open("where orderno=2");
    Recordset other = open("where orderno=2");
    other.remove();
    EXPECT_EQ(errorOf([&] { one.text("word"); }), 3021);
}

TEST_F(RecordsetTest, AFieldWithoutAValueIsAnErrorThatNamesStoreTableFieldAndRow) {
    const Recordset set = open("where orderno=5");
    QString sentence;
    EXPECT_EQ(errorOf([&] { set.text("note"); }, &sentence), 94);
    for (const char* part : {"D:\\tovalin.mdb", "words", "'note'", "row 1", "orderno=5"})
        EXPECT_TRUE(sentence.contains(part)) << part << " in " << sentence.toStdString();
    EXPECT_EQ(errorOf([&] { set.integer("mark"); }), 94);
    EXPECT_EQ(set.textOrEmpty("note"), "");
}

TEST_F(RecordsetTest, AnEmptyTextIsNoMissingValue) {
    const Recordset set = open("where orderno=3");
    EXPECT_FALSE(set.value("note").isNull());
    EXPECT_EQ(set.text("note"), "");
    EXPECT_EQ(errorOf([&] { set.integer("note"); }), 13);
}

TEST_F(RecordsetTest, ATextIsReadAsANumberOrIsATypeMismatchOrAnOverflow) {
    EXPECT_EQ(open("where orderno=4").integer("note"), 12) << "12.5 goes to the even number";
    EXPECT_EQ(errorOf([&] { open("where orderno=1").integer("note"); }), 13);
    EXPECT_EQ(errorOf([&] { open("where orderno=2").integer("note"); }), 6);
}

TEST_F(RecordsetTest, NumbersReadInTheirShortestForm) {
    EXPECT_EQ(open("where orderno=3").text("mark"), "100");
    EXPECT_EQ(open("where orderno=1").text("mark"), "37.5");
    EXPECT_EQ(open("where mark=0").text("word"), "fig") << "a number column compares with a number";
}

TEST_F(RecordsetTest, AClosedSetOrHandleIsAnErrorAndNoCrash) {
    Recordset set = open();
    set.close();
    set.close();
    EXPECT_FALSE(set.isOpen());
    EXPECT_TRUE(set.isEmpty());
    EXPECT_EQ(set.recordCount(), 0);
    const std::vector<std::function<void()>> uses{
        [&] { set.moveFirst(); },  [&] { set.moveLast(); },
        [&] { set.moveNext(); },   [&] { set.move(1); },
        [&] { set.edit(); },       [&] { set.addNew(); },
        [&] { set.remove(); },     [&] { set.update(); },
        [&] { set.text("word"); }, [&] { set.findFirst("word='a'"); },
        [&] { set.fieldCount(); }, [&] { set.set(0, 1); }};
    for (std::size_t i = 0; i < uses.size(); ++i)
        EXPECT_EQ(errorOf(uses[i]), 5) << i;
    database.close();
    database.close();
    EXPECT_FALSE(database.isOpen());
    EXPECT_EQ(errorOf([&] { open(); }), 5);
}

TEST_F(RecordsetTest, ASetOutlivesTheHandleItWasOpenedFrom) {
    const Recordset set = open("order by orderno");
    database.close();
    EXPECT_EQ(set.text("word"), "Apple");
}

TEST_F(RecordsetTest, ARowThatTakesTheKeyOfADeletedOneIsTheOneThatIsFound) {
    Recordset set = open();
    set.moveLast();
    set.remove();
    set.addNew();
    set.set("orderno", 6);
    set.set("word", "lime");
    set.update();
    set.findFirst("word='lime'");
    ASSERT_FALSE(set.noMatch());
    set.remove();
    set.moveFirst();
    EXPECT_EQ(words(set), (QStringList{"pear", "Apple", "fig", "APPLE"}));
    EXPECT_EQ(set.recordCount(), 4);
}

TEST_F(RecordsetTest, ATextThatNoScreenCouldShowIsToldWithItsPlace) {
    EXPECT_EQ(store.rows("select count(*) from words"), QStringList{"5"});
    {
        SQLite::Database other(store.file().toStdString(), SQLite::OPEN_READWRITE);
        other.exec(
            "update words set note=printf('%.*c', 3000000, 'x') where orderno=4;"
            "update words set note=printf('%.*c', 65535, 'x') where orderno=3");
    }
    const Recordset set = open("where orderno=4");
    for (const bool orEmpty : {false, true}) {
        QString sentence;
        EXPECT_EQ(errorOf([&] { orEmpty ? set.textOrEmpty("note") : set.text("note"); }, &sentence), 3049);
        for (const char* part : {"3000000 letters", "'note'", "'words'", "D:\\tovalin.mdb", "row 1"})
            EXPECT_TRUE(sentence.contains(part)) << part << " in " << sentence.toStdString();
    }
    EXPECT_EQ(set.text("word"), "kiwi");
    EXPECT_EQ(open("where orderno=3").text("note").size(), 65535);
}

TEST_F(RecordsetTest, MessagesOnAWorkingTableNameWhereItsRowsComeFrom) {
    database.noteOrigin("Words", "table 'master' of 'D:\\Tovalin_Data.mdb'");
    const Recordset set = open("where orderno=5");
    QString sentence;
    EXPECT_EQ(errorOf([&] { set.text("note"); }, &sentence), 94);
    EXPECT_TRUE(
        sentence.contains("'words' of 'D:\\tovalin.mdb' where orderno=5, filled from table 'master' of "
                          "'D:\\Tovalin_Data.mdb', row 1"))
        << sentence.toStdString();
}
