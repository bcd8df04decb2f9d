#include "core/startup.h"

#include "core/stores.h"
#include "platform/desktop/picture.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QScreen>
#include <QStandardPaths>

#include <array>
#include <cstdio>

namespace core {

namespace {

const QString application = QStringLiteral("Mendori");
const QString generalSection = QStringLiteral("General Information");
const QString marker = QStringLiteral("\\A_Mendori\\ABCPicture\\Mendori.jpg");
const QString platformSection = QStringLiteral("Platform");

constexpr std::array mediaDrives{"C:", "D:", "E:", "F:", "G:", "H:"};

/// A box of the start with what to do about it, which is told on standard error too: the desktop may be gone
/// before anybody has read the box.
void stopSign(const Context& context, const QString& text, const QString& advice) {
    std::fprintf(stderr, "%s %s\n", qPrintable(text), qPrintable(advice));
    std::fflush(stderr);
    context.boxes.show({text, platform::BoxIcon::Stop, {}, false, advice});
}

QString rootAdvice(const platform::Drives& drives) {
    if (const QString trouble = platform::settingsTrouble(application); !trouble.isEmpty())
        return QStringLiteral("'%1', which may name the folder of the course, cannot be read: %2.")
            .arg(platform::settingsPlace(application), trouble);
    const QString& root = drives.root();
    const QFileInfo folder(root);
    const QString where =
        QStringLiteral(
            " Make the course with \"setup\", or let MENDORI_ROOT, or the key Root in '%1', "
            "name the folder that holds it.")
            .arg(platform::settingsPlace(application));
    if (root.isEmpty())
        return QStringLiteral("No drive from C to H holds %1. Sounds and videos are on that medium.")
            .arg(marker);
    if (!folder.exists())
        return QStringLiteral("There is no folder '%1'.").arg(root) + where;
    if (!folder.isDir())
        return QStringLiteral("'%1' is a file and no folder.").arg(root) + where;
    if (!folder.isExecutable())
        return QStringLiteral("The folder '%1' is closed to you; let its owner open it.").arg(root) + where;
    return QStringLiteral(
               "No folder from C to H in '%1' holds %2. Sounds and videos are on that medium; \"setup\" "
               "makes them anew.")
        .arg(root, marker);
}

QString loginAdvice() {
    const QString file = platform::settingsPlace(application);
    if (const QString trouble = platform::settingsTrouble(application); !trouble.isEmpty())
        return QStringLiteral("'%1' cannot be read: %2.").arg(file, trouble);
    return QStringLiteral(
               "'%1' names no UserID in its section '%2'. Log in, or run \"setup --user-id NUMBER\".")
        .arg(file, generalSection);
}

void findMedia(const Context& context) {
    for (const char* drive : mediaDrives) {
        if (FileExists(context, QLatin1String(drive) + marker) == 1) {
            context.session.mediaDrive = QLatin1String(drive);
            return;
        }
    }
    stopSign(context, QStringLiteral("Please Insert USB Drive"), rootAdvice(context.drives));
}

void openDictionary(const Context& context) {
    Session& session = context.session;
    session.dictionaryDb = openStore(context, mainFolder + QStringLiteral("dicword.mdb"));
    session.allwordRs =
        session.dictionaryDb.openRecordset(QStringLiteral("Select * from allword order by word"));
    session.dicwordRs =
        session.dictionaryDb.openRecordset(QStringLiteral("Select * from dicword order by word"));
}

void readIdentity(const Context& context) {
    const auto read = [&](const char* key) {
        return context.settings.read(application, generalSection, QLatin1String(key), QString());
    };
    context.session.userId = read("UserID");
    context.session.teacherMode = read("Teacher");
    context.session.userName = read("Name");
}

void setFolders(const Context& context) {
    Session& session = context.session;
    const QString folder = context.applicationFolder;
    session.appSoundDir = folder + QStringLiteral("\\Sound\\");
    session.recordDir = folder + QStringLiteral("\\MyRecord\\");
    session.appDir = folder + u'\\';
    session.appPictureDir = folder + QStringLiteral("\\ABCPicture\\");
    session.mediaSoundDir = session.mediaDrive + QStringLiteral("\\A_Mendori\\ABCSound\\");
    session.videoRoot = session.mediaDrive + QStringLiteral("\\A_Mendori\\Mendori_Program\\Tovalin1_Video\\");
    session.frameLeft = 0;
    session.frameTop = 0;
}

void writeVersion(const Context& context) {
    auto database = openStore(context, mainFolder + QStringLiteral("Pversion_2026.mdb"));
    auto rows = database.openRecordset(QStringLiteral("Select * From pversion"));
    rows.findFirst(QStringLiteral("Program='Tovalin1'"));
    if (rows.noMatch()) {
        rows.addNew();
        rows.set(QStringLiteral("program"), QStringLiteral("Tovalin1"));
    } else {
        rows.edit();
    }
    rows.set(QStringLiteral("pVersion"), 1);
    rows.update();
    // Older programs may have left further rows; one row for the program is what stays.
    auto own = database.openRecordset(QStringLiteral("Select * From pversion where Program='Tovalin1'"));
    for (own.moveNext(); !own.eof(); own.moveNext())
        own.remove();
    own.close();
    rows.close();
    database.close();
}

}  // namespace

int FileExists(const Context& context, const QString& path) {
    return context.drives.fileLength(path) > 0 ? 1 : 0;
}

QString applicationFolder(const platform::Settings& settings, const platform::Drives& drives) {
    const QString stored =
        settings.read(application, platformSection, QStringLiteral("ApplicationFolder"), QString());
    if (!stored.isEmpty())
        return stored;
    for (const char* drive : {"D:", "E:", "F:", "G:", "H:", "C:"}) {
        const QString root = QLatin1String(drive) + QStringLiteral("\\");
        if (drives.fileLength(root + QStringLiteral("tovalin.mdb")) > 0)
            return root;
    }
    return QStringLiteral("D:\\");
}

QString drivesRoot(const platform::Settings& settings) {
    const QString fromEnvironment = qEnvironmentVariable("MENDORI_ROOT");
    if (!fromEnvironment.isEmpty())
        return fromEnvironment;
    const QString stored = settings.read(application, platformSection, QStringLiteral("Root"), QString());
    if (!stored.isEmpty())
        return stored;
#ifdef Q_OS_WIN
    return {};
#else
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/mendori");
#endif
}

void ShowMainFrame(const Context& context, platform::Frame& frame) {
    const Session& session = context.session;
    // The icon belongs to the frame's design and not to the course, so a course without it starts all the
    // same.
    const auto icon = applicationFile(context, QStringLiteral("interface\\icon.jpg"));
    if (FileExists(context, icon.shownName) == 1)
        frame.setWindowIcon(QIcon(platform::loadPicture(icon.file, icon.shownName, 1.0)));
    // Without a window manager a full-screen request changes nothing, so the size is set first.
    frame.setGeometry(session.frameLeft, session.frameTop, session.screenWidthPx, session.screenHeightPx);
    frame.showFullScreen();
    QCoreApplication::processEvents();
}

bool StartUp(const Context& context, platform::Frame& frame) {
    Session& session = context.session;
    findMedia(context);
    session.mediaPictureDir = session.mediaDrive + QStringLiteral("\\A_Mendori\\ABCPicture\\");
    session.mediaSoundDirFirst = session.mediaDrive + QStringLiteral("\\A_Mendori\\ABCSound\\");
    session.mediaSoundDir = session.mediaSoundDirFirst;
    session.today = context.clock.today();
    openDictionary(context);
    readIdentity(context);
    if (session.userId.isEmpty()) {
        stopSign(context, QStringLiteral("Log In Required."), loginAdvice());
        return false;
    }
    session.scoreDb = openScores(context);
    session.scoreRs = session.scoreDb.openRecordset(QStringLiteral("Select * From score"));
    frame.setWindowTitle(QStringLiteral("Tovalin 1"));
    setFolders(context);
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    session.screenWidthPx = screen.width();
    session.screenHeightPx = screen.height();
    ShowMainFrame(context, frame);
    session.vocaFirst = QStringLiteral("YES");
    session.programCode = QStringLiteral("Tovalin1");
    writeVersion(context);
    context.navigator.open(QStringLiteral("frmLogIn2"));
    return true;
}

}  // namespace core
