#include "tools/media/speech.h"

#include "tools/media/wave.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>

namespace tools {

namespace {

// Some devices cut the last samples off; this much silence keeps the word whole.
constexpr double tailSeconds = 0.06;

bool speak(const QString& program, const QString& word, const QString& file) {
    const QString half = file + QStringLiteral(".new");
    QProcess speech;
    speech.start(program, {QStringLiteral("-voice"), QStringLiteral("slt"), QStringLiteral("-t"), word,
                           QStringLiteral("-o"), half});
    const bool spoken =
        speech.waitForFinished() && speech.exitStatus() == QProcess::NormalExit && speech.exitCode() == 0;
    Wave wave = readWave(half);
    QFile::remove(half);
    if (!spoken || wave.samples.empty())
        return false;
    wave.samples.resize(wave.samples.size() + static_cast<std::size_t>(tailSeconds * wave.rate));
    return writeWave(file, wave);
}

/// A word of the course names a file of its own folder and never one elsewhere.
bool namesAFile(const QString& word) {
    return !word.isEmpty() && std::all_of(word.begin(), word.end(), [](QChar letter) {
        return letter.isPrint() && letter != u'/' && letter != u'\\' && letter != u':';
    });
}

}  // namespace

int speakWords(const QStringList& words, const QString& folder,
               const std::function<void(const QString& what, int done, int total)>& progress) {
    const QString program = QStandardPaths::findExecutable(QStringLiteral("flite"));
    int silent = 0;
    int done = 0;
    for (const QString& word : words) {
        const QString file = folder + u'/' + word + QStringLiteral(".wav");
        const bool can = !program.isEmpty() && namesAFile(word);
        if (!QFile::exists(file) && !(can && speak(program, word, file)))
            ++silent;
        if (progress)
            progress(QStringLiteral("word sounds"), ++done, static_cast<int>(words.size()));
    }
    return silent;
}

}  // namespace tools
