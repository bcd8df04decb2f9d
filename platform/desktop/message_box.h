#pragma once

#include <QString>

class QMessageBox;

namespace platform {

enum class BoxIcon { None, Information, Stop, Question };

/// A message as a screen states it. An empty title stands for the application's own.
struct Message {
    QString text;
    BoxIcon icon = BoxIcon::None;
    QString title;
    bool yesNo = false;
    /// What to do about it, on lines of its own below the text.
    QString advice = {};
    /// Whether what failed can be tried again: buttons Retry and Cancel instead of OK.
    bool tryAgain = false;
};

/// Where messages are shown; tests without windows record them.
class MessageBoxes {
   public:
    virtual ~MessageBoxes() = default;
    /// Shows the message and waits until it is answered. True for OK, Yes and Retry, false
    /// for No and Cancel.
    virtual bool show(const Message& message) = 0;

    /// A notice with the information icon.
    void notice(const QString& text, const QString& title = {}) {
        show({text, BoxIcon::Information, title, false});
    }
    /// A message without an icon.
    void plain(const QString& text) { show({text, BoxIcon::None, {}, false}); }
    /// A question with Yes and No.
    bool ask(const QString& text, const QString& title) {
        return show({text, BoxIcon::Question, title, true});
    }
    /// Tells a failure and asks whether it is to be tried again.
    bool askAgain(const QString& text, const QString& advice) {
        return show({text, BoxIcon::Stop, {}, false, advice, true});
    }
};

/// Message boxes as windows of the desktop.
class DesktopBoxes final : public MessageBoxes {
   public:
    bool show(const Message& message) override;
};

/// Gives a box window the course's look and shows its text as it stands.
void styleBox(QMessageBox& box);

/// The title of a message that has none of its own.
QString defaultBoxTitle();

}  // namespace platform
