#include "tools/support/root_hold.h"

#include "core/startup.h"
#include "core/turn.h"
#include "platform/desktop/settings.h"
#include "tools/support/unfinished_file.h"

#include <QDir>
#include <QFileInfo>

#include <stdexcept>

namespace tools {

namespace {

// The set-up or import that is at work in the root holds this file locked.
const QString lockName = QStringLiteral(".mendori-setup.lock");

/// Every folder that the program could have taken for its own: the settings name one, else it is the drive
/// that holds the course, and a new install has it on D.
QStringList courseFolders(const QString& root) {
    const platform::Drives drives(root);
    QStringList folders{drives.resolve(QStringLiteral("D:")),
                        drives.resolve(core::applicationFolder(platform::UserSettings(), drives))};
    for (const char* drive : {"C:", "D:", "E:", "F:", "G:", "H:"})
        if (drives.fileLength(QLatin1String(drive) + QStringLiteral("\\tovalin.mdb")) > 0)
            folders.append(drives.resolve(QLatin1String(drive)));
    folders.removeDuplicates();
    return folders;
}

}  // namespace

void RootHold::take(const QString& root) {
    if (!lock_.tryTake(QDir(root).filePath(lockName)))
        throw std::runtime_error(
            QStringLiteral("Another set-up is at work in %1. Run this again when it has ended.")
                .arg(root)
                .toStdString());
    sweepUnfinishedStores(root);
}

CourseHold holdCourse(const QString& root) {
    CourseHold hold;
    for (const QString& folder : courseFolders(root)) {
        hold.push_back(std::make_unique<platform::FileLock>());
        if (QFileInfo(folder).isDir() && !hold.back()->tryTake(folder + u'/' + core::turnFileName))
            throw std::runtime_error(
                QStringLiteral("The course in %1 is open. Close the program and run this again.")
                    .arg(root)
                    .toStdString());
    }
    return hold;
}

}  // namespace tools
