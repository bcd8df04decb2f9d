#include "platform/desktop/message_box.h"

#include "platform/desktop/waiting.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>

namespace platform {

namespace {

/// A box that goes with one of its buttons alone where it asks for Yes or No: Esc is neither of the two.
class Box final : public QMessageBox {
   public:
    Box(bool asks, QWidget* parent) : QMessageBox(parent), asks_(asks) {}

   protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (!asks_ || !event->matches(QKeySequence::Cancel))
            QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override {
        if (asks_)
            event->ignore();
        else
            QMessageBox::closeEvent(event);
    }

   private:
    bool asks_;
};

QMessageBox::StandardButtons boxButtons(const Message& message) {
    if (message.tryAgain)
        return QMessageBox::Retry | QMessageBox::Cancel;
    return message.yesNo ? QMessageBox::Yes | QMessageBox::No : QMessageBox::StandardButtons(QMessageBox::Ok);
}

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

void styleBox(QMessageBox& box) {
    // The texts name buttons as "<Begin>", which must not be taken for markup.
    box.setTextFormat(Qt::PlainText);
    // Where no window manager draws a border, the box must still stand out from the paper below.
    box.setStyleSheet(
        QStringLiteral("QMessageBox { border: 1px solid #8aa9a6; background: #fffefb; }"
                       "QLabel#qt_msgbox_label { min-width: 420px; font-size: 15px; "
                       "qproperty-alignment: 'AlignLeft | AlignVCenter'; }"
                       "QMessageBox QPushButton { min-width: 88px; padding: 6px 10px; "
                       "font-size: 13px; font-weight: bold; }"));
}

bool DesktopBoxes::show(const Message& message) {
    const QPointer<QWidget> asking = QApplication::activeWindow();
    // Not on the stack: the window that asks owns the box, and takes it along should it go.
    const QPointer<Box> box = new Box(message.yesNo, asking);
    box->setObjectName(QStringLiteral("messageBox"));
    styleBox(*box);
    box->setText(message.text);
    box->setInformativeText(message.advice);
    box->setIcon(boxIcon(message.icon));
    box->setWindowTitle(message.title.isEmpty() ? defaultBoxTitle() : message.title);
    box->setStandardButtons(boxButtons(message));
    if (message.tryAgain)
        box->setDefaultButton(QMessageBox::Retry);
    const Waiting waiting(Waiting::Input::Box);
    const int answer = box->exec();
    delete box.data();
    // Not every desktop hands the keyboard back by itself, and then no box would show that it is in hand.
    if (asking && asking->isVisible())
        asking->activateWindow();
    return answer == QMessageBox::Ok || answer == QMessageBox::Yes || answer == QMessageBox::Retry;
}

}  // namespace platform
