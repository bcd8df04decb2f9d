#pragma once

#include <QPixmap>
#include <QString>

namespace platform {

/// Loads a picture file for a surface shown at `pixelRatio` device pixels to the design pixel; where a file
/// "name@2x.ext" lies beside it and the surface is dense enough, that one is taken. Throws FileNotFound for
/// a missing file and InvalidPicture for one that cannot be read; both name `shownName`.
QPixmap loadPicture(const QString& file, const QString& shownName, double pixelRatio);

/// Reads a picture that is about to be loaded, however large it is: the next loadPicture takes it.
void loadPictureAhead(const QString& file, const QString& shownName, double pixelRatio);

}  // namespace platform
