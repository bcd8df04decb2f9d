#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace tools {

/// A store file of the old install and the drive paths that its copy goes to.
struct FoundStore {
    QString file;
    QString shownName;    // relative to the folder that was searched
    QString schemaStore;  // "tovalin.mdb", "DbScore", …
    QStringList targets;  // "D:\tovalin.mdb"
};

/// A picture, sound or video and its drive path.
struct FoundMedia {
    QString file;
    QString shownName;
    QString target;
};

struct FoundInstall {
    std::vector<FoundStore> stores;
    std::vector<FoundMedia> media;
    QStringList reports;  // report templates, which have no place in the new install
    QStringList notes;    // what was left aside and why
    QStringList missing;  // stores that the course counts on and that are not there
};

/// Looks through a folder that holds drives (`C`, `D`, …), one drive, or any folder of an old install. Stores
/// are told by their names in any case, wherever they lie; pictures, sounds and videos by their folders.
FoundInstall findInstall(const QString& from);

/// True for a file that begins like a genuine Access file.
bool isAccessFile(const QString& file);

}  // namespace tools
