#pragma once

#include "app/screen_loop.h"
#include "core/context.h"
#include "platform/desktop/form.h"

#include <QPointer>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <stdexcept>

/// Playing a course: the real screens over an install of its own, moved by real mouse and key events.
namespace tools::play {

/// A screen did not do what a learner would expect.
class PlayError : public std::runtime_error {
   public:
    explicit PlayError(const QString& sentence) : std::runtime_error(sentence.toStdString()) {}
};

/// The program on an install, with settings, sound, chance and message boxes that ask for nothing from
/// outside: no sound is heard, chance follows a fixed sequence, and boxes are answered with OK or Yes.
class Stage {
   public:
    explicit Stage(const QString& root);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    const core::Session& session() const { return session_; }

    core::Screen* top() const;
    /// The name of the screen on top, empty where none stands.
    QString topName() const;
    /// Waits until a screen stands on top with its first tick done, and gives its name.
    QString awaitScreen();
    QString awaitScreen(const QString& name);
    /// Waits while events run. Throws PlayError where the condition does not come to hold, or the program
    /// failed.
    void await(const std::function<bool()>& condition, const QString& what);

    /// The control of the screen on top; throws PlayError where it has none of the name.
    template <typename Control = QWidget>
    Control& find(const QString& name) const {
        auto* control = seek<Control>(name);
        if (control == nullptr)
            missing(name);
        return *control;
    }
    template <typename Control = QWidget>
    Control& find(const char* array, int index) const {
        return find<Control>(memberName(array, index));
    }
    /// The same without the complaint: null where there is none.
    template <typename Control = QWidget>
    Control* seek(const QString& name) const {
        core::Screen* screen = top();
        return screen == nullptr ? nullptr : screen->findChild<Control*>(name);
    }
    template <typename Control = QWidget>
    Control* seek(const char* array, int index) const {
        return seek<Control>(memberName(array, index));
    }
    bool isVisible(const QString& name) const;

    /// A click in the middle of a control that can be seen.
    void click(QWidget& control);
    void click(const QString& name) { click(find(name)); }
    void click(const char* array, int index) { click(find(array, index)); }
    void press(QWidget& control, Qt::Key key);
    /// Types over whatever a box holds.
    void retype(platform::TextBox& box, const QString& text);

    /// Rows of a query on a store of the install, named by its file below drive D.
    std::vector<QStringList> rows(const QString& store, const std::string& sql) const;
    std::vector<QStringList> scoreRows(const std::string& sql) const;

    /// The texts of the message boxes that came since the last call.
    QStringList takeMessages();
    /// What ended the program, empty while nothing did.
    const QString& failure() const { return failure_; }

   private:
    class FixedRandom;
    class KnownLearner;
    class Silence;
    class Boxes;

    static QString memberName(const char* array, int index);
    [[noreturn]] void missing(const QString& name) const;
    void checkFailure() const;
    std::vector<QStringList> rowsOf(const QString& path, const std::string& sql) const;

    QString root_;
    core::Session session_;
    platform::Drives drives_;
    std::unique_ptr<KnownLearner> settings_;
    platform::SystemClock clock_;
    std::unique_ptr<FixedRandom> random_;
    std::unique_ptr<Silence> sound_;
    std::unique_ptr<Boxes> boxes_;
    platform::Frame frame_;
    app::ScreenLoop screens_;
    core::Context context_;
    QString failure_;
};

/// Lets everything that is due happen.
void settle();

}  // namespace tools::play
