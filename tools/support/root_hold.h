#pragma once

#include "platform/storage/file_lock.h"

#include <memory>
#include <vector>

namespace tools {

/// The locks of a course that no program may open meanwhile. Letting go of them ends it.
using CourseHold = std::vector<std::unique_ptr<platform::FileLock>>;

/// Keeps every other set-up and import out of a root folder for as long as it lives.
class RootHold {
   public:
    /// Takes the root, which must be there, and sweeps away what a killed tool left unfinished in it. Throws
    /// std::runtime_error while another tool is at work there.
    void take(const QString& root);

   private:
    platform::FileLock lock_;
};

/// Keeps the program from opening the course below a root. Throws std::runtime_error while it has it open.
CourseHold holdCourse(const QString& root);

}  // namespace tools
