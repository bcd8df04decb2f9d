#pragma once

#include "platform/storage/database.h"
#include "platform/storage/recordset.h"

#include <functional>

namespace vocabulary {

/// Deletes every row of a working table.
void emptyTable(const platform::Database& store, const QString& table);

/// Adds a row with `word` and `definition` to a working table for every word of the book that `keeps` lets
/// through; `others` sets the row's other fields.
void copyWords(platform::Recordset& book, const platform::Database& store, const QString& table,
               const std::function<bool(const QString& word)>& keeps = {},
               const std::function<void(platform::Recordset& row)>& others = {});

/// The rows of a set, which stands on its first row afterwards. Throws NoCurrentRecord where there is none.
int countRows(platform::Recordset& rows);

/// Lets a set's rows beyond a number of order go.
void deleteAbove(platform::Recordset& rows, int lastKept);

}  // namespace vocabulary
