#include "platform/storage/connection.h"

#include "platform/error.h"
#include "platform/letter_case.h"
#include "platform/storage/store_errors.h"

#include <sqlite3.h>
#include <QFileInfo>

#include <utility>

namespace platform {

namespace {

// How long a store that another program holds is asked for before the learner hears of it, in milliseconds.
constexpr int busyTimeout = 250;
// A store is read through when a run first opens it: up to the first size together with its indexes, up to
// the second without them, in bytes. Beyond it a learner would notice.
constexpr qint64 fullCheckLimit = 1024LL * 1024;
constexpr qint64 quickCheckLimit = 8 * fullCheckLimit;

const QString soundAnswer = QStringLiteral("ok");

QString answerOf(SQLite::Database& store, const std::string& question) {
    SQLite::Statement asked(store, question);
    return asked.executeStep() ? QString::fromUtf8(asked.getColumn(0).getText()) : QString();
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

Connection::Connection(const QString& file, QString shownName)
    : file_(file), shownName_(std::move(shownName)) {
    translateErrors([&] {
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
    const auto row = translateErrors([&] { return prepare(rowQuery(table)); });
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
    translateErrors([&] { sqlite_->exec("PRAGMA synchronous=EXTRA"); });
    flushesFully_ = true;
}

void Connection::beginTransaction() {
    if (transactionDepth_ == 0) {
        translateErrors([&] { sqlite_->exec("BEGIN IMMEDIATE"); });
        transactionFailed_ = false;
    }
    ++transactionDepth_;
}

void Connection::endTransaction(bool keep) {
    transactionFailed_ = transactionFailed_ || !keep;
    if (--transactionDepth_ > 0)
        return;
    if (!transactionFailed_) {
        try {
            translateErrors([&] { sqlite_->exec("COMMIT"); });
        } catch (const RuntimeError&) {
            rollBack();
            throw;
        }
        return;
    }
    rollBack();
    if (keep)
        throw RuntimeError(
            ErrorCode::DatabaseFailure,
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
    const std::string check = size > fullCheckLimit ? "PRAGMA quick_check(1)" : "PRAGMA integrity_check(1)";
    const QString found = translateErrors([&] { return answerOf(*sqlite_, check); });
    if (found == soundAnswer)
        return;
    const bool elsewhere = translateErrors([&] {
        SQLite::Database plain(file_.toStdString(), SQLite::OPEN_READWRITE, busyTimeout);
        return answerOf(plain, check) == soundAnswer;
    });
    if (!elsewhere)
        throwDamaged(file_, shownName_, found.section(u'\n', -1));
    // Its indexes stand in the engine's own order of letters, as other programs make them.
    translateErrors([&] { sqlite_->exec("REINDEX NOCASE"); });
}

void Connection::requireWritable() {
    // A change of the head makes the engine open its journal; it is taken back before anything reaches the
    // file.
    const auto version = translateErrors([&] { return sqlite_->execAndGet("PRAGMA user_version").getInt(); });
    beginTransaction();
    try {
        translateErrors([&] { sqlite_->exec("PRAGMA user_version=" + std::to_string(version ^ 1)); });
    } catch (const RuntimeError&) {
        endTransaction(false);
        throw;
    }
    endTransaction(false);
}

void Connection::translate(const SQLite::Exception& failure, const QString& table) const {
    const int code = failure.getErrorCode();
    const QString reason = QString::fromUtf8(failure.what());
    if (code == SQLITE_CORRUPT || code == SQLITE_NOTADB)
        throwDamaged(file_, shownName_, reason);
    if (code == SQLITE_ERROR)
        throwRefusedStatement(shownName_, table, reason);
    if (code == SQLITE_BUSY)
        throw RuntimeError(ErrorCode::DatabaseFailure,
                           QStringLiteral("'%1' is held by another program. Close that one first (%2).")
                               .arg(shownName_, file_));
    if (failure.getExtendedErrorCode() == SQLITE_READONLY_DBMOVED)
        throw RuntimeError(ErrorCode::DatabaseFailure,
                           QStringLiteral("'%1' was replaced while it was in use. Start the program again.")
                               .arg(shownName_));
    if (code == SQLITE_READONLY || code == SQLITE_PERM || code == SQLITE_CANTOPEN)
        throwNotWritable(file_, shownName_, reason);
    const int cause = sqlite_ && code != SQLITE_CONSTRAINT ? sqlite3_system_errno(sqlite_->getHandle()) : 0;
    throw RuntimeError(ErrorCode::DatabaseFailure,
                       cause == 0 ? QStringLiteral("'%1' cannot be used: %2.").arg(shownName_, reason)
                                  : QStringLiteral("'%1' cannot be used: %2, %3 (%4).")
                                        .arg(shownName_, reason, qt_error_string(cause), file_));
}

}  // namespace platform
