#pragma once

#include "platform/storage/value.h"

namespace SQLite {
class Column;
class Statement;
}  // namespace SQLite

namespace platform {

/// What a column of a result row holds.
Value readColumn(const SQLite::Column& column);

/// Gives a statement the value of one of its marks, counted from 1.
void bindValue(SQLite::Statement& statement, int position, const Value& value);

}  // namespace platform
