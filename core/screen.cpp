#include "core/screen.h"

#include "core/stores.h"
#include "platform/desktop/cursor.h"
#include "platform/desktop/picture.h"

namespace core {

namespace {

/// "next1.jpg" of "button\\next1.jpg".
QString fileName(const QString& path) {
    return path.section(u'\\', -1);
}

}  // namespace

Screen::Screen(Context& context, const QString& name, QSize designSize)
    : Form(name, designSize, context.frame), context_(context) {
    onCloseRequest = [this] { endProgram(); };
}

void Screen::orderTabs() {
    putLast(
        {findChild<QWidget*>(QStringLiteral("picExit")), findChild<QWidget*>(QStringLiteral("picExit2"))});
}

void Screen::loadBackground(const QString& relativePath) {
    const auto picture = applicationFile(context_, relativePath);
    setBackground(platform::loadPicture(picture.file, picture.shownName, devicePixelRatioF() * scale()),
                  fileName(relativePath));
}

void Screen::loadPicture(platform::PictureButton& button, const QString& relativePath) {
    const auto picture = applicationFile(context_, relativePath);
    button.setPicture(platform::loadPicture(picture.file, picture.shownName, devicePixelRatioF() * scale()),
                      fileName(relativePath));
}

void Screen::loadDesignPicture(platform::PictureButton& button, const QString& relativePath) {
    const auto picture = applicationFile(context_, relativePath);
    if (context_.drives.fileLength(picture.shownName) > 0)
        loadPicture(button, relativePath);
    else
        button.setPicture(QPixmap(), fileName(relativePath));
}

void Screen::setHandCursor(QWidget& control, const QString& file) {
    const auto picture = applicationFile(context_, file);
    control.setCursor(platform::loadCursor(picture.file, picture.shownName));
}

void Screen::endProgram() {
    context_.session.closeDictionary();
    context_.navigator.endProgram();
}

}  // namespace core
