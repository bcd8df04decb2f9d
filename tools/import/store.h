#pragma once

#include "tools/import/value.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <functional>

namespace tools {

/// Which store a file becomes and how messages name it.
struct StoreSource {
    QString file;
    QString shownName;  // as the report names the file
    QString
        schemaStore;  // name of the store in the schema: "tovalin.mdb", "DbScore"; empty for a foreign file
};

/// One table of the source held against its copy.
struct TableProof {
    QString table;
    qint64 sourceRows = 0;
    qint64 copyRows = 0;
    QString sourceSum;
    QString copySum;
    bool known = false;    // one that the course counts on
    bool leftOut = false;  // not in the store
    int problems = 0;

    bool proven() const { return sourceRows == copyRows && sourceSum == copySum; }
};

struct CopyReport {
    std::vector<TableProof> tables;
    QStringList problems;  // each a sentence with file, table, row and column
    QStringList notes;
    bool sound = true;     // every table that the course counts on came over whole
    bool foreign = false;  // no table is one that the course counts on
};

/// Told after every table and now and then inside a long one.
using CopyProgress = std::function<void(const QString& table, qint64 rows)>;

/// Copies every table of a file into an empty store, makes the indexes and the tables that the course counts
/// on, and proves the copy by reading it back. With `salvage`, tables stay as far as they could be read.
CopyReport copyStore(AccessReader& reader, const StoreSource& source, SQLite::Database& store, bool salvage,
                     const CopyProgress& progress);

/// Row count and checksum of a table of a store.
TableSum sumOfTable(SQLite::Database& store, const QString& table);

/// The value of a column, as `canonical` takes it.
QVariant columnValue(const SQLite::Column& column);
void bindColumn(SQLite::Statement& statement, int place, const QVariant& value);
/// A name as SQL takes it, in double quotes.
QString quotedName(const QString& name);

}  // namespace tools
