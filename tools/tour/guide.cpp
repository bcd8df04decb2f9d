#include "tools/tour/guide.h"

#include "platform/desktop/timer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QTest>

#include <cstdio>

namespace tools {

namespace {

constexpr int patience = 15000;  // milliseconds until a screen must have come
constexpr int boxInterval = 15;  // milliseconds between looks for a message box

bool firstTickDone(const core::Screen& screen) {
    const auto* timer = screen.findChild<platform::Timer*>(QStringLiteral("TimerGo"));
    return timer == nullptr || !timer->enabled();
}

}  // namespace

TourGuide::TourGuide(app::Program& program, const QString& pictureFolder)
    : program_(program), folder_(pictureFolder) {
    folder_.mkpath(QStringLiteral("."));
    for (const QString& old : folder_.entryList({QStringLiteral("*.png")}, QDir::Files))
        folder_.remove(old);
    QObject::connect(&boxWatch_, &QTimer::timeout, &boxWatch_, [this] { answerBox(); });
    boxWatch_.start(boxInterval);
}

void TourGuide::lost(const QString& sentence) const {
    const core::Screen* top = program_.screens().top();
    throw std::runtime_error(
        QStringLiteral("After picture %1, on %2: %3")
            .arg(count_)
            .arg(top != nullptr ? top->objectName() : QStringLiteral("no screen"), sentence)
            .toStdString());
}

core::Screen& TourGuide::screen() const {
    core::Screen* top = program_.screens().top();
    if (top == nullptr)
        lost(QStringLiteral("no screen stands."));
    return *top;
}

core::Screen& TourGuide::await(const QString& name) {
    waitUntil(
        [&] {
            const core::Screen* top = program_.screens().top();
            return top != nullptr && top->objectName() == name && top->isVisible() && firstTickDone(*top);
        },
        QStringLiteral("the screen %1").arg(name));
    return screen();
}

QWidget& TourGuide::awaitWindow(const QString& name) {
    QWidget* found = nullptr;
    waitUntil(
        [&] {
            for (QWidget* window : QApplication::topLevelWidgets())
                if (window->objectName() == name && window->isVisible())
                    found = window;
            return found != nullptr;
        },
        QStringLiteral("the window %1").arg(name));
    return *found;
}

QWidget& TourGuide::control(const QString& name) const {
    auto* found = screen().findChild<QWidget*>(name);
    if (found == nullptr)
        lost(QStringLiteral("there is no control %1.").arg(name));
    return *found;
}

platform::Database TourGuide::open(const QString& drivePath) const {
    return platform::Database::open(program_.drives().resolve(drivePath), drivePath);
}

QStringList TourGuide::column(const QString& drivePath, const QString& sql, const QString& field) const {
    auto rows = open(drivePath).openRecordset(sql);
    QStringList texts;
    for (; !rows.eof(); rows.moveNext())
        texts.append(rows.text(field));
    return texts;
}

void TourGuide::passWordsAndVideo(const QString& screen) {
    const auto standing = [&](const char* name) {
        const core::Screen* top = program_.screens().top();
        return top != nullptr && top->objectName() == QLatin1String(name);
    };
    bool playerSeen = false;
    waitUntil(
        [&] {
            for (const char* word : {"frmVoca2", "frmVoca3", "frmVoca4"})
                if (standing(word) && firstTickDone(*program_.screens().top()))
                    click(QStringLiteral("picNext"));
            if (standing("frmVideo2")) {
                playerSeen = true;
                program_.screens().top()->close();
            } else if (standing("frmVideo_2014") && playerSeen) {
                click(QStringLiteral("picExit"));
            }
            return standing(screen.toLatin1().constData());
        },
        screen);
}

void TourGuide::hover(const QString& name) {
    QWidget& widget = control(name);
    QMouseEvent move(QEvent::MouseMove, widget.rect().center(), widget.mapToGlobal(widget.rect().center()),
                     Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &move);
    QCoreApplication::processEvents();
}

void TourGuide::click(const QString& name) {
    QWidget& widget = control(name);
    if (!widget.isVisible())
        lost(QStringLiteral("%1 is not on view.").arg(name));
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, widget.rect().center());
    QCoreApplication::processEvents();
}

void TourGuide::click(const QString& array, int index) {
    click(QStringLiteral("%1(%2)").arg(array).arg(index));
}

void TourGuide::type(const QString& text) {
    for (const QChar c : text)
        if (QWidget* focus = screen().focusWidget())
            QTest::keyClick(focus, c.toLatin1());
    QCoreApplication::processEvents();
}

void TourGuide::press(Qt::Key key) {
    if (QWidget* focus = screen().focusWidget())
        QTest::keyClick(focus, key);
    QCoreApplication::processEvents();
}

void TourGuide::waitUntil(const std::function<bool()>& condition, const QString& what) {
    if (!QTest::qWaitFor(condition, patience))
        lost(QStringLiteral("waited in vain for %1.").arg(what));
    QCoreApplication::processEvents();
}

void TourGuide::picture(const QString& name) {
    QCoreApplication::processEvents();
    const QString file = QStringLiteral("%1-%2.png").arg(++count_, 2, 10, QLatin1Char('0')).arg(name);
    if (!desktop().save(folder_.filePath(file)))
        lost(QStringLiteral("the picture %1 cannot be written.").arg(folder_.filePath(file)));
    std::printf("  %s\n", qPrintable(file));
    std::fflush(stdout);
}

/// The frame with everything that stands over it, in the order of their opening.
QImage TourGuide::desktop() const {
    QImage image(program_.frame().size(), QImage::Format_RGB32);
    QPainter painter(&image);
    painter.drawPixmap(0, 0, program_.frame().grab());
    const QPoint origin = program_.frame().pos();
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto draw = [&](QWidget* window) { painter.drawPixmap(window->pos() - origin, window->grab()); };
    for (core::Screen* screen : program_.screens().standing())
        if (screen->isVisible())
            draw(screen);
    for (QWidget* window : windows)
        if (window->isVisible() && qobject_cast<core::Screen*>(window) == nullptr &&
            window != &program_.frame() && window->isWindow())
            draw(window);
    return image;
}

void TourGuide::answerBox() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isVisible())
        return;
    boxTexts_.append(box->text());
    if (!boxNames_.empty()) {
        picture(boxNames_.front());
        boxNames_.pop_front();
    }
    const bool asks = box->standardButtons().testFlag(QMessageBox::No);
    bool yes = true;
    if (asks && !answers_.empty()) {
        yes = answers_.front();
        answers_.pop_front();
    }
    const auto which = asks ? (yes ? QMessageBox::Yes : QMessageBox::No) : QMessageBox::Ok;
    QTest::mouseClick(box->button(which), Qt::LeftButton);
}

}  // namespace tools
