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
    return path.size() >= 2 && path[1] == u':' && path[0].isLetter();
}

}  // namespace

Drives::Drives(QString root) : root_(std::move(root)) {}

QString Drives::resolve(const QString& path) const {
    if (root_.isEmpty())
        return QDir::fromNativeSeparators(path);
    const QString drive = hasDriveLetter(path) ? path.left(1).toUpper() : QStringLiteral("C");
    QString rest = hasDriveLetter(path) ? path.mid(2) : path;
    rest.replace(u'\\', u'/');
    const QString direct = root_ + u'/' + drive + u'/' + rest;
    if (QFileInfo::exists(direct))
        return QDir::cleanPath(direct);
    QString found = root_ + u'/' + drive;
    for (const QString& name : rest.split(u'/', Qt::SkipEmptyParts))
        found = childIgnoringCase(found, name);
    return found;
}

qint64 Drives::fileLength(const QString& path) const {
    const QFileInfo info(resolve(path));
    return info.isFile() ? info.size() : 0;
}

}  // namespace platform
