// Plays the wave files named as arguments, waiting for the end of each, or starting it at once and waiting
// for the last where the first argument is "--at-once". With "--beside" the first sounds as a media player's
// does. Tells the milliseconds it took.

#include "platform/media/sound.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <cstdio>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QStringList files = QCoreApplication::arguments().mid(1);
    const bool atOnce = files.removeAll(QStringLiteral("--at-once")) > 0;
    const bool beside = files.removeAll(QStringLiteral("--beside")) > 0;
    platform::DeviceSound sound;
    QElapsedTimer clock;
    clock.start();
    if (beside)
        sound.playBeside(files.takeFirst());
    for (const QString& file : files)
        sound.play(file, !atOnce || file == files.back());
    std::printf("%lld\n", clock.elapsed());
    return 0;
}
