#pragma once

#include <QString>

namespace platform {

/// Drive letters on a machine that has none: the folders C to H of a root folder play the drives.
class Drives {
   public:
    /// An empty root leaves paths as they are, for machines with real drive letters.
    explicit Drives(QString root);

    const QString& root() const { return root_; }

    /// The file that a path such as `C:\A\b.mdb` means. Doubled separators count once; a path without a
    /// drive letter starts at the root of C. Names are found without regard to case when the exact name
    /// is absent; what does not exist at all keeps its spelling. Dots lead up to the drive and no further.
    QString resolve(const QString& path) const;

    /// True where no link on the way leads out of the drive. A drive's own folder may be a link, to a medium
    /// that lies elsewhere.
    bool staysOnItsDrive(const QString& path) const;

    /// The length of a file in bytes, 0 when it does not exist.
    qint64 fileLength(const QString& path) const;

   private:
    QString root_;
};

}  // namespace platform
