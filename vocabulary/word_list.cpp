#include "vocabulary/word_list.h"

namespace vocabulary {

using platform::Database;
using platform::Recordset;

namespace {

const QString word = QStringLiteral("word");
const QString orderNo = QStringLiteral("orderno");

}  // namespace

void emptyTable(const Database& store, const QString& table) {
    platform::Transaction transaction(store);
    Recordset rows = store.openRecordset(QStringLiteral("Select * from ") + table);
    platform::deleteAll(rows);
    transaction.commit();
}

void copyWords(Recordset& book, const Database& store, const QString& table,
               const std::function<bool(const QString& word)>& keeps,
               const std::function<void(Recordset& row)>& others) {
    platform::Transaction transaction(store);
    Recordset rows = store.openRecordset(QStringLiteral("Select * from ") + table);
    for (; !book.eof(); book.moveNext()) {
        if (keeps && !keeps(book.textOrEmpty(word)))
            continue;
        rows.addNew();
        rows.set(word, book.value(word));
        rows.set(QStringLiteral("definition"), book.value(QStringLiteral("korean")));
        if (others)
            others(rows);
        rows.update();
    }
    transaction.commit();
}

int countRows(Recordset& rows) {
    rows.moveLast();
    const int count = rows.recordCount();
    rows.moveFirst();
    return count;
}

void deleteAbove(Recordset& rows, int lastKept) {
    for (rows.moveFirst(); !rows.eof(); rows.moveNext())
        if (rows.integer(orderNo) > lastKept)
            rows.remove();
}

}  // namespace vocabulary
