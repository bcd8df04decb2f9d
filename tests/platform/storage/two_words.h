#pragma once

#include "tests/support/store.h"

/// A store of one table with two words, and how a further one is added to it.
namespace two_words {

inline const std::string twoWords =
    "create table words(word TEXT COLLATE NOCASE); insert into words values('pear'),('fig')";

inline void add(const platform::Database& database, const char* word) {
    platform::Recordset set = database.openRecordset("Select * from words");
    set.addNew();
    set.set("word", word);
    set.update();
}

}  // namespace two_words
