// Damages one file of a fresh install in a way that chance picks, starts the program on it with a learner
// who presses at random, and looks how it ends: never by a signal, never late, with a sentence that names the
// file where it ends in an error, and with nothing written to a store that is broken. Says at the end how
// many starts there were and what went wrong; status 1 where anything did.

#include "tests/endurance/damages.h"
#include "tools/setup/install.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <SQLiteCpp/SQLiteCpp.h>
#include <unistd.h>

#include <atomic>
#include <cstdio>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

namespace {

using endurance::Damage;

constexpr int timeLimit = 90000;  // milliseconds for one start, far more than a busy machine needs

/// An install with scores, word sounds and videos, which every start gets a copy of.
void makeTemplate(const QString& root) {
    tools::InstallPlan plan;
    plan.root = root;
    plan.courseFolder = QStringLiteral(MENDORI_SOURCE "/starter");
    plan.pictureFolder = QStringLiteral(MENDORI_PICTURES);
    plan.reportFolder = QStringLiteral(MENDORI_SOURCE "/reports");
    plan.userId = QStringLiteral("1001");
    plan.speakWords = false;
    tools::makeInstall(plan);
    SQLite::Database scores((root + QStringLiteral("/C/A_Mendori/Main/DbScore_1001.mdb")).toStdString(),
                            SQLite::OPEN_READWRITE);
    scores.exec(
        "with recursive n(i) as (select 1 union all select i+1 from n where i<120) "
        "insert into "
        "score(recordno,page2,datapage,lessontype,vtitle,s1,s2,s3,s4,dayno,vDate,studentno,program,"
        "studentname,bookno) select "
        "i,i,1+i/12,'Quiz','','100','80','90',100,i,'2026-03-14','1001','Tovalin1','Kim',0 "
        "from n");
    const QString sounds = root + QStringLiteral("/D/A_Mendori/ABCSound/");
    QDir().mkpath(sounds);
    for (const char* word : {"apple", "book", "cat", "child", "city", "dog", "water"})
        QFile::copy(root + QStringLiteral("/D/touchit.wav"),
                    sounds + QLatin1String(word) + QStringLiteral(".wav"));
    const QString videos = root + QStringLiteral("/D/A_Mendori/Mendori_Program/Tovalin1_Video/");
    QDir().mkpath(videos);
    if (QProcess::execute(QStringLiteral("ffmpeg"), {"-nostdin", "-y", "-loglevel", "error", "-f", "lavfi",
                                                     "-i", "testsrc=duration=1:size=320x240:rate=10", "-c:v",
                                                     "wmv2", videos + "Lesson_1.wmv"}) == 0)
        for (int unit = 2; unit <= 24; ++unit)
            QFile::copy(videos + "Lesson_1.wmv", videos + QStringLiteral("Lesson_%1.wmv").arg(unit));
}

/// Copies an install: what the program writes to as files of their own, all else as further names of the
/// same.
void copyInstall(const QString& from, const QString& to) {
    for (QDirIterator it(from, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
         it.hasNext();) {
        const QString source = it.next();
        const QString target = to + source.mid(from.size());
        if (it.fileInfo().isDir())
            QDir().mkpath(target);
        else if (source.endsWith(QStringLiteral(".lock")))
            continue;
        else if (source.endsWith(QStringLiteral(".mdb")) ||
                 link(QFile::encodeName(source).constData(), QFile::encodeName(target).constData()) != 0)
            QFile::copy(source, target);
    }
}

QByteArray contentOf(const QString& file) {
    QFile in(file);
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

/// How a start went: the one word that is counted, and what was said.
struct Outcome {
    QString word;
    QString said;
    bool bad = false;
};

struct Ending {
    bool hung = false;
    bool crashed = false;
    int status = 0;
    QString said;
};

Ending start(const QString& root, const QString& config, std::uint64_t seed, int presses) {
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("MENDORI_ROOT"), root);
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), config);
    environment.insert(QStringLiteral("XDG_DATA_HOME"), config);
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::MergedChannels);
    child.start(QCoreApplication::applicationDirPath() + QStringLiteral("/robot_start"),
                {QString::number(seed), QString::number(presses)});
    Ending ending;
    ending.hung = !child.waitForFinished(timeLimit);
    if (ending.hung) {
        child.kill();
        child.waitForFinished();
    }
    ending.crashed = child.exitStatus() == QProcess::CrashExit && !ending.hung;
    ending.status = child.exitCode();
    ending.said = QString::fromUtf8(child.readAll());
    return ending;
}

/// The sentences of the error box, without which an end in an error says nothing.
QString errorOf(const QString& said) {
    static const QRegularExpression box(QStringLiteral("errorBox: (.*?)(?=\\n\\w+Box: |$)"),
                                        QRegularExpression::DotMatchesEverythingOption);
    return box.match(said).captured(1).simplified();
}

bool namesAFile(const QString& sentence) {
    static const QRegularExpression name(QStringLiteral("\\.(mdb|jpg|cur|ini|rpt|wav|wmv|lock)\\b"),
                                         QRegularExpression::CaseInsensitiveOption);
    return name.match(sentence).hasMatch();
}

Outcome judge(const Ending& ending, const Damage& damage, bool wrote) {
    const QString error = errorOf(ending.said);
    if (ending.hung)
        return {QStringLiteral("hang"), ending.said, true};
    if (ending.crashed || ending.status > 1)
        return {QStringLiteral("signal"), ending.said, true};
    if (wrote)
        return {QStringLiteral("written to while broken"), ending.said, true};
    if (ending.status == 0) {
        const bool loggedOut = ending.said.contains(QStringLiteral("Log In Required."));
        return {loggedOut ? QStringLiteral("nobody logged in") : QStringLiteral("went on"), ending.said,
                loggedOut && !namesAFile(ending.said)};
    }
    if (error.isEmpty() || !namesAFile(error))
        return {QStringLiteral("error without a file"), ending.said, true};
    const bool named = error.contains(QFileInfo(damage.file).fileName(), Qt::CaseInsensitive);
    return {named ? QStringLiteral("told") : QStringLiteral("told of another file"), error,
            !named && !damage.inside};
}

class Run {
   public:
    Run(const QString& folder, int count, std::uint64_t seed, int presses, bool talks)
        : folder_(folder), count_(count), seed_(seed), presses_(presses), talks_(talks) {}

    int run(int jobs) {
        makeTemplate(folder_ + QStringLiteral("/template"));
        std::vector<std::thread> workers;
        for (int i = 0; i < jobs; ++i)
            workers.emplace_back([this, i] { work(folder_ + QStringLiteral("/job%1").arg(i)); });
        for (std::thread& worker : workers)
            worker.join();
        std::printf("%d starts on damaged installs\n", count_);
        for (const auto& [word, count] : counts_)
            std::printf("%6d  %s\n", count, qPrintable(word));
        std::printf("%d of them wrong\n", wrong_);
        return wrong_ == 0 ? 0 : 1;
    }

   private:
    void work(const QString& place) {
        for (int i = next_++; i < count_; i = next_++) {
            try {
                one(place, seed_ + static_cast<std::uint64_t>(i));
            } catch (const std::exception& failure) {
                const std::scoped_lock lock(mutex_);
                std::printf("seed %llu: %s\n", static_cast<unsigned long long>(seed_) + i, failure.what());
                ++wrong_;
            }
        }
    }
    void one(const QString& place, std::uint64_t seed) {
        QDir(place).removeRecursively();
        const QString root = place + QStringLiteral("/root");
        const QString config = place + QStringLiteral("/config");
        QDir().mkpath(config);
        copyInstall(folder_ + QStringLiteral("/template"), root);
        const QString settings = config + QStringLiteral("/Mendori.ini");
        QFile ini(settings);
        if (!ini.open(QIODevice::WriteOnly) ||
            ini.write("[General Information]\nUserID=1001\nName=김하늘\nTeacher=Teacher\n") < 0)
            throw std::runtime_error("no room for the settings");
        ini.close();
        endurance::Chance chance(seed);
        const Damage damage = endurance::damageOneFile(chance, root, settings);
        const QString file = root + u'/' + damage.file;
        const bool broken =
            damage.store && !damage.inside && QFileInfo(file).isFile() && !endurance::isSound(file);
        const QByteArray before = broken ? contentOf(file) : QByteArray();
        const Ending ending = start(root, config, seed, presses_);
        note(seed, damage, judge(ending, damage, broken && contentOf(file) != before));
    }
    void note(std::uint64_t seed, const Damage& damage, const Outcome& outcome) {
        const std::scoped_lock lock(mutex_);
        ++counts_[outcome.word];
        wrong_ += outcome.bad ? 1 : 0;
        if (outcome.bad || talks_ ||
            (damage.inside && outcome.word == QStringLiteral("told of another file")))
            std::printf("seed %llu, %s %s: %s%s\n    %s\n", static_cast<unsigned long long>(seed),
                        qPrintable(damage.file), qPrintable(damage.what), outcome.bad ? "WRONG, " : "",
                        qPrintable(outcome.word), qPrintable(outcome.said.simplified().left(600)));
        std::fflush(stdout);
    }

    const QString folder_;
    const int count_;
    const std::uint64_t seed_;
    const int presses_;
    const bool talks_;
    std::atomic<int> next_{0};
    std::mutex mutex_;
    std::map<QString, int> counts_;
    int wrong_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Starts the program on damaged installs."));
    parser.addHelpOption();
    const QCommandLineOption count(QStringLiteral("count"), QStringLiteral("How many starts."), "number",
                                   "1500");
    const QCommandLineOption seed(QStringLiteral("seed"), QStringLiteral("Of the first start."), "number",
                                  "1");
    const QCommandLineOption jobs(QStringLiteral("jobs"), QStringLiteral("How many at a time."), "number",
                                  "2");
    const QCommandLineOption presses(QStringLiteral("presses"), QStringLiteral("In one start."), "number",
                                     "30");
    const QCommandLineOption all(QStringLiteral("all"), QStringLiteral("Tell of every start."));
    parser.addOptions({count, seed, jobs, presses, all});
    parser.process(application);
    const QTemporaryDir folder;
    return Run(folder.path(), parser.value(count).toInt(), parser.value(seed).toULongLong(),
               parser.value(presses).toInt(), parser.isSet(all))
        .run(parser.value(jobs).toInt());
}
