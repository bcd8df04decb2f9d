#include "core/play_sound.h"

#include <QLoggingCategory>

namespace core {

namespace {

// Off by default; switched on it tells each sound with name and mode, for tests and for whoever looks for a
// silent one.
Q_LOGGING_CATEGORY(soundLog, "tovalin.sound", QtCriticalMsg)

QString soundFile(const Context& context, const QString& path) {
    const QString file = context.drives.resolve(path);
    if (context.drives.fileLength(path) > 0)
        return file;
    // Words come without an extension, as the platform's own sound call supplies it.
    const QString withExtension = path + QStringLiteral(".wav");
    return context.drives.fileLength(withExtension) > 0 ? context.drives.resolve(withExtension) : file;
}

}  // namespace

void PlaySound(const Context& context, const QString& name, int mode) {
    const Session& session = context.session;
    if (mode != EffectAndWait && mode != Effect && mode != WordAndWait)
        return;
    qCInfo(soundLog).noquote() << name << mode;
    const QString folder = mode == WordAndWait ? session.mediaSoundDir : session.appDir;
    context.sound.play(soundFile(context, folder + name), mode != Effect);
}

}  // namespace core
