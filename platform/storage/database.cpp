#include "platform/storage/database.h"

#include "platform/storage/connection_guard.h"

#include "platform/error.h"
#include "platform/letter_case.h"
#include "platform/storage/recordset.h"
#include "platform/storage/store_faults.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>
#include <QFileInfo>
#include <QSet>

#include <utility>

namespace platform {

namespace {

// How long a store that another program holds is asked for before the learner hears of it, in milliseconds.
constexpr int busyTimeout = 250;
// A store is read through when a run first opens it: up to the first size together with its indexes, up to
// the second without them, in bytes. Beyond it a learner would notice.
constexpr qint64 fullCheckLimit = 1024LL * 1024;
constexpr qint64 quickCheckLimit = 8 * fullCheckLimit;

QHash<QString, std::weak_ptr<Connection>>& openConnections() {
    static QHash<QString, std::weak_ptr<Connection>> connections;
    return connections;
}

/// The stores that were read through and found sound: once a run is enough.
QSet<QString>& soundStores() {
    static QSet<QString> stores;
    return stores;
}

/// Where the rows of working tables come from, for longer than a store is open: a screen opens it anew.
QHash<QString, QString>& origins() {
    static QHash<QString, QString> notes;
    return notes;
}

QString originKey(const QString& file, const QString& table) {
    return file + u'|' + table.toLower();
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
        throw RuntimeError(Fault::InvalidCall,
                           QStringLiteral("The database of this query is closed: %1").arg(sql));
    return {connection_, Query::parse(sql)};
}

Batch::Batch(const Database& database) : connection_(database.connection_) {
    if (!connection_)
        throw RuntimeError(Fault::InvalidCall, QStringLiteral("A run of edits needs an open database."));
    connection_->beginBatch();
}

Batch::~Batch() {
    if (!done_)
        connection_->endBatch(false);
}

void Batch::commit() {
    done_ = true;
    connection_->endBatch(true);
}

Connection::Connection(const QString& file, QString shownName)
    : file_(file), shownName_(std::move(shownName)) {
    guarded([&] {
        sqlite_ = std::make_unique<SQLite::Database>(file.toStdString(), SQLite::OPEN_READWRITE, busyTimeout);
        compareStoredTextsButForCase(sqlite_->getHandle());
    });
}

Connection::~Connection() = default;

QString rowQuery(const QString& table) {
    return QStringLiteral("SELECT * FROM \"%1\" WHERE _rowid_=?").arg(table);
}

std::shared_ptr<const TableShape> Connection::shape(const QString& table) {
    const QString key = table.toLower();
    if (const auto known = shapes_.constFind(key); known != shapes_.constEnd())
        return *known;
    auto shape = std::make_shared<TableShape>();
    shape->name = table;
    // The statement is the one that the rows will be read with, so that it is made ready only once.
    const auto row = guarded([&] { return prepare(rowQuery(table)); });
    for (int i = 0; i < row->getColumnCount(); ++i) {
        const QString column = QString::fromUtf8(row->getColumnName(i));
        shape->indexByLowerName.insert(column.toLower(), i);
        shape->columns.append(column);
    }
    shapes_.insert(key, shape);
    return shape;
}

std::shared_ptr<SQLite::Statement> Connection::prepare(const QString& sql) {
    if (const auto known = statements_.constFind(sql); known != statements_.constEnd()) {
        // What its last use failed with is not what this one fails with.
        (*known)->tryReset();
        return *known;
    }
    auto statement = std::make_shared<SQLite::Statement>(*sqlite_, sql.toStdString());
    statements_.insert(sql, statement);
    return statement;
}

int Connection::totalChanges() const {
    return sqlite3_total_changes(sqlite_->getHandle()) + rollbacks_;
}

void Connection::flushFully() {
    if (flushesFully_)
        return;
    guarded([&] { sqlite_->exec("PRAGMA synchronous=EXTRA"); });
    flushesFully_ = true;
}

void Connection::beginBatch() {
    if (batchDepth_ == 0) {
        guarded([&] { sqlite_->exec("BEGIN IMMEDIATE"); });
        batchFailed_ = false;
    }
    ++batchDepth_;
}

void Connection::endBatch(bool keep) {
    batchFailed_ = batchFailed_ || !keep;
    if (--batchDepth_ > 0)
        return;
    if (!batchFailed_) {
        try {
            guarded([&] { sqlite_->exec("COMMIT"); });
        } catch (const RuntimeError&) {
            rollBack();
            throw;
        }
        return;
    }
    rollBack();
    if (keep)
        throw RuntimeError(
            Fault::DatabaseFailure,
            QStringLiteral("'%1' cannot be used: a part of the run of edits was given up.").arg(shownName_));
}

void Connection::rollBack() {
    // A failed statement may have rolled back by itself; a second rollback is then refused, rightly.
    sqlite_->tryExec("ROLLBACK");
    ++rollbacks_;
}

bool Connection::waitForOthers(const SQLite::Exception& failure, std::unique_ptr<StoreWait>& wait) {
    if (failure.getErrorCode() != SQLITE_BUSY)
        return false;
    if (!wait)
        wait = std::make_unique<StoreWait>(shownName_);
    return wait->pause();
}

void Connection::noteOrigin(const QString& table, const QString& origin) {
    origins().insert(originKey(file_, table), origin);
}

QString Connection::origin(const QString& table) const {
    return origins().value(originKey(file_, table));
}

void Connection::requireSound() {
    const qint64 size = QFileInfo(file_).size();
    if (size > quickCheckLimit)
        return;
    const QString found = guarded([&] {
        SQLite::Statement check(
            *sqlite_, size > fullCheckLimit ? "PRAGMA quick_check(1)" : "PRAGMA integrity_check(1)");
        return check.executeStep() ? QString::fromUtf8(check.getColumn(0).getText()) : QString();
    });
    if (found != QStringLiteral("ok"))
        throwDamaged(file_, shownName_, found.section(u'\n', -1));
}

void Connection::requireWritable() {
    // A change of the head makes the engine open its journal; it is taken back before anything reaches the
    // file.
    const auto version = guarded([&] { return sqlite_->execAndGet("PRAGMA user_version").getInt(); });
    beginBatch();
    try {
        guarded([&] { sqlite_->exec("PRAGMA user_version=" + std::to_string(version ^ 1)); });
    } catch (const RuntimeError&) {
        endBatch(false);
        throw;
    }
    endBatch(false);
}

void Connection::translate(const SQLite::Exception& failure, const QString& table) const {
    const int code = failure.getErrorCode();
    const QString reason = QString::fromUtf8(failure.what());
    if (code == SQLITE_CORRUPT || code == SQLITE_NOTADB)
        throwDamaged(file_, shownName_, reason);
    if (code == SQLITE_ERROR)
        throwRefusedStatement(shownName_, table, reason);
    if (code == SQLITE_BUSY)
        throw RuntimeError(Fault::DatabaseFailure,
                           QStringLiteral("'%1' is held by another program. Close that one first (%2).")
                               .arg(shownName_, file_));
    if (failure.getExtendedErrorCode() == SQLITE_READONLY_DBMOVED)
        throw RuntimeError(Fault::DatabaseFailure,
                           QStringLiteral("'%1' was replaced while it was in use. Start the program again.")
                               .arg(shownName_));
    if (code == SQLITE_READONLY || code == SQLITE_PERM || code == SQLITE_CANTOPEN)
        throwNotWritable(file_, shownName_, reason);
    const int cause = sqlite_ && code != SQLITE_CONSTRAINT ? sqlite3_system_errno(sqlite_->getHandle()) : 0;
    throw RuntimeError(Fault::DatabaseFailure,
                       cause == 0 ? QStringLiteral("'%1' cannot be used: %2.").arg(shownName_, reason)
                                  : QStringLiteral("'%1' cannot be used: %2, %3 (%4).")
                                        .arg(shownName_, reason, qt_error_string(cause), file_));
}

}  // namespace platform
