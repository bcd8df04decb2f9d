#include "tools/import/layout.h"

#include "core/stores.h"
#include "platform/storage/database.h"
#include "platform/storage/store_errors.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QMap>

#include <algorithm>
#include <array>

namespace tools {

namespace {

const QString scorePrefix = QStringLiteral("DbScore_");
const QString storeEnding = QStringLiteral(".mdb");
const QString courseStore = QStringLiteral("tovalin.mdb");
// Where the application folder is unless the settings say otherwise.
const QString applicationDrive = QStringLiteral("D");

struct StoreKindRow {
    const char* name;
    bool inMainFolder;
};
constexpr std::array storeKinds{
    StoreKindRow{"dicword.mdb", true},      StoreKindRow{"Pversion_2026.mdb", true},
    StoreKindRow{"tovalin.mdb", false},     StoreKindRow{"Tovalin_Data.mdb", false},
    StoreKindRow{"testword_im.mdb", false}, StoreKindRow{"testword_2013.mdb", false},
    StoreKindRow{"dicword_K.mdb", false},
};

// Folders below the media drive, and below the application folder.
constexpr std::array mediaFolders{"A_Mendori/ABCPicture", "A_Mendori/ABCSound", "A_Mendori/Mendori_Program"};
constexpr std::array applicationFolders{"button", "interface", "Sound", "MyRecord", "ABCPicture"};

bool sameName(const QString& one, const QString& other) {
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

/// The name that the schema has for a store file's own name; empty for any other file.
QString storeNameOf(const QString& fileName) {
    for (const StoreKindRow& kind : storeKinds)
        if (sameName(fileName, QLatin1String(kind.name)))
            return QLatin1String(kind.name);
    const bool scores = fileName.startsWith(scorePrefix, Qt::CaseInsensitive) &&
                        fileName.endsWith(storeEnding, Qt::CaseInsensitive) &&
                        fileName.size() > scorePrefix.size() + storeEnding.size();
    if (!scores)
        return {};
    const QString user = fileName.mid(scorePrefix.size()).chopped(storeEnding.size());
    return scorePrefix + user + storeEnding;
}

/// A file of the old install, split at the folder that was searched.
struct Item {
    QString file;
    QString relative;  // with "/" between
    QString drive;     // "C" where it lies under a drive's folder
    QString onDrive;   // the rest below the drive
    QString fileName;
};

constexpr qsizetype listedStrangers = 5;

/// What a note shows of a name, which must not move the cursor of a terminal.
QString shown(QString name) {
    for (QChar& letter : name)
        if (letter.category() == QChar::Other_Control)
            letter = u'?';
    return name;
}

/// True for names that a drive of the old install could hold. A backslash would be taken for a step between
/// folders there, a colon for the end of a drive letter.
bool couldLieOnADrive(const QString& relative) {
    return std::none_of(relative.begin(), relative.end(), [](QChar letter) {
        return letter == u'\\' || letter == u':' || letter.category() == QChar::Other_Control;
    });
}

class Search {
   public:
    explicit Search(const QString& from) : root_(from) {}
    FoundInstall run();

   private:
    void collect();
    QString strangeness(const QString& file, const QString& relative) const;
    void noteStrangers(const QStringList& strangers);
    void sortStores();
    void chooseStore(const QString& name, QList<Item> candidates);
    void findApplicationFolder();
    void sortMedia();
    bool addMedia(const Item& item);
    int applicationStoresIn(const QString& folder) const;

    QDir root_;
    bool drives_ = false;
    QList<Item> items_;
    QMap<QString, QList<Item>> stores_;
    QString applicationFolder_;  // relative; empty for the folder that was searched
    bool applicationKnown_ = false;
    FoundInstall found_;
};

QString folderOf(const QString& relative) {
    return relative.contains(u'/') ? relative.section(u'/', 0, -2) : QString();
}

bool isDriveFolder(const QString& name) {
    return name.size() == 1 && name.toUpper() >= QStringLiteral("C") && name.toUpper() <= QStringLiteral("H");
}

void Search::collect() {
    if (QFileInfo(root_.path()).isFile()) {
        const QFileInfo file(root_.path());
        items_.append({file.filePath(), file.fileName(), {}, file.fileName(), file.fileName()});
        return;
    }
    const QStringList folders = root_.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    drives_ = std::any_of(folders.begin(), folders.end(), isDriveFolder);
    QStringList strangers;
    QDirIterator walk(root_.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString file = walk.next();
        const QString reason = strangeness(file, root_.relativeFilePath(file));
        if (!reason.isEmpty()) {
            strangers.append(
                QStringLiteral("%1 was left aside: %2.").arg(shown(root_.relativeFilePath(file)), reason));
            continue;
        }
        Item item{file, root_.relativeFilePath(file), {}, {}, walk.fileName()};
        const QString first = item.relative.section(u'/', 0, 0);
        const bool onDrive = drives_ && item.relative.contains(u'/') && isDriveFolder(first);
        item.drive = onDrive ? first.toUpper() : QString();
        item.onDrive = onDrive ? item.relative.section(u'/', 1) : item.relative;
        items_.append(item);
    }
    std::sort(items_.begin(), items_.end(),
              [](const Item& a, const Item& b) { return a.relative < b.relative; });
    strangers.sort();
    noteStrangers(strangers);
}

/// Why a file is none that an old install can have, empty where it is one.
QString Search::strangeness(const QString& file, const QString& relative) const {
    if (!couldLieOnADrive(relative))
        return QStringLiteral("no drive of the course can hold a file of this name");
    const QFileInfo info(file);
    if (!info.isFile())
        return QStringLiteral("it is no regular file");
    if (!info.canonicalFilePath().startsWith(root_.canonicalPath() + u'/'))
        return QStringLiteral("it is a link that leads out of the folder");
    return {};
}

void Search::noteStrangers(const QStringList& strangers) {
    found_.notes += strangers.mid(0, listedStrangers);
    if (strangers.size() > listedStrangers)
        found_.notes.append(QStringLiteral("%1 further files were left aside for such reasons.")
                                .arg(strangers.size() - listedStrangers));
}

int Search::applicationStoresIn(const QString& folder) const {
    int count = 0;
    for (const StoreKindRow& kind : storeKinds)
        for (const Item& item : stores_.value(QLatin1String(kind.name)))
            count += !kind.inMainFolder && folderOf(item.relative) == folder ? 1 : 0;
    return count;
}

/// The folder of the course's own store; of several the one with the most stores beside it, then the
/// shallowest, so that a backup deep in the tree never wins.
void Search::findApplicationFolder() {
    for (const Item& item : stores_.value(courseStore)) {
        const QString folder = folderOf(item.relative);
        const auto rank = [this](const QString& f) {
            return std::pair(-applicationStoresIn(f), f.count(u'/'));
        };
        if (!applicationKnown_ || rank(folder) < rank(applicationFolder_))
            applicationFolder_ = folder;
        applicationKnown_ = true;
    }
}

void Search::chooseStore(const QString& name, QList<Item> candidates) {
    const auto kind = std::find_if(storeKinds.begin(), storeKinds.end(),
                                   [&](const StoreKindRow& k) { return name == QLatin1String(k.name); });
    const bool inMain = kind == storeKinds.end() || kind->inMainFolder;
    const QString main = QStringLiteral("A_Mendori/Main");
    const auto rank = [&](const Item& item) {
        const QString folder = inMain ? folderOf(item.onDrive) : folderOf(item.relative);
        const bool home =
            inMain ? folder.endsWith(main, Qt::CaseInsensitive) || sameName(folder, QStringLiteral("Main"))
                   : folder == applicationFolder_;
        return std::pair(!home, item.relative.count(u'/'));
    };
    std::stable_sort(candidates.begin(), candidates.end(),
                     [&](const Item& a, const Item& b) { return rank(a) < rank(b); });
    const Item& chosen = candidates.first();
    for (const Item& other : candidates.mid(1))
        found_.notes.append(
            QStringLiteral("%1 was left aside, %2 is taken.").arg(other.relative, chosen.relative));
    FoundStore store{
        chosen.file, chosen.relative, kind == storeKinds.end() ? QStringLiteral("DbScore") : name, {}};
    const bool atDriveRoot = !chosen.drive.isEmpty() && !chosen.onDrive.contains(u'/');
    const QString drive = atDriveRoot ? chosen.drive : applicationDrive;
    store.targets.append(inMain ? core::mainFolder + name : drive + QStringLiteral(":\\") + name);
    if (name == courseStore)
        store.targets.append(core::worksheetCoursePath());
    found_.stores.push_back(store);
}

void Search::sortStores() {
    for (const Item& item : items_)
        if (const QString name = storeNameOf(item.fileName); !name.isEmpty())
            stores_[name].append(item);
    findApplicationFolder();
    for (auto store = stores_.begin(); store != stores_.end(); ++store)
        chooseStore(store.key(), store.value());
    for (const StoreKindRow& kind : storeKinds)
        if (!stores_.contains(QLatin1String(kind.name)))
            found_.missing.append(QLatin1String(kind.name));
    if (std::none_of(found_.stores.begin(), found_.stores.end(),
                     [](const FoundStore& s) { return s.schemaStore == QStringLiteral("DbScore"); }))
        found_.missing.append(QStringLiteral("DbScore_<student number>.mdb"));
}

bool Search::addMedia(const Item& item) {
    for (const char* folder : mediaFolders) {
        const QString prefix = QLatin1String(folder) + u'/';
        const qsizetype place = (u'/' + item.onDrive).indexOf(u'/' + prefix, 0, Qt::CaseInsensitive);
        if (place >= 0) {
            const QString drive = item.drive.isEmpty() ? applicationDrive : item.drive;
            found_.media.push_back(
                {item.file, item.relative,
                 drive + QStringLiteral(":\\") + item.onDrive.mid(place).replace(u'/', u'\\')});
            return true;
        }
    }
    const QString home = applicationFolder_.isEmpty() ? QString() : applicationFolder_ + u'/';
    if (!applicationKnown_ || !item.relative.startsWith(home))
        return false;
    const QString inside = item.relative.mid(home.size());
    const bool inFolder =
        std::any_of(applicationFolders.begin(), applicationFolders.end(), [&](const char* folder) {
            return inside.startsWith(QLatin1String(folder) + u'/', Qt::CaseInsensitive);
        });
    const bool effect =
        !inside.contains(u'/') && (inside.endsWith(QStringLiteral(".wav"), Qt::CaseInsensitive) ||
                                   inside.endsWith(QStringLiteral(".cur"), Qt::CaseInsensitive));
    if (!inFolder && !effect)
        return false;
    const bool driveRoot = isDriveFolder(applicationFolder_);
    const QString drive = driveRoot ? applicationFolder_.toUpper() : applicationDrive;
    found_.media.push_back(
        {item.file, item.relative, drive + QStringLiteral(":\\") + QString(inside).replace(u'/', u'\\')});
    return true;
}

void Search::sortMedia() {
    QStringList others;
    for (const Item& item : items_) {
        if (!storeNameOf(item.fileName).isEmpty())
            continue;
        if (item.fileName.endsWith(QStringLiteral(".rpt"), Qt::CaseInsensitive))
            found_.reports.append(item.relative);
        else if (!addMedia(item))
            others.append(item.relative);
    }
    if (!others.isEmpty())
        found_.notes.append(
            QStringLiteral(
                "%1 other files were left aside, since the course does not use them; the first is %2.")
                .arg(others.size())
                .arg(others.first()));
}

FoundInstall Search::run() {
    collect();
    sortStores();
    sortMedia();
    return found_;
}

}  // namespace

FoundInstall findInstall(const QString& from) {
    return Search(from).run();
}

bool isAccessFile(const QString& file) {
    return platform::storeFormat(file) == platform::StoreFormat::AccessFile;
}

}  // namespace tools
