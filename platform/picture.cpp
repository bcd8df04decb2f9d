#include "platform/picture.h"

#include "platform/error.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QImageReader>

#include <algorithm>

namespace platform {

namespace {

struct Kept {
    QDateTime changed;
    QPixmap picture;
};

// Small pictures are the hover images, loaded in bursts of six; large ones are shown once a screen.
constexpr qint64 keptFileSize = 64LL * 1024;

QHash<QString, Kept>& kept() {
    static QHash<QString, Kept> pictures;
    return pictures;
}

QString denseTwin(const QFileInfo& info) {
    return info.path() + u'/' + info.completeBaseName() + QStringLiteral("@2x.") + info.suffix();
}

/// Decoders show a JPEG file that was cut off as far as it goes; that its end mark is missing tells it.
bool isCutOff(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.read(2) != QByteArrayLiteral("\xFF\xD8"))
        return false;
    const QByteArray endMark = QByteArrayLiteral("\xFF\xD9");
    constexpr qint64 tail = 4096;
    file.seek(std::max<qint64>(0, file.size() - tail));
    if (file.readAll().contains(endMark))
        return false;
    // Something long may follow the picture.
    file.seek(0);
    return !file.readAll().contains(endMark);
}

}  // namespace

QPixmap loadPicture(const QString& file, const QString& shownName, double pixelRatio) {
    QFileInfo info(file);
    if (!info.isFile())
        throw RuntimeError(Fault::FileNotFound,
                           QStringLiteral("File not found: '%1' (%2).").arg(shownName, file));
    const bool dense = pixelRatio > 1.0 && QFileInfo::exists(denseTwin(info));
    if (dense)
        info.setFile(denseTwin(info));
    const QString path = info.filePath();
    if (const auto known = kept().constFind(path);
        known != kept().constEnd() && known->changed == info.lastModified())
        return known->picture;
    QImageReader reader(path);
    const QImage image = reader.read();
    if (image.isNull())
        throw RuntimeError(
            Fault::InvalidPicture,
            QStringLiteral("Invalid picture: '%1' (%2).").arg(shownName, reader.errorString()));
    if (isCutOff(path))
        throw RuntimeError(Fault::InvalidPicture,
                           QStringLiteral("Invalid picture: '%1' (it was cut off).").arg(shownName));
    QPixmap picture = QPixmap::fromImage(image);
    if (dense)
        picture.setDevicePixelRatio(2.0);
    if (info.size() <= keptFileSize)
        kept().insert(path, {info.lastModified(), picture});
    return picture;
}

}  // namespace platform
