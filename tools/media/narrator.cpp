#include "tools/media/narrator.h"

#include "tools/media/voice_sound.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

namespace tools {

namespace {

constexpr int patience = 60000;  // milliseconds for one sentence

const QString flite = QStringLiteral("flite");
const QString espeak = QStringLiteral("espeak-ng");

QString nameOf(const QString& program) {
    return program.isEmpty() ? QStringLiteral("none") : QFileInfo(program).fileName();
}

/// At 170 words a minute the Korean voice says five syllables a second, the pace of a patient teacher.
QStringList arguments(const QString& program, Voice voice, const QString& sentence, const QString& file) {
    if (nameOf(program) == flite)
        return {QStringLiteral("-voice"), QStringLiteral("slt"),
                QStringLiteral("--setf"), QStringLiteral("duration_stretch=1.15"),
                QStringLiteral("-t"),     sentence,
                QStringLiteral("-o"),     file};
    const bool english = voice == Voice::English;
    return {QStringLiteral("-v"), english ? QStringLiteral("en-us") : QStringLiteral("ko"),
            QStringLiteral("-s"), english ? QStringLiteral("140") : QStringLiteral("170"),
            QStringLiteral("-w"), file,
            QStringLiteral("--"), sentence};
}

}  // namespace

Narrator::Narrator()
    : english_(QStandardPaths::findExecutable(flite)), korean_(QStandardPaths::findExecutable(espeak)) {
    if (english_.isEmpty())
        english_ = korean_;
}

QString Narrator::name() const {
    return english_.isEmpty() ? nameOf(english_) : nameOf(english_) + u'+' + nameOf(korean_);
}

Wave Narrator::speak(const QString& sentence, Voice voice, const QString& scratch) const {
    const QString& program = programOf(voice);
    if (program.isEmpty())
        return {};
    QProcess speech;
    speech.start(program, arguments(program, voice, sentence, scratch));
    const bool spoken = speech.waitForFinished(patience) && speech.exitStatus() == QProcess::NormalExit &&
                        speech.exitCode() == 0;
    const Wave wave = spoken ? asVoice(readWave(scratch)) : Wave();
    QFile::remove(scratch);
    return wave;
}

}  // namespace tools
