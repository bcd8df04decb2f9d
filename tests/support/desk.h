#pragma once

#include "app/screen_loop.h"
#include "core/context.h"
#include "core/screen.h"

#include <QTemporaryDir>
#include <QTest>

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

/// Lets failed comparisons show texts as people read them.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

namespace support {

/// Time that stands still until a test moves it; ticks count up by themselves.
class FakeClock final : public platform::Clock {
   public:
    QDate day{2026, 3, 14};
    mutable std::uint64_t count = 0;
    QDate today() const override { return day; }
    std::uint64_t ticks() const override { return ++count; }
};

/// Gives the draws that a test has queued, then draws of its own from a fixed sequence.
class FakeRandom final : public platform::RandomSource {
   public:
    std::deque<float> draws;
    int reseeds = 0;
    void reseed(std::uint64_t) override { ++reseeds; }
    float next() override;
    /// Queues draws that come out as these whole numbers of 1 to `count`.
    void queueNumbers(const std::vector<int>& numbers, int count);

   private:
    std::uint64_t state_ = 20260314;
};

class FakeSettings final : public platform::Settings {
   public:
    std::map<QString, QString> values;
    QString read(const QString& application, const QString& section, const QString& key,
                 const QString& fallback) const override;
    void write(const QString& application, const QString& section, const QString& key,
               const QString& value) override;
};

/// Keeps the names of the sounds played.
class SoundList final : public platform::SoundPlayer {
   public:
    struct Played {
        QString file;
        bool waited = false;
    };
    std::vector<Played> played;
    void play(const QString& file, bool wait) override { played.push_back({file, wait}); }
    /// The file names alone, in order: "touchit.wav".
    QStringList names() const;
};

/// Keeps the messages shown; answers yes and OK, and gives up what failed, unless a test has queued answers.
class MessageList final : public platform::MessageBoxes {
   public:
    std::vector<platform::Message> shown;
    std::deque<bool> answers;
    /// Called with each message before it is answered, while the screen stands as the learner sees it.
    std::function<void(const platform::Message&)> onShow;
    bool show(const platform::Message& message) override;
    QStringList texts() const;
    QString lastText() const { return shown.empty() ? QString() : shown.back().text; }
};

/// A temporary install with empty stores and real pictures, and the program's own parts around a session,
/// with time, chance, sound and message boxes in the test's hands.
class Desk {
   public:
    explicit Desk(const QString& userId = QStringLiteral("1001"));
    ~Desk();

    core::Session session;
    FakeSettings settings;
    FakeClock clock;
    FakeRandom random;
    SoundList sound;
    MessageList boxes;

    core::Context& context() { return *context_; }
    app::ScreenLoop& screens() { return *screens_; }
    const QString& root() const { return root_; }
    /// The file that a drive path means.
    QString file(const QString& drivePath) const;

    /// Runs statements on a store named by its drive path ("D:\\tovalin.mdb"), separated by semicolons.
    void exec(const QString& store, const std::string& sql) const;
    /// The rows of a query as texts joined by "|", a missing value as "NULL".
    QStringList rows(const QString& store, const std::string& sql) const;
    /// The first row of a query.
    QString row(const QString& store, const std::string& sql) const { return rows(store, sql).value(0); }

    /// Opens a screen and waits until its first tick is done. Null when it did not come up, or failed.
    core::Screen* open(const QString& screen);
    /// Waits until a screen of this name stands on top with its first tick done.
    core::Screen* awaitScreen(const QString& screen);
    core::Screen* top() const { return screens_->top(); }

    /// The failure that ended the run, empty while none did.
    QString failure() const { return failure_; }

   private:
    void makeStores();

    QTemporaryDir folder_;
    QString root_;
    std::unique_ptr<platform::Drives> drives_;
    std::unique_ptr<app::ScreenLoop> screens_;
    std::unique_ptr<QWidget> frame_;
    std::unique_ptr<core::Context> context_;
    QString failure_;
};

inline const QString courseStore = QStringLiteral("D:\\tovalin.mdb");
inline const QString masterStore = QStringLiteral("D:\\Tovalin_Data.mdb");
inline const QString wordBookStore = QStringLiteral("D:\\testword_im.mdb");
inline const QString testWordStore = QStringLiteral("D:\\testword_2013.mdb");
inline const QString scoreStore = QStringLiteral("C:\\A_Mendori\\Main\\DbScore_1001.mdb");
inline const QString sheetStore = QStringLiteral("C:\\Larkfield\\Larkfield2013\\Tovalin1\\tovalin.mdb");

/// The control of a form by its name; fails the test and throws where there is none.
template <typename Control = QWidget>
Control& find(const QWidget* form, const QString& name) {
    auto* control = form == nullptr ? nullptr : form->findChild<Control*>(name);
    if (control == nullptr)
        throw std::runtime_error("no control " + name.toStdString());
    return *control;
}

/// Waits for a condition while events run; false when it never holds.
bool waitFor(const std::function<bool()>& condition, int milliseconds = 5000);

/// A click of the left button in the middle of a control.
void click(QWidget& control);
/// A move of the mouse over the middle of a control, or over a bare place of a form.
void hover(QWidget& control);
/// Types a text into the control that has the focus or is named, key by key.
void type(QWidget& control, const QString& text);
/// Lets everything that is due happen.
void settle();

/// The control of the form that has the focus, by name.
QString focusName(const QWidget* form);

}  // namespace support
