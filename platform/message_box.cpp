#include "platform/message_box.h"

#include <QApplication>
#include <QMessageBox>

namespace platform {

namespace {

QMessageBox::Icon boxIcon(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::Information: return QMessageBox::Information;
        case BoxIcon::Stop: return QMessageBox::Critical;
        case BoxIcon::Question: return QMessageBox::Question;
        case BoxIcon::None: break;
    }
    return QMessageBox::NoIcon;
}

}  // namespace

QString defaultBoxTitle() {
    return QStringLiteral("Tovalin 1");
}

bool DesktopBoxes::show(const Message& message) {
    QMessageBox box(QApplication::activeWindow());
    box.setObjectName(QStringLiteral("messageBox"));
    // The texts name buttons as "<Begin>", which must not be taken for markup.
    box.setTextFormat(Qt::PlainText);
    box.setText(message.text);
    box.setIcon(boxIcon(message.icon));
    box.setWindowTitle(message.title.isEmpty() ? defaultBoxTitle() : message.title);
    box.setStandardButtons(message.yesNo ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    const int answer = box.exec();
    return answer == QMessageBox::Ok || answer == QMessageBox::Yes;
}

}  // namespace platform
