#include "platform/whole_file.h"

#include <QFileInfo>
#include <QSaveFile>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#endif

namespace platform {

namespace {

enum class Place { File, Stream, Other };

#ifdef Q_OS_WIN

Place kindOf(const QString& file) {
    return QFileInfo(file).isDir() ? Place::Other : Place::File;
}

QString flushed(int) {
    return {};
}

#else

Place kindOf(const QString& file) {
    struct stat found {};
    if (stat(QFile::encodeName(file).constData(), &found) != 0 || S_ISREG(found.st_mode))
        return Place::File;
    return S_ISCHR(found.st_mode) || S_ISFIFO(found.st_mode) ? Place::Stream : Place::Other;
}

/// Why the content is not on the disk. Some file systems have no such call, which is no reason.
QString flushed(int handle) {
    if (fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP)
        return {};
    return QString::fromLocal8Bit(std::strerror(errno));
}

#endif

/// Only the write behind the one that filled the disk is told why.
QString writeAll(QFileDevice& file, const QByteArray& content) {
    for (qsizetype done = 0; done < content.size();) {
        const qint64 count = file.write(content.constData() + done, content.size() - done);
        if (count <= 0)
            return file.errorString();
        done += count;
    }
    return file.flush() ? QString() : file.errorString();
}

}  // namespace

QString writeWhole(const QString& file, const QByteArray& content, Readers readers) {
    switch (kindOf(file)) {
        case Place::File: break;
        case Place::Stream: {
            QFile stream(file);
            return stream.open(QIODevice::WriteOnly | QIODevice::Unbuffered) ? writeAll(stream, content)
                                                                             : stream.errorString();
        }
        case Place::Other:
            return QFileInfo(file).isDir() ? QStringLiteral("It is a folder.")
                                           : QStringLiteral("It is a device.");
    }
    QSaveFile saved(file);
    if (!saved.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return saved.errorString();
    if (readers == Readers::OwnerAlone)
        saved.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    QString problem = writeAll(saved, content);
    if (problem.isEmpty())
        problem = flushed(saved.handle());
    if (!problem.isEmpty()) {
        saved.cancelWriting();
        return problem;
    }
    return saved.commit() ? QString() : saved.errorString();
}

}  // namespace platform
