#include "platform/storage/file_lock.h"

#include "platform/error.h"

#include <QFile>

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace platform {

#ifdef Q_OS_WIN

FileLock::~FileLock() = default;

bool FileLock::tryTake(const QString&) {
    return true;
}

#else

namespace {

/// A handle to lock, -1 where no lock file can be made. One that is there and cannot be used would leave two
/// programs without knowledge of each other.
int openLock(const QString& file) {
    const QByteArray name = QFile::encodeName(file);
    struct stat found {};
    const bool isThere = stat(name.constData(), &found) == 0;
    if (isThere && !S_ISREG(found.st_mode))
        throw RuntimeError(ErrorCode::DatabaseFailure,
                           QStringLiteral("'%1' is no file and cannot be locked. Remove it.").arg(file));
    int handle = open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    // A file of somebody else's can be locked as well.
    if (handle < 0)
        handle = open(name.constData(), O_RDONLY | O_CLOEXEC);
    if (handle < 0 && isThere)
        throw RuntimeError(
            ErrorCode::DatabaseFailure,
            QStringLiteral("'%1' cannot be opened: %2. Remove it, it is empty, or let its owner "
                           "make it readable.")
                .arg(file, qt_error_string(errno)));
    return handle;
}

}  // namespace

FileLock::~FileLock() {
    if (handle_ >= 0)
        close(handle_);
}

bool FileLock::tryTake(const QString& file) {
    if (handle_ < 0)
        handle_ = openLock(file);
    return handle_ < 0 || flock(handle_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

#endif

}  // namespace platform
