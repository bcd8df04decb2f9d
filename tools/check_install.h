#pragma once

#include "tools/check_course.h"

namespace tools::check {

/// A finished install as the check reads it: the tables of its stores in the shape of built ones, and the
/// sounds and videos beside them. Places name store and table, and the row by its number in it.
struct InstallTables {
    std::vector<BuiltTable> tables;
    Media media;
    Damages damages;
};

/// Reads the stores below a root folder without changing them. What cannot be read is told in `damages`: a
/// missing store or table, a genuine Access file, fields in another order than the copies by position count
/// on.
InstallTables readInstall(const QString& root);

}  // namespace tools::check
