#pragma once

#include "platform/storage/store_wait.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>

namespace platform {

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
    /// that it is called inside `translateErrors`.
    std::shared_ptr<SQLite::Statement> prepare(const QString& sql);
    /// Runs `work`, again for as long as another program holds the store, and turns what else the engine
    /// throws into a RuntimeError that names the store, and the table where a field is missing.
    template <typename Work>
    auto translateErrors(Work work, const QString& table = {}) -> decltype(work());
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

    void beginTransaction();
    void endTransaction(bool keep);

   private:
    void rollBack();
    bool waitForOthers(const SQLite::Exception& failure, std::unique_ptr<StoreWait>& wait);
    [[noreturn]] void translate(const SQLite::Exception& failure, const QString& table) const;

    QString file_;
    QString shownName_;
    std::unique_ptr<SQLite::Database> sqlite_;
    QHash<QString, std::shared_ptr<SQLite::Statement>> statements_;
    QHash<QString, std::shared_ptr<const TableShape>> shapes_;
    int transactionDepth_ = 0;
    bool transactionFailed_ = false;
    bool flushesFully_ = false;
    int rollbacks_ = 0;
};

template <typename Work>
auto Connection::translateErrors(Work work, const QString& table) -> decltype(work()) {
    for (std::unique_ptr<StoreWait> wait;;) {
        try {
            return work();
        } catch (const SQLite::Exception& failure) {
            if (!waitForOthers(failure, wait))
                translate(failure, table);
        }
    }
}

}  // namespace platform
