#include "platform/database.h"

#include "platform/connection_guard.h"

#include "platform/error.h"
#include "platform/recordset.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>
#include <QFile>
#include <QFileInfo>

#include <utility>

namespace platform {

namespace {

// How long a second program on the same stores waits for its turn, in milliseconds.
constexpr int busyTimeout = 15000;

QHash<QString, std::weak_ptr<Connection>>& openConnections() {
    static QHash<QString, std::weak_ptr<Connection>> connections;
    return connections;
}

}  // namespace

StoreFormat storeFormat(const QString& file) {
    QFile opened(file);
    if (!QFileInfo(file).isFile() || !opened.open(QIODevice::ReadOnly))
        return StoreFormat::Missing;
    const QByteArray start = opened.read(24);
    if (start.startsWith(QByteArrayLiteral("SQLite format 3")))
        return StoreFormat::Store;
    const QByteArray engine = start.mid(4, 15);
    if (engine == "Standard Jet DB" || engine == "Standard ACE DB")
        return StoreFormat::AccessFile;
    return StoreFormat::Unknown;
}

namespace {

/// There is nothing under the name that could be read.
[[noreturn]] void throwMissing(const QString& file, const QString& shownName) {
    const QFileInfo found(file);
    if (found.isDir())
        throw RuntimeError(Fault::DatabaseNotFound,
                           QStringLiteral("'%1' is a folder and no store (%2).").arg(shownName, file));
    QFile opened(file);
    if (found.exists() && !opened.open(QIODevice::ReadOnly))
        throw RuntimeError(
            Fault::DatabaseFailure,
            QStringLiteral("'%1' cannot be opened: %2 (%3).").arg(shownName, opened.errorString(), file));
    throw RuntimeError(Fault::DatabaseNotFound,
                       QStringLiteral("Could not find file '%1' (%2).").arg(shownName, file));
}

void requireStore(const QString& file, const QString& shownName) {
    switch (storeFormat(file)) {
        case StoreFormat::Missing: throwMissing(file, shownName);
        case StoreFormat::AccessFile:
            throw RuntimeError(Fault::UnrecognizedFormat,
                               QStringLiteral("'%1' is a genuine Access file. Bring it along with \"course "
                                              "import\"; the file was left as it is.")
                                   .arg(shownName));
        case StoreFormat::Unknown:
            throw RuntimeError(
                Fault::UnrecognizedFormat,
                QStringLiteral("'%1' is damaged: it is no store of this program.").arg(shownName));
        case StoreFormat::Store: break;
    }
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
    database.connection_ = std::make_shared<Connection>(file, shownName);
    openConnections().insert(key, database.connection_);
    return database;
}

void Database::flushFully() const {
    connection_->flushFully();
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

Connection::Connection(const QString& file, QString shownName) : shownName_(std::move(shownName)) {
    guarded([&] {
        sqlite_ = std::make_unique<SQLite::Database>(file.toStdString(), SQLite::OPEN_READWRITE, busyTimeout);
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
        (*known)->reset();
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

void Connection::translate(const SQLite::Exception& failure, const QString& table) const {
    static const QString noSuchTable = QStringLiteral("no such table: ");
    static const QString noSuchColumn = QStringLiteral("no such column: ");
    const QString reason = QString::fromUtf8(failure.what());
    switch (failure.getErrorCode()) {
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
            throw RuntimeError(Fault::UnrecognizedFormat,
                               QStringLiteral("'%1' is damaged (%2).").arg(shownName_, reason));
        case SQLITE_ERROR:
            if (reason.startsWith(noSuchColumn))
                throw RuntimeError(Fault::ItemNotFound,
                                   QStringLiteral("There is no field '%1' in table '%2' of '%3'.")
                                       .arg(reason.mid(noSuchColumn.size()), table, shownName_));
            if (reason.startsWith(noSuchTable))
                throw RuntimeError(Fault::TableNotFound,
                                   QStringLiteral("'%1' has no table '%2'.")
                                       .arg(shownName_, reason.mid(noSuchTable.size())));
            throw RuntimeError(
                Fault::SyntaxError,
                QStringLiteral("Syntax error in expression on '%1': %2.").arg(shownName_, reason));
        default: break;
    }
    if (failure.getExtendedErrorCode() == SQLITE_READONLY_DBMOVED)
        throw RuntimeError(Fault::DatabaseFailure,
                           QStringLiteral("'%1' was replaced while it was in use. Start the program again.")
                               .arg(shownName_));
    throw RuntimeError(Fault::DatabaseFailure,
                       QStringLiteral("'%1' cannot be used: %2.").arg(shownName_, reason));
}

}  // namespace platform
