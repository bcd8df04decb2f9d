#pragma once

#include <QString>

namespace platform {

/// A lock between programs that the system takes back when its holder ends, however it ends. It stands on an
/// empty file of its own, which stays.
class FileLock {
   public:
    FileLock() = default;
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    /// Takes the lock; false while another program holds it. Where no lock can be made, as on a read-only
    /// disk, there is none to wait for. Throws DatabaseFailure for a lock file that is there and cannot be
    /// used.
    bool tryTake(const QString& file);

   private:
    int handle_ = -1;
};

}  // namespace platform
