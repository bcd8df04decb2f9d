#include "platform/storage/recordset.h"

#include "tests/support/store.h"

using platform::Recordset;

namespace {

constexpr int rowCount = 2500;

/// More rows than a set reads at once; `orderno` runs against the stored order.
class LargeRecordsetTest : public testing::Test {
   protected:
    support::TemporaryStore store{
        "create table words(orderno INTEGER, word TEXT COLLATE NOCASE);"
        "with recursive n(i) as (select 1 union all select i+1 from n where i<2500) "
        "insert into words select 2501-i, 'word' || (i % 100) from n;"
        "create index by_order on words(orderno)"};
    platform::Database database = store.open();

    Recordset open(const char* rest = "order by orderno") const {
        return database.openRecordset(QStringLiteral("Select * from words ") + QString::fromUtf8(rest));
    }
};

}  // namespace

TEST_F(LargeRecordsetTest, CountsOneRowUntilItHasMovedToTheLast) {
    Recordset set = open();
    EXPECT_EQ(set.recordCount(), 1);
    set.moveLast();
    EXPECT_EQ(set.recordCount(), rowCount);
    EXPECT_EQ(set.integer("orderno"), rowCount);
    set.moveFirst();
    EXPECT_EQ(set.integer("orderno"), 1);
}

TEST_F(LargeRecordsetTest, WalksEveryRowInOrder) {
    Recordset set = open();
    int expected = 0;
    for (; !set.eof(); set.moveNext())
        ASSERT_EQ(set.integer("orderno"), ++expected);
    EXPECT_EQ(expected, rowCount);
}

TEST_F(LargeRecordsetTest, FindsFirstInItsOwnOrderWhetherReadToItsEndOrNot) {
    Recordset set = open("order by orderno desc");
    for (const bool whole : {false, true}) {
        set.findFirst("word='WORD7'");
        EXPECT_EQ(set.integer("orderno"), 2494) << whole;
        set.findFirst("orderno=3");
        EXPECT_EQ(set.integer("orderno"), 3);
        set.moveNext();
        EXPECT_EQ(set.integer("orderno"), 2);
        set.findFirst("orderno=9999");
        EXPECT_TRUE(set.noMatch());
        EXPECT_EQ(set.integer("orderno"), 2);
        while (!set.eof())
            set.moveNext();
    }
}

TEST_F(LargeRecordsetTest, FindsFirstAmongTheRowsOfItsQueryOnly) {
    Recordset set = open("where orderno>1200 order by orderno");
    set.findFirst("word='word0'");
    EXPECT_EQ(set.integer("orderno"), 1201);
    set.findFirst("orderno=7 or word='word0'");
    EXPECT_EQ(set.integer("orderno"), 1201);
}

TEST_F(LargeRecordsetTest, MovesOnFromTheLastRowToTheEnd) {
    Recordset set = open();
    set.moveLast();
    set.moveNext();
    EXPECT_TRUE(set.eof());
}

TEST_F(LargeRecordsetTest, DeletesEveryRow) {
    Recordset set = open();
    platform::Transaction transaction(database);
    deleteAll(set);
    transaction.commit();
    EXPECT_TRUE(set.isEmpty());
    EXPECT_EQ(store.rows("select count(*) from words"), QStringList{"0"});
}

TEST_F(LargeRecordsetTest, DeletesARowItJumpedTo) {
    Recordset set = open();
    set.findFirst("orderno=2000");
    set.remove();
    set.moveNext();
    EXPECT_EQ(set.integer("orderno"), 2001);
    set.moveLast();
    set.remove();
    set.moveLast();
    EXPECT_EQ(set.integer("orderno"), 2499);
    EXPECT_EQ(set.recordCount(), rowCount - 2);
}

TEST_F(LargeRecordsetTest, RowsThatAnotherSetDeletesMeanwhileHideNoOthers) {
    Recordset set = open();
    Recordset other = open("where orderno<=500");
    platform::Transaction transaction(database);
    deleteAll(other);
    transaction.commit();
    set.findFirst("orderno=1500");
    EXPECT_EQ(set.integer("orderno"), 1500);
    set.moveNext();
    EXPECT_EQ(set.integer("orderno"), 1501);
}

TEST_F(LargeRecordsetTest, EditsARowItJumpedTo) {
    Recordset set = open();
    set.findFirst("orderno=2222");
    set.edit();
    set.set("word", "pear");
    set.update();
    EXPECT_EQ(store.rows("select orderno from words where word='pear'"), QStringList{"2222"});
}

TEST_F(LargeRecordsetTest, RowsAddedBeforeItIsReadToItsEndAreNotLost) {
    Recordset set = open("order by orderno");
    set.addNew();
    set.set("orderno", 3000);
    set.update();
    set.moveLast();
    EXPECT_EQ(set.recordCount(), rowCount + 1);
    EXPECT_EQ(set.integer("orderno"), 3000);
}

TEST_F(LargeRecordsetTest, ARowFoundByAJumpThatAnotherSetDeletedIsRemovedWithoutHarm) {
    for (const bool last : {true, false}) {
        Recordset set = open();
        const int far = last ? 2500 : 2400;
        if (last)
            set.moveLast();
        else
            set.findFirst("orderno=2400");
        ASSERT_EQ(set.integer("orderno"), far);
        Recordset other = open(last ? "where orderno=2500" : "where orderno=2400");
        other.remove();
        set.remove();
        EXPECT_EQ(set.recordCount(), last ? 2499 : 1) << "no other row was taken for it";
        set.addNew();
        set.set("orderno", 3000);
        set.update();
        set.moveNext();
        EXPECT_TRUE(set.eof() || set.integer("orderno") == 3000);
        set.moveFirst();
        EXPECT_EQ(set.integer("orderno"), 1);
    }
    EXPECT_EQ(store.rows("select count(*) from words"), QStringList{"2500"});
}
