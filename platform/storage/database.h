#pragma once

#include "platform/storage/store_faults.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>

namespace SQLite {
class Database;
class Exception;
class Statement;
}  // namespace SQLite

namespace platform {

class Connection;
class Recordset;
class StoreWait;

/// A handle on one store. Handles on the same file share one connection, so that they never wait for each
/// other; the file closes with the last handle or record set on it.
class Database {
   public:
    Database() = default;

    /// Opens an existing store. `shownName` is the path that messages name. Throws DatabaseNotFound for a
    /// missing file and UnrecognizedFormat for one that is no store, a genuine Access file being told as
    /// such, or that is damaged: the first opening of a run reads it through before anything is written.
    static Database open(const QString& file, const QString& shownName);

    bool isOpen() const { return connection_ != nullptr; }
    /// Opens an updatable set of rows from `Select * from T [where C] [order by O]`, positioned at its first
    /// row. Throws SyntaxError, TableNotFound or ItemNotFound.
    Recordset openRecordset(const QString& sql) const;
    /// From now on an edit is safe from a power cut when it returns: the removal of its journal is on the
    /// disk too, without which the next opening would take the edit back. Costs one flush an edit.
    void flushFully() const;
    /// Tries to write without changing anything. Throws DatabaseFailure when the file, its folder or its disk
    /// takes no writing.
    void requireWritable() const;
    /// Notes where the rows of a working table come from; messages on the table name it too.
    void noteOrigin(const QString& table, const QString& origin) const;
    /// Lets the handle go; an unopened one stays as it is.
    void close() { connection_.reset(); }

   private:
    friend class Batch;
    std::shared_ptr<Connection> connection_;
};

/// Makes a run of edits one transaction: all of them are stored when `commit` returns, none of them where
/// the run is left by an error. Batches nest; the outermost one stores.
class Batch {
   public:
    explicit Batch(const Database& database);
    ~Batch();
    Batch(const Batch&) = delete;
    Batch& operator=(const Batch&) = delete;

    /// Throws DatabaseFailure when the store cannot be written, or a batch inside this one was given up.
    void commit();

   private:
    std::shared_ptr<Connection> connection_;
    bool done_ = false;
};

/// The statement text that reads the row of one key.
QString rowQuery(const QString& table);

/// Columns of a table in their stored order.
struct TableShape {
    QString name;
    QStringList columns;
    QHash<QString, int> indexByLowerName;
};

/// The open file behind handles and record sets.
class Connection {
   public:
    Connection(const QString& file, QString shownName);
    ~Connection();

    const QString& shownName() const { return shownName_; }
    SQLite::Database& sqlite() { return *sqlite_; }
    /// Throws TableNotFound.
    std::shared_ptr<const TableShape> shape(const QString& table);
    /// A prepared statement, kept for the next use of the same text and reset. Throws as the engine does, so
    /// that it is called inside `guarded`.
    std::shared_ptr<SQLite::Statement> prepare(const QString& sql);
    /// Runs `work`, again for as long as another program holds the store, and turns what else the engine
    /// throws into a RuntimeError that names the store, and the table where a field is missing.
    template <typename Work>
    auto guarded(Work work, const QString& table = {}) -> decltype(work());
    void flushFully();
    void noteOrigin(const QString& table, const QString& origin);
    /// Where a table's rows come from, empty where nobody noted it.
    QString origin(const QString& table) const;
    /// Reads the store through. Throws UnrecognizedFormat when it is damaged.
    void requireSound();
    /// Throws as Database::requireWritable tells.
    void requireWritable();
    /// A number that changes with everything that changes the store's rows.
    int totalChanges() const;

    void beginBatch();
    void endBatch(bool keep);

   private:
    void rollBack();
    bool waitForOthers(const SQLite::Exception& failure, std::unique_ptr<StoreWait>& wait);
    [[noreturn]] void translate(const SQLite::Exception& failure, const QString& table) const;

    QString file_;
    QString shownName_;
    std::unique_ptr<SQLite::Database> sqlite_;
    QHash<QString, std::shared_ptr<SQLite::Statement>> statements_;
    QHash<QString, std::shared_ptr<const TableShape>> shapes_;
    int batchDepth_ = 0;
    bool batchFailed_ = false;
    bool flushesFully_ = false;
    int rollbacks_ = 0;
};

}  // namespace platform
