#pragma once

#include <QCursor>
#include <QString>

namespace platform {

/// A cursor from a .cur file, with the hot spot that the file names. Throws FileNotFound or InvalidPicture.
QCursor loadCursor(const QString& file, const QString& shownName);

/// Writes a one-picture .cur file, whole or not at all. Throws FileNotFound when it cannot be written.
void writeCursor(const QString& file, const QImage& image, QPoint hotSpot);

/// Shows the hourglass for as long as it lives.
class Hourglass {
   public:
    Hourglass();
    ~Hourglass();
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

}  // namespace platform
