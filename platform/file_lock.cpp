#include "platform/file_lock.h"

#include <QFile>

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <sys/file.h>
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

FileLock::~FileLock() {
    if (handle_ >= 0)
        close(handle_);
}

bool FileLock::tryTake(const QString& file) {
    const QByteArray name = QFile::encodeName(file);
    if (handle_ < 0)
        handle_ = open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    // A file of somebody else's can be locked as well.
    if (handle_ < 0)
        handle_ = open(name.constData(), O_RDONLY | O_CLOEXEC);
    return handle_ < 0 || flock(handle_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

#endif

}  // namespace platform
