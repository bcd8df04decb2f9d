#include "platform/drives.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

#include <utility>

namespace platform {

namespace {

QString childIgnoringCase(const QString& folder, const QString& name) {
    const QString exact = folder + u'/' + name;
    if (QFileInfo::exists(exact))
        return exact;
    const QStringList names = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    for (const QString& candidate : names)
        if (candidate.compare(name, Qt::CaseInsensitive) == 0)
            return folder + u'/' + candidate;
    return exact;
}

bool hasDriveLetter(const QString& path) {
    return path.size() >= 2 && path[1] == u':' && path[0].isLetter() && path[0] < QChar(128);
}

/// The names on the way to a file. Dots are followed here and go no further up than the drive, so that a path
/// that comes out of a store or an old install never leaves the root.
QStringList segments(QString rest) {
    // No file's name holds a zero, at which the system would take the name to end.
    rest.replace(QChar(QChar::Null), QChar(QChar::ReplacementCharacter)).replace(u'\\', u'/');
    QStringList names;
    for (const QString& name : rest.split(u'/', Qt::SkipEmptyParts)) {
        if (name == QStringLiteral("..")) {
            if (!names.isEmpty())
                names.removeLast();
        } else if (name != QStringLiteral(".")) {
            names.append(name);
        }
    }
    return names;
}

/// The part of a path that is there, with every link followed.
QString existingPart(QString path) {
    while (!QFileInfo::exists(path) && path.contains(u'/'))
        path = path.section(u'/', 0, -2);
    return QFileInfo(path).canonicalFilePath();
}

}  // namespace

Drives::Drives(QString root) : root_(std::move(root)) {}

QString Drives::resolve(const QString& path) const {
    if (root_.isEmpty())
        return QDir::fromNativeSeparators(path);
    const QString drive = hasDriveLetter(path) ? path.left(1).toUpper() : QStringLiteral("C");
    const QStringList names = segments(hasDriveLetter(path) ? path.mid(2) : path);
    const QString folder = root_ + u'/' + drive;
    const QString direct = (QStringList{folder} + names).join(u'/');
    if (QFileInfo::exists(direct))
        return QDir::cleanPath(direct);
    QString found = folder;
    for (const QString& name : names)
        found = childIgnoringCase(found, name);
    return found;
}

bool Drives::staysOnItsDrive(const QString& path) const {
    if (root_.isEmpty())
        return true;
    const QString drive = existingPart(resolve(hasDriveLetter(path) ? path.left(2) : QStringLiteral("C:")));
    const QString target = existingPart(resolve(path));
    // Nothing is there yet that could lead anywhere else.
    if (drive.isEmpty() || target == drive)
        return true;
    return target.startsWith(drive + u'/');
}

qint64 Drives::fileLength(const QString& path) const {
    const QFileInfo info(resolve(path));
    return info.isFile() ? info.size() : 0;
}

}  // namespace platform
