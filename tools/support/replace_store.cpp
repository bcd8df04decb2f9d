#include "tools/support/replace_store.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>
#include <QFile>

#include <unistd.h>
#include <cstdio>
#include <memory>
#include <stdexcept>

namespace tools {

namespace {

// How long a program that is writing is waited for, in milliseconds.
constexpr int patience = 15000;

[[noreturn]] void refuse(const QString& sentence) {
    throw std::runtime_error(sentence.toStdString());
}

/// Keeps every other program out of a store for as long as it lives. Opening the store so also ends what a
/// killed program had begun in it.
class ExclusiveLock {
   public:
    explicit ExclusiveLock(const QString& place) {
        if (!QFile::exists(place))
            return;
        try {
            store_ =
                std::make_unique<SQLite::Database>(place.toStdString(), SQLite::OPEN_READWRITE, patience);
            store_->exec("BEGIN EXCLUSIVE");
        } catch (const SQLite::Exception& failure) {
            const int code = failure.getErrorCode();
            if (code == SQLITE_BUSY || code == SQLITE_LOCKED)
                refuse(QStringLiteral("%1 is in use. Close the program and run this again.").arg(place));
            if (code != SQLITE_NOTADB && code != SQLITE_CORRUPT)
                refuse(QStringLiteral("%1 cannot be opened and was left as it is: %2.")
                           .arg(place, QString::fromUtf8(failure.what())));
            // A store too damaged to be opened is as good as none: the new one takes its place.
            store_.reset();
        }
    }
    ~ExclusiveLock() {
        if (store_)
            store_->tryExec("ROLLBACK");
    }
    ExclusiveLock(const ExclusiveLock&) = delete;
    ExclusiveLock& operator=(const ExclusiveLock&) = delete;

   private:
    std::unique_ptr<SQLite::Database> store_;
};

}  // namespace

QString freeNameBeside(const QString& place) {
    const QString wanted = place + QStringLiteral(".before-import");
    QString kept = wanted;
    for (int i = 2; QFile::exists(kept); ++i)
        kept = wanted + QStringLiteral("-%1").arg(i);
    return kept;
}

void keepFromOthers(const QString& file) {
    QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
}

QString keepOlder(const QString& place) {
    if (!QFile::exists(place))
        return {};
    const QString kept = freeNameBeside(place);
    // A second name costs nothing; where the disk has no such thing, a copy does.
    if (link(QFile::encodeName(place).constData(), QFile::encodeName(kept).constData()) != 0 &&
        !QFile::copy(place, kept))
        refuse(QStringLiteral("%1 cannot be kept as %2, and was not replaced.").arg(place, kept));
    return kept;
}

QString moveIntoPlace(const QString& finished, const QString& place, Older older) {
    const ExclusiveLock lock(place);
    const QString kept = older == Older::Kept ? keepOlder(place) : QString();
    for (const char* leftover : {"-journal", "-wal", "-shm"})
        QFile::remove(place + QLatin1String(leftover));
    if (std::rename(QFile::encodeName(finished).constData(), QFile::encodeName(place).constData()) != 0)
        refuse(QStringLiteral("%1 cannot be written.").arg(place));
    return kept;
}

}  // namespace tools
