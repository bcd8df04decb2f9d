// Fails in the way its first argument names, and tells on standard output what box the learner is shown. What
// runs on while the box stands says so in the same place.

#include "platform/desktop/application.h"
#include "platform/desktop/form.h"
#include "platform/desktop/message_box.h"
#include "platform/desktop/timer.h"
#include "platform/desktop/waiting.h"
#include "platform/error.h"
#include "platform/storage/database.h"
#include "platform/storage/recordset.h"
#include "tests/support/assistive.h"

#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

#include <cstdio>
#include <map>

namespace {

// As often as the box is looked at before it is answered.
constexpr int looksAtBox = 20;

[[noreturn]] void fail() {
    throw platform::RuntimeError(platform::ErrorCode::FileNotFound,
                                 QStringLiteral("File not found: 'D:\\next1.jpg'."));
}

void tell(const char* what) {
    std::printf("%s\n", what);
    std::fflush(stdout);
}

/// How much of the box can be seen on the screen, in percent.
int visiblePart(QMessageBox& box) {
    const QImage expected = box.grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QPoint place = box.mapToGlobal(QPoint(0, 0));
    const QImage shown = box.screen()
                             ->grabWindow(0, place.x(), place.y(), box.width(), box.height())
                             .toImage()
                             .convertToFormat(QImage::Format_RGB32);
    int same = 0;
    for (int y = 0; y < expected.height(); ++y)
        for (int x = 0; x < expected.width(); ++x)
            same += expected.pixel(x, y) == shown.pixel(x, y) ? 1 : 0;
    return 100 * same / (expected.width() * expected.height());
}

/// The program's windows: a frame, and on it a screen whose first tick fails. Its other timers, its buttons
/// and the next screen say what ran on.
struct Windows {
    platform::Frame frame{QStringLiteral("frmFrame")};
    platform::Form* screen = new platform::Form(QStringLiteral("frmTable"), QSize(900, 700), &frame);
    platform::Timer& first = *new platform::Timer(QStringLiteral("TimerGo"), 1, screen);
    platform::Timer& second = *new platform::Timer(QStringLiteral("Timer2"), 1, screen);
    platform::PictureButton& button =
        screen->addPictureButton(QStringLiteral("picNext"), QRect(0, 0, 50, 50), QStringLiteral("Next"));

    Windows() {
        frame.setGeometry(frame.screen()->geometry());
        frame.showFullScreen();
        first.onTick = [this] {
            first.setEnabled(false);
            second.setEnabled(true);
            platform::later(&frame, [this] { openNext(); });
            fail();
        };
        second.onTick = [this] {
            tell("a timer ran on");
            screen->unload();
        };
        button.onClick = [] { tell("a button was pressed"); };
        screen->onCloseRequest = [] { tell("a window was closed"); };
        screen->show();
        screen->raise();
        screen->activateWindow();
        first.setEnabled(true);
    }
    void openNext() {
        tell("a screen was opened");
        auto* next = new platform::Form(QStringLiteral("frmNext"), QSize(900, 700), &frame);
        next->show();
        next->raise();
    }
};

Windows* windows = nullptr;

/// Saves until the store takes no more.
void fillStore(const QString& file) {
    const auto store = platform::Database::open(file, QStringLiteral("C:\\DbScore_1001.mdb"));
    auto scores = store.openRecordset(QStringLiteral("Select * from score"));
    for (int i = 0; i < 10000; ++i) {
        scores.addNew();
        scores.set(QStringLiteral("vTitle"), QString(1000, u'x'));
        scores.update();
    }
    tell("the store took everything");
}

/// A question, which goes with its buttons alone.
void ask() {
    platform::DesktopBoxes boxes;
    boxes.ask(QStringLiteral("다음?"), QStringLiteral("Tovalin"));
    tell("the question is over");
}

/// The desktop asks the program to end while a message stands.
void logOut() {
    auto* desktop = new QTimer(QCoreApplication::instance());
    QObject::connect(desktop, &QTimer::timeout, desktop, [] {
        if (QApplication::activeModalWidget() != nullptr)
            QCoreApplication::postEvent(QCoreApplication::instance(), new QEvent(QEvent::Quit));
    });
    desktop->start(5);
}

void disturb(QMessageBox& box) {
    if (windows == nullptr)
        return;
    support::pressAssistively(windows->button);
    windows->screen->close();
    if (qEnvironmentVariableIsSet("FAILURE_TELLS_VISIBLE_PART") && visiblePart(box) < 95)
        tell("the box is covered");
}

/// Looks for the box, lets a few more ticks go by, and answers it.
void watch(QTimer& watcher) {
    QObject::connect(&watcher, &QTimer::timeout, &watcher, [&watcher, looks = 0]() mutable {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr || box->objectName() != QStringLiteral("errorBox") || ++looks < looksAtBox)
            return;
        watcher.stop();
        disturb(*box);
        std::printf("%s|%d|%d|%s\n", qPrintable(box->objectName()), static_cast<int>(box->icon()),
                    static_cast<int>(box->textFormat()), qPrintable(box->text()));
        std::fflush(stdout);
        box->button(QMessageBox::Ok)->click();
    });
    watcher.start(5);
}

}  // namespace

int main(int argc, char** argv) {
    platform::Application application(argc, argv);
    QTimer watcher;
    watch(watcher);
    platform::Timer timer("TimerGo", 1, nullptr);
    timer.onTick = fail;
    QTimer another;
    QObject::connect(&another, &QTimer::timeout, &application,
                     [] { throw std::runtime_error("another failure"); });
    const std::map<QString, std::function<void()>> ways{
        {"tick", [&] { timer.setEnabled(true); }},
        {"again",
         [&] {
             timer.setEnabled(true);
             another.start(20);
         }},
        {"posted", [&] { QMetaObject::invokeMethod(&application, fail, Qt::QueuedConnection); }},
        {"startup", [&] { application.endOnFailure(fail); }},
        {"screen", [] { windows = new Windows; }},
        {"full store",
         [&] { application.endOnFailure([&] { fillStore(application.arguments().value(2)); }); }},
        {"log out",
         [] {
             logOut();
             QTimer::singleShot(0, ask);
         }},
        {"log out early",
         [] {
             logOut();
             ask();
         }},
    };
    return application.run([&] {
        ways.at(application.arguments().value(1))();
        return true;
    });
}
