#pragma once

#include "tools/import_layout.h"

#include <functional>

namespace platform {
class Drives;
}

namespace tools {

struct MediaReport {
    qint64 copied = 0;
    qint64 present = 0;  // already there with the same content
    qint64 bytes = 0;
    QStringList problems;
};

/// Copies pictures, sounds and videos. Each appears whole or not at all, and is read back.
MediaReport copyMedia(const std::vector<FoundMedia>& media, const platform::Drives& drives, bool dryRun,
                      const std::function<void(qint64 done, qint64 total)>& progress);

/// Moves a finished file to its place. Gives an empty text, or why it cannot be done.
using FileMover = QString (*)(const QString& finished, const QString& place);

/// So that after a power cut the old file or the new one is there.
QString moveFile(const QString& finished, const QString& place);
/// The same for a store, which a program may have open.
QString moveStore(const QString& finished, const QString& place);

/// Copies a file beside its place and has it moved there once it is proven and on the disk. Gives an empty
/// text, or why it cannot be done.
QString copyWhole(const QString& from, const QString& to, FileMover mover = moveFile);

}  // namespace tools
