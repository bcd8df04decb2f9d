#include "tools/replace_store.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>
#include <QFile>

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
class Hold {
   public:
    explicit Hold(const QString& place) {
        if (!QFile::exists(place))
            return;
        try {
            store_ =
                std::make_unique<SQLite::Database>(place.toStdString(), SQLite::OPEN_READWRITE, patience);
            store_->exec("BEGIN EXCLUSIVE");
        } catch (const SQLite::Exception& failure) {
            if (failure.getErrorCode() == SQLITE_BUSY)
                refuse(QStringLiteral("%1 is in use. Close the program and run this again.").arg(place));
            // A store too damaged to be opened is as good as none: the new one takes its place.
            store_.reset();
        }
    }
    ~Hold() {
        if (store_)
            store_->tryExec("ROLLBACK");
    }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

   private:
    std::unique_ptr<SQLite::Database> store_;
};

}  // namespace

void moveIntoPlace(const QString& finished, const QString& place) {
    const Hold hold(place);
    for (const char* leftover : {"-journal", "-wal", "-shm"})
        QFile::remove(place + QLatin1String(leftover));
    if (std::rename(QFile::encodeName(finished).constData(), QFile::encodeName(place).constData()) != 0)
        refuse(QStringLiteral("%1 cannot be written.").arg(place));
}

}  // namespace tools
