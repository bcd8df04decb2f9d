#include "platform/storage/database.h"

#include "tests/platform/storage/two_words.h"

using platform::Database;
using platform::Transaction;
using support::errorOf;
using support::TemporaryStore;
using two_words::add;
using two_words::twoWords;

TEST(Transaction, StoresAllEditsWhenItCommits) {
    const TemporaryStore store(twoWords);
    const Database database = store.open();
    Transaction transaction(database);
    add(database, "lime");
    add(database, "plum");
    EXPECT_EQ(store.rows("select count(*) from words"), QStringList{"2"}) << "onlookers see nothing yet";
    transaction.commit();
    EXPECT_EQ(store.rows("select count(*) from words"), QStringList{"4"});
}

TEST(Transaction, StoresNothingWhenAnErrorLeavesIt) {
    const TemporaryStore store(twoWords);
    const Database database = store.open();
    platform::Recordset standing = database.openRecordset("Select * from words");
    EXPECT_EQ(errorOf([&] {
                  const Transaction transaction(database);
                  platform::Recordset set = database.openRecordset("Select * from words");
                  set.edit();
                  set.set("word", "plum");
                  set.update();
                  EXPECT_EQ(standing.text("word"), "plum");
                  set.text("colour");
              }),
              3265);
    EXPECT_EQ(standing.text("word"), "pear") << "what was given up is gone for every set";
    EXPECT_EQ(store.rows("select word from words"), (QStringList{"pear", "fig"}));
    add(database, "lime");
    EXPECT_EQ(store.rows("select count(*) from words"), QStringList{"3"}) << "the store takes edits again";
}

TEST(Transaction, TheOutermostOneStores) {
    const TemporaryStore store(twoWords);
    const Database database = store.open();
    Transaction outer(database);
    {
        Transaction inner(database);
        add(database, "lime");
        inner.commit();
    }
    EXPECT_EQ(store.rows("select count(*) from words"), QStringList{"2"});
    outer.commit();
    EXPECT_EQ(store.rows("select count(*) from words"), QStringList{"3"});
}

TEST(Transaction, APartGivenUpIsToldWhenTheWholeIsToBeStored) {
    const TemporaryStore store(twoWords);
    const Database database = store.open();
    Transaction outer(database);
    {
        const Transaction inner(database);
        add(database, "lime");
    }
    EXPECT_EQ(errorOf([&] { outer.commit(); }), 3049);
    EXPECT_EQ(store.rows("select count(*) from words"), QStringList{"2"});
}

TEST(Transaction, NeedsAnOpenDatabase) {
    EXPECT_EQ(errorOf([] { const Transaction batch{Database()}; }), 5);
}
