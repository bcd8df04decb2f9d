#include "tools/narrator.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

namespace tools {

namespace {

constexpr int patience = 60000;  // milliseconds for one sentence

const QString flite = QStringLiteral("flite");
const QString espeak = QStringLiteral("espeak-ng");

QStringList arguments(const QString& name, const QString& sentence, const QString& file) {
    if (name == flite)
        return {QStringLiteral("-voice"), QStringLiteral("slt"),
                QStringLiteral("--setf"), QStringLiteral("duration_stretch=1.15"),
                QStringLiteral("-t"),     sentence,
                QStringLiteral("-o"),     file};
    return {QStringLiteral("-v"), QStringLiteral("en-us"),
            QStringLiteral("-s"), QStringLiteral("140"),
            QStringLiteral("-w"), file,
            QStringLiteral("--"), sentence};
}

}  // namespace

Narrator::Narrator() : name_(QStringLiteral("none")) {
    for (const QString& candidate : {flite, espeak}) {
        program_ = QStandardPaths::findExecutable(candidate);
        if (!program_.isEmpty()) {
            name_ = candidate;
            return;
        }
    }
}

Wave Narrator::speak(const QString& sentence, const QString& scratch) const {
    if (program_.isEmpty())
        return {};
    QProcess speech;
    speech.start(program_, arguments(name_, sentence, scratch));
    const bool spoken = speech.waitForFinished(patience) && speech.exitStatus() == QProcess::NormalExit &&
                        speech.exitCode() == 0;
    Wave wave = spoken ? readWave(scratch) : Wave();
    QFile::remove(scratch);
    return wave;
}

}  // namespace tools
