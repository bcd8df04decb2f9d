#include "tools/setup/install.h"

#include "platform/storage/database.h"
#include "platform/storage/store_errors.h"
#include "platform/whole_file.h"
#include "tools/coursefiles/course_source.h"
#include "tools/media/speech.h"
#include "tools/media/wave.h"
#include "tools/rules/check.h"
#include "tools/setup/store_writer.h"
#include "tools/setup/word_scores.h"
#include "tools/support/replace_store.h"
#include "tools/support/root_hold.h"
#include "tools/support/unfinished_file.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <array>
#include <cstdio>

namespace tools {

namespace {

// A file of this name in the root says that the install is ours, and which course its stores were built from.
const QString markName = QStringLiteral(".mendori-install");
const QString unfinished = QStringLiteral("unfinished");
// Counts up whenever the stores' layout changes, so that an older install is rebuilt.
constexpr int layoutVersion = 1;

[[noreturn]] void refuse(const QString& sentence) {
    throw std::runtime_error(sentence.toStdString());
}

// Content stores and where they lie below the root. The worksheets work in a copy of the course store.
constexpr std::array contentStores{
    StorePlace{"tovalin.mdb", "D/tovalin.mdb"},
    StorePlace{"tovalin.mdb", "C/Larkfield/Larkfield2013/Tovalin1/tovalin.mdb"},
    StorePlace{"Tovalin_Data.mdb", "D/Tovalin_Data.mdb"},
    StorePlace{"testword_im.mdb", "D/testword_im.mdb"},
    StorePlace{"testword_2013.mdb", "D/testword_2013.mdb"},
    StorePlace{"dicword_K.mdb", "D/dicword_K.mdb"},
    StorePlace{"dicword.mdb", "C/A_Mendori/Main/dicword.mdb"},
    StorePlace{"Pversion_2026.mdb", "C/A_Mendori/Main/Pversion_2026.mdb"},
};

class Installer {
   public:
    /// What the stores are built from is told by the tables as they are before the first is read: one that is
    /// saved later than that is built the next time.
    explicit Installer(const InstallPlan& plan)
        : plan_(plan), root_(plan.root), stamp_(courseStamp(plan.courseFolder)) {}

    void run() {
        ReadErrors damages;
        const BuiltCourse course(readCourse(plan_.courseFolder, &damages), &damages);
        checkCourse(course, damages);
        claimRoot();
        makeStores(course);
        makeScores();
        copyPictures();
        makeEffects();
        copyReports();
        if (plan_.speakWords)
            speakWords(course.words().keys(), root_.filePath(QStringLiteral("D/A_Mendori/ABCSound")),
                       plan_.progress);
        writeMark(stamp_);
    }

    BuiltStores runStores() {
        ReadErrors damages;
        const BuiltCourse course(readCourse(plan_.courseFolder, &damages), &damages);
        BuiltStores built;
        built.warnings = checkCourse(course, damages);
        claimRoot();
        makeStores(course);
        writeMark(stamp_);
        built.stores = static_cast<int>(contentStores.size());
        for (const BuiltTable& table : course.tables())
            built.rows += static_cast<int>(table.rows.size());
        return built;
    }

   private:
    /// Throws where the course has an error; gives the number of warnings.
    static int checkCourse(const BuiltCourse& built, const ReadErrors& damages) {
        const check::Course course(built.tables());
        const std::vector<check::Finding> findings = check::checkTables(course, damages);
        const int errors = check::errorCount(findings);
        if (errors == 0)
            return static_cast<int>(findings.size());
        QString told = QStringLiteral("The course has %1 error%2, and nothing was built.")
                           .arg(errors)
                           .arg(errors == 1 ? QString() : QStringLiteral("s"));
        for (const check::Finding& finding : findings)
            if (finding.severity == check::Severity::Error)
                told += u'\n' + finding.text();
        refuse(told);
    }

    void tell(const QString& what, int done, int total) const {
        if (plan_.progress)
            plan_.progress(what, done, total);
    }

    QString markFile() const { return root_.filePath(markName); }

    void claimRoot() {
        if (!root_.mkpath(QStringLiteral(".")))
            refuse(
                QStringLiteral("The folder %1 cannot be made. Choose another with --root.").arg(plan_.root));
        if (!root_.isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot) &&
            !QFile::exists(markFile()))
            refuse(QStringLiteral("%1 holds files that are no install of this program; nothing was changed. "
                                  "Choose an empty folder with --root.")
                       .arg(plan_.root));
        if (!QFile::exists(markFile()))
            writeMark(unfinished);
        for (const char* folder : {"C/A_Mendori/Main", "C/Larkfield/Larkfield2013/Tovalin1", "D/button",
                                   "D/interface", "D/A_Mendori/ABCPicture", "D/A_Mendori/ABCSound",
                                   "D/A_Mendori/Mendori_Program/Tovalin1_Video", "E", "F", "G", "H"})
            if (!root_.mkpath(QLatin1String(folder)))
                refuse(QStringLiteral("The folder %1 cannot be made.")
                           .arg(root_.filePath(QLatin1String(folder))));
        hold_.take(plan_.root);
    }

    /// Until every store is made anew the install is of no course: a run that is cut short is made good by
    /// the next, whichever course that one is of.
    CourseHold beginRebuild() const {
        CourseHold turn = holdCourse(plan_.root);
        writeMark(unfinished);
        return turn;
    }

    void writeMark(const QString& stamp) const {
        const QString problem = platform::writeWhole(markFile(), stamp.toUtf8() + '\n');
        if (!problem.isEmpty())
            refuse(QStringLiteral("%1 cannot be written: %2").arg(markFile(), problem));
    }

    static QString courseStamp(const QString& courseFolder) {
        QCryptographicHash hash(QCryptographicHash::Sha1);
        hash.addData(QByteArray::number(layoutVersion));
        QStringList files;
        for (QDirIterator it(courseFolder, {QStringLiteral("*.csv")}, QDir::Files,
                             QDirIterator::Subdirectories);
             it.hasNext();)
            files.append(it.next());
        files.sort();
        for (const QString& file : files) {
            QFile opened(file);
            if (opened.open(QIODevice::ReadOnly)) {
                hash.addData(file.mid(courseFolder.size()).toUtf8());
                hash.addData(&opened);
            }
        }
        return QString::fromLatin1(hash.result().toHex());
    }

    bool isCurrent() const {
        QFile mark(markFile());
        return mark.open(QIODevice::ReadOnly) && QString::fromUtf8(mark.readAll()).trimmed() == stamp_;
    }

    void makeStores(const BuiltCourse& course) const {
        const bool current = isCurrent();
        const CourseHold turn = current ? CourseHold() : beginRebuild();
        int done = 0;
        for (const StorePlace& place : contentStores) {
            tell(QStringLiteral("stores"), ++done, static_cast<int>(contentStores.size()));
            const QString file = root_.filePath(QLatin1String(place.path));
            const bool exists = QFile::exists(file);
            if (exists && !madeBySetup(file))
                refuse(QStringLiteral(
                           "%1 was not made by this set-up and is left as it is. Move it away, or choose "
                           "another folder with --root.")
                           .arg(file));
            if (!exists || !current)
                writeStore(file, QLatin1String(place.store), course.tables());
        }
        openWordParts(root_, course.table(QStringLiteral("tablework")));
    }

    void makeScores() const {
        if (plan_.userId.isEmpty())
            return;
        const QString file =
            root_.filePath(QStringLiteral("C/A_Mendori/Main/DbScore_%1.mdb").arg(plan_.userId));
        if (!QFile::exists(file))
            writeStore(file, QStringLiteral("DbScore"), {});
        else if (platform::storeFormat(file) == platform::StoreFormat::Store)
            keepFromOthers(file);
    }

    static void copyNewer(const QString& from, const QString& to) {
        const QFileInfo source(from);
        const QFileInfo target(to);
        if (target.exists() && target.size() == source.size() &&
            target.lastModified() >= source.lastModified())
            return;
        const UnfinishedFile half(to + QStringLiteral(".new"));
        QFile file(from);
        if (!file.copy(half.name()))
            refuse(QStringLiteral("%1 cannot be copied to %2: %3.").arg(from, to, file.errorString()));
        if (std::rename(QFile::encodeName(half.name()).constData(), QFile::encodeName(to).constData()) != 0)
            refuse(QStringLiteral("%1 cannot be written.").arg(to));
    }

    void copyFolder(const QString& from, const QString& pattern, const QString& to) const {
        const QStringList names = QDir(from).entryList({pattern}, QDir::Files);
        for (const QString& name : names)
            copyNewer(from + u'/' + name, root_.filePath(to + u'/' + name));
    }

    void copyPictures() const {
        tell(QStringLiteral("pictures"), 0, 1);
        for (const char* folder : {"interface", "button"})
            copyFolder(plan_.pictureFolder + u'/' + QLatin1String(folder), QStringLiteral("*.jpg"),
                       QStringLiteral("D/") + QLatin1String(folder));
        copyNewer(plan_.pictureFolder + QStringLiteral("/button/hand.cur"),
                  root_.filePath(QStringLiteral("D/harrow.cur")));
        copyNewer(plan_.pictureFolder + QStringLiteral("/interface/login.jpg"),
                  root_.filePath(QStringLiteral("D/A_Mendori/ABCPicture/Mendori.jpg")));
        tell(QStringLiteral("pictures"), 1, 1);
    }

    void makeEffects() const {
        for (const auto& [name, wave] : effects())
            if (const QString file = root_.filePath(QStringLiteral("D/") + name); !QFile::exists(file))
                if (!writeWave(file, wave))
                    refuse(QStringLiteral("%1 cannot be written.").arg(file));
    }

    void copyReports() const {
        if (!plan_.reportFolder.isEmpty())
            copyFolder(plan_.reportFolder, QStringLiteral("*.rpt"),
                       QStringLiteral("C/Larkfield/Larkfield2013/Tovalin1"));
    }

    const InstallPlan& plan_;
    QDir root_;
    const QString stamp_;
    RootHold hold_;
};

}  // namespace

bool madeBySetup(const QString& storeFile) {
    // Bytes 68 to 71 of a store hold the mark of the program that made it.
    QFile file(storeFile);
    if (platform::storeFormat(storeFile) != platform::StoreFormat::Store || !file.open(QIODevice::ReadOnly))
        return false;
    return file.seek(68) && file.read(4) == storeMark();
}

std::span<const StorePlace> storePlaces() {
    return contentStores;
}

void makeInstall(const InstallPlan& plan) {
    Installer(plan).run();
}

BuiltStores makeStores(const InstallPlan& plan) {
    return Installer(plan).runStores();
}

}  // namespace tools
