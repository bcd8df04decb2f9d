#include "platform/desktop/picture.h"

#include "platform/error.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QImageReader>

#include <algorithm>
#include <utility>

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

/// The large picture that was read ahead, until it is taken.
struct Ahead {
    QString path;
    Kept read;
};

Ahead& ahead() {
    static Ahead picture;
    return picture;
}

/// The file that a picture is read from.
struct Chosen {
    QFileInfo info;
    bool dense = false;
};

Chosen choose(const QString& file, const QString& shownName, double pixelRatio) {
    Chosen chosen{QFileInfo(file)};
    if (!chosen.info.isFile())
        throw RuntimeError(ErrorCode::FileNotFound,
                           QStringLiteral("File not found: '%1' (%2).").arg(shownName, file));
    chosen.dense = pixelRatio > 1.0 && QFileInfo::exists(denseTwin(chosen.info));
    if (chosen.dense)
        chosen.info.setFile(denseTwin(chosen.info));
    return chosen;
}

QPixmap decode(const Chosen& chosen, const QString& shownName) {
    const QString path = chosen.info.filePath();
    QImageReader reader(path);
    const QImage image = reader.read();
    if (image.isNull())
        throw RuntimeError(
            ErrorCode::InvalidPicture,
            QStringLiteral("Invalid picture: '%1' (%2).").arg(shownName, reader.errorString()));
    if (isCutOff(path))
        throw RuntimeError(ErrorCode::InvalidPicture,
                           QStringLiteral("Invalid picture: '%1' (it was cut off).").arg(shownName));
    QPixmap picture = QPixmap::fromImage(image);
    if (chosen.dense)
        picture.setDevicePixelRatio(2.0);
    return picture;
}

}  // namespace

QPixmap loadPicture(const QString& file, const QString& shownName, double pixelRatio) {
    const Chosen chosen = choose(file, shownName, pixelRatio);
    const QString path = chosen.info.filePath();
    if (const auto known = kept().constFind(path);
        known != kept().constEnd() && known->changed == chosen.info.lastModified())
        return known->picture;
    if (Ahead& next = ahead(); next.path == path && next.read.changed == chosen.info.lastModified())
        return std::exchange(next, {}).read.picture;
    const QPixmap picture = decode(chosen, shownName);
    if (chosen.info.size() <= keptFileSize)
        kept().insert(path, {chosen.info.lastModified(), picture});
    return picture;
}

void loadPictureAhead(const QString& file, const QString& shownName, double pixelRatio) {
    const Chosen chosen = choose(file, shownName, pixelRatio);
    const QPixmap picture = loadPicture(file, shownName, pixelRatio);
    if (chosen.info.size() > keptFileSize)
        ahead() = {chosen.info.filePath(), {chosen.info.lastModified(), picture}};
}

}  // namespace platform
