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
};

/// Where messages are shown; tests without windows record them.
class MessageBoxes {
   public:
    virtual ~MessageBoxes() = default;
    /// Shows the message and waits until it is answered. True for OK and Yes, false for No.
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
};

/// Message boxes as windows of the desktop.
class DesktopBoxes final : public MessageBoxes {
   public:
    bool show(const Message& message) override;
};

/// Gives a box window the course's look and shows its text as it stands.
void dressBox(QMessageBox& box);

/// The title of a message that has none of its own.
QString defaultBoxTitle();

}  // namespace platform
