#pragma once

#include <QByteArray>

namespace platform {

/// A PDF file as the desktop's writer makes it, with blanks that can be searched and copied. The Korean fonts
/// have one empty glyph for the blank and for codes below it, and the writer names the lowest of them:
/// whoever copies the text would get U+0001 for every blank.
QByteArray withBlanks(QByteArray pdf);

}  // namespace platform
