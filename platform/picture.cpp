#include "platform/picture.h"

#include "platform/error.h"

#include <QDateTime>
#include <QFileInfo>
#include <QHash>
#include <QImageReader>

namespace platform {

namespace {

struct Kept {
    QDateTime changed;
    QPixmap picture;
};

// Small pictures are the hover images, loaded in bursts of six; large ones are shown once a screen.
constexpr qint64 keptFileSize = 64 * 1024;

QHash<QString, Kept>& kept() {
    static QHash<QString, Kept> pictures;
    return pictures;
}

QString denseTwin(const QFileInfo& info) {
    return info.path() + u'/' + info.completeBaseName() + QStringLiteral("@2x.") + info.suffix();
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
    QPixmap picture = QPixmap::fromImage(image);
    if (dense)
        picture.setDevicePixelRatio(2.0);
    if (info.size() <= keptFileSize)
        kept().insert(path, {info.lastModified(), picture});
    return picture;
}

}  // namespace platform
