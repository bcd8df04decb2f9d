#include "platform/media/sound.h"

#include "platform/desktop/waiting.h"
#include "platform/media/sound_interface.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QLibrary>
#include <QTimer>

namespace platform {

namespace {

// How often the end of a sound that is waited for is asked for, in milliseconds.
constexpr int pollInterval = 5;

}  // namespace

struct DeviceSound::Module {
    QLibrary library;
    SoundPlayFunction play = nullptr;
    SoundPlayBesideFunction playBeside = nullptr;
    SoundPlayingFunction playing = nullptr;
    SoundCloseFunction close = nullptr;

    Module() : library(QCoreApplication::applicationDirPath() + QStringLiteral("/mendori_sound")) {
        play = reinterpret_cast<SoundPlayFunction>(library.resolve(soundPlayName));
        playBeside = reinterpret_cast<SoundPlayBesideFunction>(library.resolve(soundPlayBesideName));
        playing = reinterpret_cast<SoundPlayingFunction>(library.resolve(soundPlayingName));
        close = reinterpret_cast<SoundCloseFunction>(library.resolve(soundCloseName));
    }
    ~Module() {
        if (close != nullptr)
            close();
    }
    bool usable() const {
        return play != nullptr && playBeside != nullptr && playing != nullptr && close != nullptr;
    }
};

DeviceSound::DeviceSound() = default;
DeviceSound::~DeviceSound() = default;

bool DeviceSound::canPlay(const QString& file) {
    if (!QFileInfo(file).isFile())
        return false;
    if (!module_)
        module_ = std::make_unique<Module>();
    return module_->usable();
}

void DeviceSound::playBeside(const QString& file) {
    if (canPlay(file))
        module_->playBeside(file.toUtf8().constData());
}

void DeviceSound::play(const QString& file, bool wait) {
    if (!canPlay(file) || !module_->play(file.toUtf8().constData()) || !wait)
        return;
    // The window keeps painting while a word is spoken, but the learner's clicks and keys wait their turn,
    // and what else would press something does nothing.
    const Waiting waiting(Waiting::Input::Nothing);
    QEventLoop loop;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (!module_->playing())
            loop.quit();
    });
    poll.start(pollInterval);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace platform
