#pragma once

#include "app/program.h"

#include <QDir>
#include <QTimer>

#include <deque>
#include <functional>

class QMessageBox;

namespace tools {

/// Drives the real program by real mouse and key events and keeps pictures of what it looks like. Message
/// boxes are pictured and answered as they come. Whatever does not happen as told throws
/// std::runtime_error with a sentence that says at which picture.
class TourGuide {
   public:
    TourGuide(app::Program& program, const QString& pictureFolder);

    /// Waits until a screen stands on top and has done its first tick.
    core::Screen& await(const QString& screen);
    /// The same for a window that is no screen of the course, such as a report.
    QWidget& awaitWindow(const QString& name);
    core::Screen& screen() const;
    /// The control of the standing screen by its name.
    QWidget& control(const QString& name) const;
    template <typename Control>
    Control& as(const QString& name) const {
        return *dynamic_cast<Control*>(&control(name));
    }

    /// Opens a store of the tour's install by its drive path.
    platform::Database open(const QString& drivePath) const;
    /// One field of the rows of a query on a store of the tour's install.
    QStringList column(const QString& drivePath, const QString& sql, const QString& field) const;
    /// Leaves word exercises and video, should they come first, and waits for the screen behind them.
    void passWordsAndVideo(const QString& screen);

    void hover(const QString& name);
    void click(const QString& name);
    /// Clicks a label or box of an array: click("txtWord", 3).
    void click(const QString& array, int index);
    /// Types into whatever has the focus.
    void type(const QString& text);
    void press(Qt::Key key);
    /// Waits for a condition; `what` says what was waited for.
    void waitUntil(const std::function<bool()>& condition, const QString& what);

    /// Keeps a picture of the whole desktop under the next number.
    void picture(const QString& name);
    /// The answer to the next message box that asks; all others are answered with their first button.
    void answerNext(bool yes) { answers_.push_back(yes); }
    /// Pictures the next message box under a name.
    void pictureNextBox(const QString& name) { boxNames_.push_back(name); }
    const QStringList& boxTexts() const { return boxTexts_; }
    int pictureCount() const { return count_; }

   private:
    void answerBox();
    QImage desktop() const;
    [[noreturn]] void lost(const QString& sentence) const;

    app::Program& program_;
    QDir folder_;
    QTimer boxWatch_;
    std::deque<bool> answers_;
    std::deque<QString> boxNames_;
    QStringList boxTexts_;
    int count_ = 0;
};

/// A chapter of the tour; all of them, in order, are the learner's story.
struct TourChapter {
    const char* name;
    void (*walk)(TourGuide&);
};
const std::vector<TourChapter>& tourChapters();

/// The chapter of a Final Quiz, from its announcement to the one score that it leaves.
void walkAFinal(TourGuide& guide);

}  // namespace tools
