#include "tools/import/media.h"

#include "platform/drives.h"
#include "tools/support/replace_store.h"
#include "tools/support/unfinished_file.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>

namespace tools {

namespace {

QByteArray sumOf(const QString& file) {
    QFile opened(file);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    return opened.open(QIODevice::ReadOnly) && hash.addData(&opened) ? hash.result() : QByteArray();
}

bool sameContent(const QString& one, const QString& other) {
    if (QFileInfo(one).size() != QFileInfo(other).size())
        return false;
    const QByteArray sum = sumOf(one);
    return !sum.isEmpty() && sum == sumOf(other);
}

void flushToDisk(const QString& path) {
    const int handle = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (handle < 0)
        return;
    fsync(handle);
    close(handle);
}

/// For the end of another sentence.
QString sentenceOf(const std::runtime_error& failure) {
    const QString sentence = QString::fromUtf8(failure.what());
    return sentence.endsWith(u'.') ? sentence.chopped(1) : sentence;
}

}  // namespace

Moved moveFile(const QString& finished, const QString& place) {
    flushToDisk(finished);
    Moved moved;
    try {
        moved.kept = keepOlder(place);
    } catch (const std::runtime_error& failure) {
        return {sentenceOf(failure), {}};
    }
    if (std::rename(QFile::encodeName(finished).constData(), QFile::encodeName(place).constData()) != 0)
        return {QStringLiteral("%1 cannot be written").arg(place), {}};
    flushToDisk(QFileInfo(place).path());
    return moved;
}

Moved moveStore(const QString& finished, const QString& place) {
    flushToDisk(finished);
    Moved moved;
    try {
        moved.kept = moveIntoPlace(finished, place, Older::Kept);
    } catch (const std::runtime_error& failure) {
        return {sentenceOf(failure), {}};
    }
    flushToDisk(QFileInfo(place).path());
    return moved;
}

Moved copyWhole(const QString& from, const QString& to, FileMover mover) {
    // A device or a pipe would be read for ever.
    if (!QFileInfo(from).isFile())
        return {QStringLiteral("it is no regular file"), {}};
    const QString folder = QFileInfo(to).path();
    if (!QDir().mkpath(folder))
        return {QStringLiteral("the folder %1 cannot be made").arg(folder), {}};
    const UnfinishedFile half(to + QStringLiteral(".new"));
    if (!QFile::copy(from, half.name()))
        return {QStringLiteral("it cannot be copied to %1").arg(to), {}};
    QFile::setPermissions(half.name(), QFile::permissions(half.name()) | QFile::WriteOwner);
    if (!sameContent(from, half.name()))
        return {QStringLiteral("the copy in %1 differs").arg(to), {}};
    return mover(half.name(), to);
}

MediaReport copyMedia(const std::vector<FoundMedia>& media, const platform::Drives& drives, bool dryRun,
                      const std::function<void(qint64 done, qint64 total)>& progress) {
    MediaReport report;
    qint64 done = 0;
    for (const FoundMedia& item : media) {
        const QString target = drives.resolve(item.target);
        const bool present = QFileInfo(target).isFile() && sameContent(item.file, target);
        Moved moved;
        if (!drives.staysOnItsDrive(item.target))
            moved.failure = QStringLiteral("%1 lies behind a link that leads out of its drive").arg(target);
        else if (!present && !dryRun)
            moved = copyWhole(item.file, target);
        report.kept += moved.kept.isEmpty() ? 0 : 1;
        if (!moved.failure.isEmpty())
            report.problems.append(QStringLiteral("%1: %2.").arg(item.shownName, moved.failure));
        else
            ++(present ? report.present : report.copied);
        report.bytes += QFileInfo(item.file).size();
        progress(++done, static_cast<qint64>(media.size()));
    }
    return report;
}

}  // namespace tools
