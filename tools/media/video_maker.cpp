#include "tools/media/video_maker.h"

#include "platform/whole_file.h"
#include "tools/media/narrator.h"
#include "tools/media/slide_painter.h"
#include "tools/media/voice_sound.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <condition_variable>
#include <cstdio>
#include <mutex>
#include <stdexcept>
#include <thread>

namespace tools {

namespace {

// Counts up whenever slides or timing change, so that older videos are made again.
constexpr int makerVersion = 3;
constexpr int encodePatience = 600000;  // milliseconds for one video

enum class Found { Absent, Current, Outdated, Foreign };

/// What the maker notes beside a video: what it was made from, and its size, by which a video that was put
/// in its place is known.
struct Note {
    QString stamp;
    qint64 size = -1;

    static QString file(const QString& video) { return video + QStringLiteral(".made"); }
    static Note read(const QString& video) {
        QFile in(file(video));
        if (!in.open(QIODevice::ReadOnly))
            return {};
        const QStringList words = QString::fromLatin1(in.readAll()).simplified().split(u' ');
        return {words.value(0), words.value(1).toLongLong()};
    }
    bool write(const QString& video) const {
        const QByteArray text = QStringLiteral("%1 %2\n").arg(stamp).arg(size).toLatin1();
        return platform::writeWhole(file(video), text).isEmpty();
    }
};

QString stampOf(const VideoText& text, const QString& voice) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    const QStringList parts{QString::number(makerVersion), voice, QString::number(text.number), text.title,
                            text.tips};
    for (const QString& part : parts) {
        const QByteArray bytes = part.toUtf8();
        hash.addData(QByteArray::number(bytes.size()) + ':' + bytes);
    }
    return QString::fromLatin1(hash.result().toHex());
}

Found look(const QString& video, const QString& stamp) {
    const QFileInfo info(video);
    if (!info.exists())
        return Found::Absent;
    const Note note = Note::read(video);
    if (note.size != info.size())
        return Found::Foreign;
    return note.stamp == stamp ? Found::Current : Found::Outdated;
}

class Recipe {
   public:
    Recipe(const VideoText& text, const Narrator& narrator)
        : text_(text), narrator_(narrator), slides_(painter_.layOut(text)), shots_(shotsOf(text, slides_)) {}

    /// Makes the video and gives its length in seconds. Throws std::runtime_error.
    double make(const QString& video) {
        if (!scratch_.isValid())
            throw std::runtime_error("no temporary folder can be made");
        narrate();
        timeShots(shots_);
        writePictures();
        if (!writeWave(scratch_.filePath(QStringLiteral("sound.wav")), sound()))
            throw std::runtime_error("the temporary folder is full");
        encode(video);
        return seconds();
    }

   private:
    void narrate() {
        voices_.resize(shots_.size());
        for (std::size_t i = 0; i < shots_.size(); ++i) {
            if (shots_[i].spoken.isEmpty())
                continue;
            voices_[i] = narrator_.speak(shots_[i].spoken, shots_[i].voice,
                                         scratch_.filePath(QStringLiteral("voice.wav")));
            shots_[i].speech = static_cast<double>(voices_[i].samples.size()) / voices_[i].rate;
        }
    }
    double seconds() const {
        double sum = 0.0;
        for (const Shot& shot : shots_)
            sum += shot.seconds;
        return sum;
    }
    Wave sound() const {
        Wave wave;
        wave.rate = voiceRate;
        double until = 0.0;
        for (std::size_t i = 0; i < shots_.size(); ++i) {
            until += shots_[i].seconds;
            wave.samples.insert(wave.samples.end(), voices_[i].samples.begin(), voices_[i].samples.end());
            wave.samples.resize(static_cast<std::size_t>(until * wave.rate));
        }
        return wave;
    }
    QImage picture(const Shot& shot) const {
        if (shot.slide < 0)
            return painter_.paintTitle(text_, titleRule(text_.tips));
        return painter_.paint(text_, slides_[static_cast<std::size_t>(shot.slide)], shot.slide + 1,
                              static_cast<int>(slides_.size()), shot.line);
    }
    void writePictures() const {
        QFile list(scratch_.filePath(QStringLiteral("shots.txt")));
        if (!list.open(QIODevice::WriteOnly))
            throw std::runtime_error("the temporary folder cannot be written");
        QString lines;
        QString name;
        for (std::size_t i = 0; i < shots_.size(); ++i) {
            name = QStringLiteral("shot%1.png").arg(i);
            if (!picture(shots_[i]).save(scratch_.filePath(name)))
                throw std::runtime_error("the temporary folder is full");
            lines += QStringLiteral("file '%1'\nduration %2\n").arg(name).arg(shots_[i].seconds, 0, 'f', 3);
        }
        // The list's last duration only counts when another picture follows.
        lines += QStringLiteral("file '%1'\n").arg(name);
        const QByteArray bytes = lines.toLatin1();
        if (list.write(bytes) != bytes.size() || !list.flush())
            throw std::runtime_error("the temporary folder is full");
    }
    void encode(const QString& video) const {
        const QString half = video + QStringLiteral(".new");
        QProcess ffmpeg;
        ffmpeg.setProcessChannelMode(QProcess::MergedChannels);
        ffmpeg.setWorkingDirectory(scratch_.path());
        ffmpeg.start(QStringLiteral("ffmpeg"),
                     {"-nostdin", "-y",        "-loglevel", "error",
                      "-f",       "concat",    "-i",        "shots.txt",
                      "-i",       "sound.wav", "-t",        QString::number(seconds(), 'f', 3),
                      "-vsync",   "cfr",       "-r",        "10",
                      "-g",       "50",        "-threads",  "1",
                      "-c:v",     "wmv2",      "-pix_fmt",  "yuv420p",
                      "-q:v",     "3",         "-c:a",      "wmav2",
                      "-ar",      "44100",     "-ac",       "1",
                      "-b:a",     "64k",       "-f",        "asf",
                      half});
        const bool ended = ffmpeg.waitForStarted() && ffmpeg.waitForFinished(encodePatience);
        if (!ended || ffmpeg.exitStatus() != QProcess::NormalExit || ffmpeg.exitCode() != 0) {
            QFile::remove(half);
            const QString reason = QString::fromUtf8(ffmpeg.readAll()).simplified();
            throw std::runtime_error("ffmpeg failed: " +
                                     (reason.isEmpty() ? ffmpeg.errorString() : reason).toStdString());
        }
        if (std::rename(QFile::encodeName(half).constData(), QFile::encodeName(video).constData()) != 0) {
            QFile::remove(half);
            throw std::runtime_error("the file cannot be put in place");
        }
    }

    const VideoText& text_;
    const Narrator& narrator_;
    SlidePainter painter_;
    std::vector<Slide> slides_;
    std::vector<Shot> shots_;
    std::vector<Wave> voices_;
    QTemporaryDir scratch_;
};

/// Hands the videos to workers, and their news to the calling thread.
class VideoRun {
   public:
    VideoRun(const std::vector<VideoText>& texts, const VideoPlan& plan) : texts_(texts), plan_(plan) {
        report_.silent = !narrator_.speaks(Voice::English);
        report_.silentKorean = !narrator_.speaks(Voice::Korean);
    }

    VideoReport run() {
        std::vector<std::thread> workers;
        for (int i = 0; i < std::max(1, plan_.workers); ++i)
            workers.emplace_back([this] { work(); });
        const int total = static_cast<int>(texts_.size());
        for (int done = 0; done < total;) {
            std::unique_lock lock(mutex_);
            news_.wait(lock, [this] { return !told_.isEmpty(); });
            const QStringList told = std::exchange(told_, {});
            lock.unlock();
            for (const QString& what : told) {
                ++done;
                if (plan_.progress)
                    plan_.progress(what, done, total);
            }
        }
        for (std::thread& worker : workers)
            worker.join();
        return report_;
    }

   private:
    void work() {
        for (;;) {
            std::size_t index = 0;
            {
                const std::scoped_lock lock(mutex_);
                if (next_ >= texts_.size())
                    return;
                index = next_++;
            }
            const QString what = handle(texts_[index]);
            {
                const std::scoped_lock lock(mutex_);
                told_.append(what);
            }
            news_.notify_one();
        }
    }
    QString handle(const VideoText& text) {
        const QString name = videoFileName(text.number);
        const QString video = QDir(plan_.folder).filePath(name);
        const QString stamp = stampOf(text, narrator_.name());
        const Found found = look(video, stamp);
        if (found == Found::Foreign || (found == Found::Current && !plan_.makeAll)) {
            count(&VideoReport::kept);
            return name +
                   (found == Found::Foreign ? QStringLiteral(", not ours, kept") : QStringLiteral(", kept"));
        }
        try {
            const double seconds = Recipe(text, narrator_).make(video);
            if (!Note{stamp, QFileInfo(video).size()}.write(video))
                throw std::runtime_error("the note beside it cannot be written");
            count(&VideoReport::made);
            return QStringLiteral("%1, %2 s").arg(name).arg(qRound(seconds));
        } catch (const std::exception& failure) {
            const QString sentence =
                QStringLiteral("%1 was not made: %2").arg(name, QString::fromUtf8(failure.what()));
            const std::scoped_lock lock(mutex_);
            report_.failures.append(sentence);
            return sentence;
        }
    }
    void count(int VideoReport::*kind) {
        const std::scoped_lock lock(mutex_);
        ++(report_.*kind);
    }

    const std::vector<VideoText>& texts_;
    const VideoPlan& plan_;
    const Narrator narrator_;
    std::mutex mutex_;
    std::condition_variable news_;
    std::size_t next_ = 0;
    QStringList told_;
    VideoReport report_;
};

}  // namespace

QString videoFileName(int number) {
    return QStringLiteral("Lesson_%1.wmv").arg(number);
}

VideoReport makeVideos(const std::vector<VideoText>& texts, const VideoPlan& plan) {
    VideoReport report;
    if (!QDir().mkpath(plan.folder))
        report.failures.append(QStringLiteral("The folder %1 cannot be made.").arg(plan.folder));
    else if (QStandardPaths::findExecutable(QStringLiteral("ffmpeg")).isEmpty())
        report.failures.append(
            QStringLiteral("ffmpeg is not installed; the course runs without videos until it is."));
    return report.failures.isEmpty() ? VideoRun(texts, plan).run() : report;
}

}  // namespace tools
