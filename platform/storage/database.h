#pragma once

#include <QString>

#include <memory>

namespace platform {

class Connection;
class Recordset;

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
    friend class Transaction;
    std::shared_ptr<Connection> connection_;
};

/// Makes a run of edits one transaction: all of them are stored when `commit` returns, none of them where
/// the run is left by an error. Transactions nest; the outermost one stores.
class Transaction {
   public:
    explicit Transaction(const Database& database);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    /// Throws DatabaseFailure when the store cannot be written, or a transaction inside this one was given
    /// up.
    void commit();

   private:
    std::shared_ptr<Connection> connection_;
    bool done_ = false;
};

}  // namespace platform
