// The program with a learner who presses what chance picks: argument 1 seeds the chance, argument 2 is how
// many presses there are. Whatever box comes is told on standard output and answered. Ends with status 0 when
// the presses are done and tells their number, or as the program ends by itself.

#include "app/program.h"
#include "platform/desktop/application.h"
#include "platform/desktop/controls.h"
#include "platform/desktop/look.h"
#include "platform/desktop/timer.h"
#include "tests/endurance/damages.h"
#include "tools/support/offscreen.h"

#include <QAbstractButton>
#include <QDialog>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int pressInterval = 4;    // milliseconds
constexpr int idlePatience = 4000;  // milliseconds without a screen until there is nothing more to press

class Robot {
   public:
    Robot(app::Program& program, std::uint64_t seed, int presses)
        : program_(program), chance_(seed), presses_(presses) {
        QObject::connect(&ticks_, &QTimer::timeout, &ticks_, [this] { act(); });
        idle_.start();
        ticks_.start(pressInterval);
    }

   private:
    /// Boxes are answered here; a press is a call of its own, since it may wait in a box, during which this
    /// timer has to go on.
    void act() {
        if (qobject_cast<QDialog*>(QApplication::activeModalWidget()) != nullptr)
            answerBox();
        else if (!pressing_ && program_.screens().top() != nullptr)
            QMetaObject::invokeMethod(
                &ticks_, [this] { press(); }, Qt::QueuedConnection);
        else if (!pressing_ && idle_.hasExpired(idlePatience))
            reopen();
    }
    /// Some presses leave nothing but the frame, as at the end of the course. The table goes on from there,
    /// unless it does not come up either.
    void reopen() {
        if (reopened_)
            return end();
        reopened_ = true;
        idle_.restart();
        program_.screens().open(QStringLiteral("frmTable"));
    }
    void press() {
        core::Screen* top = program_.screens().top();
        if (pressing_ || top == nullptr)
            return;
        pressing_ = true;
        press(*top);
        pressing_ = false;
    }
    void end() {
        std::printf("presses: %d\n", pressed_);
        std::fflush(stdout);
        ticks_.stop();
        program_.screens().endProgram();
    }
    void answerBox() {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
                dialog->reject();
            return;
        }
        std::printf("%s: %s %s\n", qPrintable(box->objectName()), qPrintable(box->text()),
                    qPrintable(box->informativeText()));
        std::fflush(stdout);
        QAbstractButton* button = box->button(QMessageBox::Cancel);
        if (button == nullptr)
            button = box->buttons().value(static_cast<int>(endurance::below(chance_, box->buttons().size())));
        button->click();
    }
    static bool loads(const core::Screen& screen) {
        const auto* timer = screen.findChild<platform::Timer*>(QStringLiteral("TimerGo"));
        return timer != nullptr && timer->enabled();
    }
    void press(core::Screen& screen) {
        idle_.restart();
        if (loads(screen) || !screen.isVisible())
            return;
        if (presses_-- <= 0)
            return end();
        const QList<QWidget*> targets = targetsOf(screen);
        if (targets.isEmpty())
            return;
        reopened_ = false;
        ++pressed_;
        QWidget* target = targets[static_cast<qsizetype>(endurance::below(chance_, targets.size()))];
        if (qobject_cast<platform::TextBox*>(target) != nullptr)
            QTest::keyClicks(target, QStringLiteral("a"));
        else
            QTest::mouseClick(target, Qt::LeftButton);
    }
    /// A pool of words with all its slots filled: one pick more addresses a slot that is not there.
    static bool isFull(const core::Screen& screen) {
        const auto* last = screen.findChild<platform::Label*>(QStringLiteral("lblWord2(14)"));
        const bool pool = screen.findChild<QWidget*>(QStringLiteral("cmdReset")) != nullptr;
        return pool && last != nullptr && !last->text().isEmpty();
    }
    /// On the course table the rows and units, elsewhere all that answers; the way out is left alone.
    QList<QWidget*> targetsOf(const core::Screen& screen) {
        QList<QWidget*> all;
        QList<QWidget*> rows;
        const bool full = isFull(screen);
        for (QWidget* child : screen.findChildren<QWidget*>()) {
            const QString name = child->objectName();
            if (!child->isVisible() || !child->isEnabled() || name.startsWith(QStringLiteral("picExit")) ||
                name.startsWith(QStringLiteral("qt_")) || name.isEmpty() ||
                (full && name.startsWith(QStringLiteral("lblWord3("))))
                continue;
            all.append(child);
            if (name.startsWith(QStringLiteral("lblTitle(")) || name.startsWith(QStringLiteral("lblTopic(")))
                rows.append(child);
        }
        return !rows.isEmpty() && endurance::below(chance_, 4) != 0 ? rows : all;
    }

    app::Program& program_;
    endurance::Chance chance_;
    int presses_;
    int pressed_ = 0;
    bool reopened_ = false;
    QTimer ticks_;
    QElapsedTimer idle_;
    bool pressing_ = false;
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3)
        return 2;
    const QTemporaryDir desktop;
    tools::useOffscreenDesktop(desktop.path());
    platform::Application application(argc, argv);
    platform::setUpLook();
    // Nobody's fingers are in play: one press after the other counts.
    QApplication::setDoubleClickInterval(1);
    app::Program program;
    Robot robot(program, std::strtoull(argv[1], nullptr, 10), std::atoi(argv[2]));
    int status = 0;
    application.endOnFailure([&] {
        if (program.start())
            status = platform::Application::exec();
    });
    return status;
}
