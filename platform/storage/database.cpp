#include "platform/storage/database.h"

#include "platform/storage/connection.h"

#include "platform/error.h"
#include "platform/letter_case.h"
#include "platform/storage/recordset.h"
#include "platform/storage/store_errors.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>
#include <QFileInfo>
#include <QSet>

#include <utility>

namespace platform {

namespace {

QHash<QString, std::weak_ptr<Connection>>& openConnections() {
    static QHash<QString, std::weak_ptr<Connection>> connections;
    return connections;
}

/// The stores that were read through and found sound: once a run is enough.
QSet<QString>& soundStores() {
    static QSet<QString> stores;
    return stores;
}

}  // namespace

Database Database::open(const QString& file, const QString& shownName) {
    Database database;
    const QString key = QFileInfo(file).canonicalFilePath();
    // A store that is open is not looked into again: closing another handle on its file would take back
    // every lock that this process holds on it.
    database.connection_ = openConnections().value(key).lock();
    if (database.connection_)
        return database;
    requireStore(file, shownName);
    auto connection = std::make_shared<Connection>(file, shownName);
    if (!soundStores().contains(key)) {
        connection->requireSound();
        soundStores().insert(key);
    }
    openConnections().insert(key, connection);
    database.connection_ = std::move(connection);
    return database;
}

void Database::flushFully() const {
    connection_->flushFully();
}

void Database::requireWritable() const {
    connection_->requireWritable();
}

void Database::noteOrigin(const QString& table, const QString& origin) const {
    connection_->noteOrigin(table, origin);
}

Recordset Database::openRecordset(const QString& sql) const {
    if (!connection_)
        throw RuntimeError(ErrorCode::InvalidCall,
                           QStringLiteral("The database of this query is closed: %1").arg(sql));
    return {connection_, Query::parse(sql)};
}

Transaction::Transaction(const Database& database) : connection_(database.connection_) {
    if (!connection_)
        throw RuntimeError(ErrorCode::InvalidCall, QStringLiteral("A run of edits needs an open database."));
    connection_->beginTransaction();
}

Transaction::~Transaction() {
    if (!done_)
        connection_->endTransaction(false);
}

void Transaction::commit() {
    done_ = true;
    connection_->endTransaction(true);
}

}  // namespace platform
