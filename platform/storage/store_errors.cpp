#include "platform/storage/store_errors.h"

#include "platform/error.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <QStringList>

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace platform {

namespace {

#ifdef Q_OS_WIN

bool mayWrite(const QString& path) {
    return QFileInfo(path).isWritable();
}

bool isOwn(const QString&) {
    return true;
}

void requireWay(const QString&, const QString&) {}

#else

bool mayWrite(const QString& path) {
    return faccessat(AT_FDCWD, QFile::encodeName(path).constData(), W_OK, AT_EACCESS) == 0;
}

bool isOwn(const QString& path) {
    return QFileInfo(path).ownerId() == geteuid();
}

/// Throws where a folder on the way to a file is closed to the user, or is no folder.
void requireWay(const QString& file, const QString& shownName) {
    QString folder = QStringLiteral("/");
    for (const QString& name : QFileInfo(file).absoluteFilePath().split(u'/', Qt::SkipEmptyParts)) {
        const QString next = QDir(folder).filePath(name);
        struct stat found {};
        if (stat(QFile::encodeName(next).constData(), &found) == 0) {
            folder = next;
            continue;
        }
        if (errno == EACCES)
            throw RuntimeError(
                ErrorCode::DatabaseFailure,
                QStringLiteral(
                    "'%1' cannot be reached: the folder '%2' is closed to you. Let its owner open it.")
                    .arg(shownName, folder));
        if (errno == ENOTDIR)
            throw RuntimeError(ErrorCode::DatabaseNotFound,
                               QStringLiteral("'%1' cannot be reached: '%2' is a file and no folder.")
                                   .arg(shownName, folder));
        return;
    }
}

#endif

/// Why a file or folder takes no writing: "it belongs to 'teacher'".
QString protection(const QString& path) {
    if (isOwn(path))
        return QStringLiteral("is write-protected");
    return QStringLiteral("belongs to '%1'").arg(QFileInfo(path).owner());
}

QString rightsAdvice() {
    return QStringLiteral(
        "Get the right to read and write the file and its folder, or make an install of your own with "
        "\"setup\".");
}

/// There is nothing under the name that could be read.
[[noreturn]] void throwMissing(const QString& file, const QString& shownName) {
    const QFileInfo found(file);
    if (found.isDir())
        throw RuntimeError(ErrorCode::DatabaseNotFound,
                           QStringLiteral("'%1' is a folder and no store (%2).").arg(shownName, file));
    QFile opened(file);
    if (found.exists() && !opened.open(QIODevice::ReadOnly))
        throw RuntimeError(ErrorCode::DatabaseFailure,
                           QStringLiteral("'%1' cannot be opened: %2, the file %3 (%4). %5")
                               .arg(shownName, opened.errorString(), protection(file), file, rightsAdvice()));
    requireWay(file, shownName);
    throw RuntimeError(ErrorCode::DatabaseNotFound,
                       QStringLiteral("Could not find file '%1' (%2).").arg(shownName, file));
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

void requireStore(const QString& file, const QString& shownName) {
    switch (storeFormat(file)) {
        case StoreFormat::Missing: throwMissing(file, shownName);
        case StoreFormat::AccessFile:
            throw RuntimeError(ErrorCode::UnrecognizedFormat,
                               QStringLiteral("'%1' is a genuine Access file. Bring it along with \"course "
                                              "import\"; the file was left as it is.")
                                   .arg(shownName));
        case StoreFormat::Unknown:
            throw RuntimeError(
                ErrorCode::UnrecognizedFormat,
                QStringLiteral("'%1' is damaged: it is no store of this program.").arg(shownName));
        case StoreFormat::Store: break;
    }
}

void throwDamaged(const QString& file, const QString& shownName, const QString& reason) {
    throw RuntimeError(
        ErrorCode::UnrecognizedFormat,
        QStringLiteral("'%1' is damaged (%2). Nothing more is written to it; put a sound copy in "
                       "the place of '%3'.")
            .arg(shownName, reason, file));
}

void throwNotWritable(const QString& file, const QString& shownName, const QString& reason) {
    const QString folder = QFileInfo(file).absolutePath();
    QString cause = reason;
    if (QStorageInfo(folder).isReadOnly())
        cause = QStringLiteral("its disk is read-only");
    else if (!mayWrite(file))
        cause = QStringLiteral("the file ") + protection(file);
    else if (!mayWrite(folder))
        cause = QStringLiteral("its folder ") + protection(folder);
    throw RuntimeError(
        ErrorCode::DatabaseFailure,
        QStringLiteral("'%1' cannot be written: %2 (%3). %4").arg(shownName, cause, file, rightsAdvice()));
}

void throwRefusedStatement(const QString& shownName, const QString& table, const QString& reason) {
    const QString noSuchTable = QStringLiteral("no such table: ");
    const QString noSuchColumn = QStringLiteral("no such column: ");
    if (reason.startsWith(noSuchColumn))
        throw RuntimeError(ErrorCode::ItemNotFound,
                           QStringLiteral("There is no field '%1' in table '%2' of '%3'.")
                               .arg(reason.mid(noSuchColumn.size()), table, shownName));
    if (reason.startsWith(noSuchTable))
        throw RuntimeError(
            ErrorCode::TableNotFound,
            QStringLiteral("'%1' has no table '%2'.").arg(shownName, reason.mid(noSuchTable.size())));
    for (const char* lack : {"no such collation sequence", "no such module", "unsupported file format"})
        if (reason.contains(QLatin1String(lack)))
            throw RuntimeError(ErrorCode::UnrecognizedFormat,
                               QStringLiteral("'%1' was not made for this program, or is damaged (%2).")
                                   .arg(shownName, reason));
    throw RuntimeError(ErrorCode::SyntaxError,
                       QStringLiteral("Syntax error in expression on '%1': %2.").arg(shownName, reason));
}

}  // namespace platform
