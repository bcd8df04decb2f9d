#pragma once

#include "tools/import/layout.h"

#include <functional>

namespace platform {
class Drives;
}

namespace tools {

struct MediaReport {
    qint64 copied = 0;
    qint64 present = 0;  // already there with the same content
    qint64 bytes = 0;
    qint64 kept = 0;  // replaced ones that lie under a further name now
    QStringList problems;
};

/// Copies pictures, sounds and videos. Each appears whole or not at all, and is read back.
MediaReport copyMedia(const std::vector<FoundMedia>& media, const platform::Drives& drives, bool dryRun,
                      const std::function<void(qint64 done, qint64 total)>& progress);

struct Moved {
    QString failure;  // why it could not be done; empty when it was
    QString kept;     // the name that the file that lay there is kept under; empty without one
};

/// Moves a finished file to its place.
using FileMover = Moved (*)(const QString& finished, const QString& place);

/// So that after a power cut the old file or the new one is there.
Moved moveFile(const QString& finished, const QString& place);
/// The same for a store, which a program may have open.
Moved moveStore(const QString& finished, const QString& place);

/// Copies a regular file beside its place and has it moved there once it is proven and on the disk.
Moved copyWhole(const QString& from, const QString& to, FileMover mover = moveFile);

}  // namespace tools
