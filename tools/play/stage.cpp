#include "tools/play/stage.h"

#include "app/screens.h"
#include "core/startup.h"
#include "platform/desktop/application.h"
#include "platform/desktop/timer.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <QElapsedTimer>
#include <QTest>
#include <QThread>

namespace tools::play {

namespace {

constexpr int patience = 10000;
const QString learner = QStringLiteral("1001");

platform::Application& application() {
    return *static_cast<platform::Application*>(QCoreApplication::instance());
}

bool firstTickDone(const core::Screen& screen) {
    const auto* timer = screen.findChild<platform::Timer*>(QStringLiteral("TimerGo"));
    return timer == nullptr || !timer->enabled();
}

}  // namespace

class Stage::FixedRandom final : public platform::RandomSource {
   public:
    void reseed(std::uint64_t) override {}
    float next() override {
        state_ = state_ * 6364136223846793005ULL + 1442695040888963407ULL;
        return static_cast<float>(state_ >> 40U) * 0x1.0p-24F;
    }

   private:
    std::uint64_t state_ = 20260314;
};

/// Settings of a learner who is logged in; nobody's own are read or changed.
class Stage::KnownLearner final : public platform::Settings {
   public:
    QString read(const QString&, const QString&, const QString& key, const QString& fallback) const override {
        if (key == QStringLiteral("UserID") || key == QStringLiteral("Name"))
            return learner;
        return fallback;
    }
    void write(const QString&, const QString&, const QString&, const QString&) override {}
};

class Stage::Silence final : public platform::SoundPlayer {
   public:
    void play(const QString&, bool) override {}
};

class Stage::Boxes final : public platform::MessageBoxes {
   public:
    QStringList texts;
    bool show(const platform::Message& message) override {
        texts.append(message.text);
        return !message.tryAgain;
    }
};

Stage::Stage(const QString& root)
    : root_(root),
      drives_(root),
      settings_(std::make_unique<KnownLearner>()),
      random_(std::make_unique<FixedRandom>()),
      sound_(std::make_unique<Silence>()),
      boxes_(std::make_unique<Boxes>()),
      frame_(QStringLiteral("frmFrame")),
      screens_(app::allScreens()),
      context_{session_, drives_,  *settings_,
               clock_,   *random_, *sound_,
               *boxes_,  screens_, core::applicationFolder(*settings_, drives_),
               &frame_} {
    screens_.setContext(context_);
    application().onFailure = [this](const std::exception& failure) {
        if (failure_.isEmpty())
            failure_ = QString::fromUtf8(failure.what());
    };
    if (!core::StartUp(context_, frame_))
        throw PlayError(QStringLiteral("the program did not start"));
    awaitScreen(QStringLiteral("frmTable"));
}

Stage::~Stage() {
    for (core::Screen* screen : screens_.standing())
        screen->deleteLater();
    application().onFailure = [](const std::exception&) {};
    settle();
    session_.closeDictionary();
    session_.scoreRs.close();
    session_.scoreDb.close();
}

core::Screen* Stage::top() const {
    return screens_.top();
}

QString Stage::topName() const {
    const core::Screen* screen = top();
    return screen == nullptr ? QString() : screen->objectName();
}

void Stage::checkFailure() const {
    if (!failure_.isEmpty())
        throw PlayError(QStringLiteral("the program ended: %1").arg(failure_));
}

void Stage::await(const std::function<bool()>& condition, const QString& what) {
    QElapsedTimer timer;
    timer.start();
    settle();
    while (true) {
        checkFailure();
        if (condition())
            return;
        if (timer.elapsed() > patience)
            throw PlayError(QStringLiteral("%1 did not come (%2 stands)").arg(what, topName()));
        QThread::usleep(200);
        settle();
    }
}

QString Stage::awaitScreen() {
    await([this] { return top() != nullptr && firstTickDone(*top()); }, QStringLiteral("the next screen"));
    return topName();
}

QString Stage::awaitScreen(const QString& name) {
    await([&] { return topName() == name && firstTickDone(*top()); }, name);
    return name;
}

QString Stage::memberName(const char* array, int index) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(index);
}

void Stage::missing(const QString& name) const {
    throw PlayError(QStringLiteral("%1 has no %2").arg(topName(), name));
}

bool Stage::isVisible(const QString& name) const {
    const auto* control = seek<QWidget>(name);
    return control != nullptr && control->isVisible();
}

void Stage::click(QWidget& control) {
    if (!control.isVisible())
        throw PlayError(QStringLiteral("%1 of %2 cannot be seen").arg(control.objectName(), topName()));
    QTest::mouseClick(&control, Qt::LeftButton, Qt::NoModifier, control.rect().center());
    settle();
    checkFailure();
}

void Stage::press(QWidget& control, Qt::Key key) {
    QTest::keyClick(&control, key);
    settle();
    checkFailure();
}

void Stage::retype(platform::TextBox& box, const QString& text) {
    if (!box.isVisible() || !box.isEnabled() || box.locked())
        throw PlayError(QStringLiteral("%1 of %2 takes no typing").arg(box.objectName(), topName()));
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    for (const QChar c : text)
        QTest::keyClick(&box, c.toLatin1());
    checkFailure();
}

std::vector<QStringList> Stage::rowsOf(const QString& path, const std::string& sql) const {
    SQLite::Database database(drives_.resolve(path).toStdString(), SQLite::OPEN_READONLY, 5000);
    SQLite::Statement query(database, sql);
    std::vector<QStringList> rows;
    while (query.executeStep()) {
        QStringList fields;
        for (int i = 0; i < query.getColumnCount(); ++i)
            fields.append(QString::fromUtf8(query.getColumn(i).getText()));
        rows.push_back(fields);
    }
    return rows;
}

std::vector<QStringList> Stage::rows(const QString& store, const std::string& sql) const {
    return rowsOf(QStringLiteral("D:\\") + store, sql);
}

std::vector<QStringList> Stage::scoreRows(const std::string& sql) const {
    return rowsOf(QStringLiteral("C:\\A_Mendori\\Main\\DbScore_%1.mdb").arg(learner), sql);
}

QStringList Stage::takeMessages() {
    QStringList taken;
    taken.swap(boxes_->texts);
    return taken;
}

void settle() {
    for (int i = 0; i < 2; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

}  // namespace tools::play
