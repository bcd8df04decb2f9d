#include "platform/desktop/cursor.h"

#include "platform/error.h"
#include "platform/whole_file.h"

#include <QApplication>
#include <QBuffer>
#include <QDataStream>
#include <QFile>
#include <QImage>
#include <QPixmap>

namespace platform {

namespace {

// The hot spot of the first picture in a .cur file: two 16-bit numbers behind the directory's header.
constexpr int hotSpotOffset = 10;

}  // namespace

QCursor loadCursor(const QString& file, const QString& shownName) {
    QFile opened(file);
    if (!opened.open(QIODevice::ReadOnly))
        throw RuntimeError(ErrorCode::FileNotFound,
                           QStringLiteral("File not found: '%1' (%2).").arg(shownName, file));
    const QByteArray bytes = opened.readAll();
    QImage image;
    if (bytes.size() < hotSpotOffset + 4 || !image.loadFromData(bytes))
        throw RuntimeError(ErrorCode::InvalidPicture,
                           QStringLiteral("Invalid picture: '%1'.").arg(shownName));
    QDataStream stream(bytes.mid(hotSpotOffset, 4));
    stream.setByteOrder(QDataStream::LittleEndian);
    quint16 x = 0;
    quint16 y = 0;
    stream >> x >> y;
    return QCursor(QPixmap::fromImage(image), x, y);
}

void writeCursor(const QString& file, const QImage& image, QPoint hotSpot) {
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    const bool drawn = image.save(&buffer, "PNG");
    QByteArray head;
    QDataStream stream(&head, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint16(0) << quint16(2) << quint16(1);
    stream << quint8(image.width()) << quint8(image.height()) << quint8(0) << quint8(0);
    stream << quint16(hotSpot.x()) << quint16(hotSpot.y()) << quint32(png.size()) << quint32(22);
    const QString reason =
        drawn ? writeWhole(file, head + png) : QStringLiteral("the picture cannot be drawn");
    if (!reason.isEmpty())
        throw RuntimeError(ErrorCode::FileNotFound,
                           QStringLiteral("Cannot write '%1': %2.").arg(file, reason));
}

Hourglass::Hourglass() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

Hourglass::~Hourglass() {
    QApplication::restoreOverrideCursor();
}

}  // namespace platform
