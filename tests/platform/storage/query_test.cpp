#include "platform/storage/query.h"

#include "tests/support/store.h"

using platform::Query;
using support::errorOf;

TEST(Query, TakesTheOneShapeApartInAnyCase) {
    const Query query = Query::parse(
        "  SELECT * From [tablework] WHERE topicno=3 and Title='order by a' ORDER BY pageno desc ");
    EXPECT_EQ(query.table, "tablework");
    EXPECT_EQ(query.where, "topicno=3 and Title='order by a'");
    EXPECT_EQ(query.orderBy, "pageno desc");
    EXPECT_EQ(Query::parse("Select * from topic").where, "");
}

TEST(Query, AnyOtherShapeIsASyntaxError) {
    for (const char* sql :
         {"", "Select word from words", "Delete from words", "Select * from words having a=1"})
        EXPECT_EQ(errorOf([&] { Query::parse(sql); }), 3077) << sql;
}
