#include "tests/support/desk.h"

#include "app/screens.h"
#include "platform/desktop/application.h"
#include "platform/desktop/timer.h"
#include "tests/support/ended_run.h"
#include "tools/media/wave.h"
#include "tools/setup/install.h"
#include "tools/setup/store_writer.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMouseEvent>

#include <chrono>
#include <thread>

namespace support {

namespace {

platform::Application& application() {
    return *static_cast<platform::Application*>(QCoreApplication::instance());
}

bool firstTickDone(const core::Screen* screen) {
    const auto* timer = screen->findChild<platform::Timer*>(QStringLiteral("TimerGo"));
    return timer == nullptr || !timer->enabled();
}

void moveMouse(QWidget& widget, QPoint place) {
    QMouseEvent event(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

/// A place of a form that no visible control covers.
QPoint barePlace(const QWidget& form) {
    for (int y = 1; y < form.height(); y += 3)
        for (int x = 1; x < form.width(); x += 3)
            if (form.childAt(x, y) == nullptr)
                return {x, y};
    return {};
}

}  // namespace

bool& runHasEnded() {
    static bool ended = false;
    return ended;
}

float FakeRandom::next() {
    if (!draws.empty()) {
        const float drawn = draws.front();
        draws.pop_front();
        return drawn;
    }
    state_ = state_ * 6364136223846793005ULL + 1442695040888963407ULL;
    return static_cast<float>(state_ >> 40U) * 0x1.0p-24F;
}

void FakeRandom::queueNumbers(const std::vector<int>& numbers, int count) {
    for (const int number : numbers)
        draws.push_back((static_cast<float>(number) - 0.5F) / static_cast<float>(count));
}

QString FakeSettings::read(const QString& application, const QString& section, const QString& key,
                           const QString& fallback) const {
    const auto found = values.find(application + u'/' + section + u'/' + key);
    return found == values.end() ? fallback : found->second;
}

void FakeSettings::write(const QString& application, const QString& section, const QString& key,
                         const QString& value) {
    values[application + u'/' + section + u'/' + key] = value;
}

QStringList SoundList::names() const {
    QStringList names;
    for (const Played& sound : played)
        names.append(QFileInfo(sound.file).fileName());
    return names;
}

bool MessageList::show(const platform::Message& message) {
    shown.push_back(message);
    if (onShow)
        onShow(message);
    // What cannot be stored is given up unless a test says otherwise.
    if (answers.empty())
        return !message.tryAgain;
    const bool answer = answers.front();
    answers.pop_front();
    return answer;
}

QStringList MessageList::texts() const {
    QStringList texts;
    for (const platform::Message& message : shown)
        texts.append(message.text);
    return texts;
}

Desk::Desk(const QString& userId)
    : root_(folder_.path()), drives_(std::make_unique<platform::Drives>(root_)) {
    makeStores();
    tools::writeStore(file(QStringLiteral("C:\\A_Mendori\\Main\\DbScore_%1.mdb").arg(userId)),
                      QStringLiteral("DbScore"), {});
    screens_ = std::make_unique<app::ScreenLoop>(app::allScreens());
    frame_ = std::make_unique<QWidget>();
    frame_->setObjectName(QStringLiteral("frmFrame"));
    frame_->resize(1280, 1024);
    frame_->show();
    context_ = std::make_unique<core::Context>(core::Context{session, *drives_, settings, clock, random,
                                                             sound, boxes, *screens_, QStringLiteral("D:\\"),
                                                             frame_.get()});
    screens_->setContext(*context_);
    session.userId = userId;
    session.userName = QStringLiteral("김하늘");
    session.programCode = QStringLiteral("Tovalin1");
    session.vocaFirst = QStringLiteral("YES");
    session.today = clock.day;
    session.mediaDrive = QStringLiteral("D:");
    session.mediaSoundDir = QStringLiteral("D:\\A_Mendori\\ABCSound\\");
    session.videoRoot = QStringLiteral("D:\\A_Mendori\\Mendori_Program\\Tovalin1_Video\\");
    session.appDir = QStringLiteral("D:\\\\");
    application().onFailure = [this](const std::exception& failure) {
        runHasEnded() = true;
        if (failure_.isEmpty())
            failure_ = platform::failureText(failure);
    };
}

Desk::~Desk() {
    session.closeDictionary();
    session.scoreRs.close();
    session.scoreDb.close();
    frame_.reset();
    application().onFailure = [](const std::exception&) {};
    settle();
}

void Desk::makeStores() {
    const QDir root(root_);
    for (const char* folder :
         {"C/A_Mendori/Main", "C/Larkfield/Larkfield2013/Tovalin1", "D/A_Mendori/ABCPicture",
          "D/A_Mendori/ABCSound", "D/A_Mendori/Mendori_Program/Tovalin1_Video", "E"})
        root.mkpath(QLatin1String(folder));
    for (const tools::StorePlace& place : tools::storePlaces())
        tools::writeStore(root.filePath(QLatin1String(place.path)), QLatin1String(place.store), {});
    const QString pictures = QStringLiteral(MENDORI_PICTURES);
    QFile::link(pictures + QStringLiteral("/interface"), root.filePath(QStringLiteral("D/interface")));
    QFile::link(pictures + QStringLiteral("/button"), root.filePath(QStringLiteral("D/button")));
    QFile::copy(pictures + QStringLiteral("/button/hand.cur"), root.filePath(QStringLiteral("D/harrow.cur")));
    QFile::copy(pictures + QStringLiteral("/interface/login.jpg"),
                root.filePath(QStringLiteral("D/A_Mendori/ABCPicture/Mendori.jpg")));
    // Nobody listens: a test reads the list of sounds, so a moment of silence stands for each effect.
    const tools::Wave silence{22050, std::vector<std::int16_t>(64)};
    for (const char* effect :
         {"touchit.wav", "correct.wav", "wrongit.wav", "contestbegin.wav", "finishsong.wav"})
        tools::writeWave(root.filePath(QStringLiteral("D/") + QLatin1String(effect)), silence);
}

QString Desk::file(const QString& drivePath) const {
    return drives_->resolve(drivePath);
}

void Desk::exec(const QString& store, const std::string& sql) const {
    SQLite::Database database(file(store).toStdString(), SQLite::OPEN_READWRITE, 5000);
    database.exec(sql);
}

QStringList Desk::rows(const QString& store, const std::string& sql) const {
    SQLite::Database database(file(store).toStdString(), SQLite::OPEN_READONLY, 5000);
    SQLite::Statement query(database, sql);
    QStringList rows;
    while (query.executeStep()) {
        QStringList fields;
        for (int i = 0; i < query.getColumnCount(); ++i)
            fields.append(query.getColumn(i).isNull() ? QStringLiteral("NULL")
                                                      : QString::fromUtf8(query.getColumn(i).getText()));
        rows.append(fields.join(u'|'));
    }
    return rows;
}

core::Screen* Desk::open(const QString& screen) {
    screens_->open(screen);
    return awaitScreen(screen);
}

core::Screen* Desk::awaitScreen(const QString& screen) {
    const auto stands = [&] {
        core::Screen* shown = top();
        return !failure_.isEmpty() ||
               (shown != nullptr && shown->objectName() == screen && firstTickDone(shown));
    };
    if (!waitFor(stands) || !failure_.isEmpty())
        return nullptr;
    settle();
    return top();
}

bool waitFor(const std::function<bool()>& condition, int milliseconds) {
    // Short naps: the toolkit's own wait sleeps for 10 ms at a time, which is longer than most of what is
    // waited for.
    constexpr std::chrono::microseconds nap{200};
    const QDeadlineTimer end(milliseconds);
    while (!condition()) {
        if (end.hasExpired())
            return false;
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (condition())
            return true;
        std::this_thread::sleep_for(nap);
    }
    return true;
}

void click(QWidget& control) {
    QTest::mouseClick(&control, Qt::LeftButton, Qt::NoModifier, control.rect().center());
    settle();
}

void hover(QWidget& control) {
    moveMouse(control, control.isWindow() ? barePlace(control) : control.rect().center());
}

void type(QWidget& control, const QString& text) {
    for (const QChar c : text)
        QTest::keyClick(&control, c.toLatin1());
}

void settle() {
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

QString focusName(const QWidget* form) {
    return form != nullptr && form->focusWidget() != nullptr ? form->focusWidget()->objectName() : QString();
}

}  // namespace support
