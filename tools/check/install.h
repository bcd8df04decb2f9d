#pragma once

#include "tools/coursefiles/course.h"

namespace tools::check {

/// A finished install as the check reads it: the tables of its stores in the shape of built ones, and the
/// sounds and videos beside them. Places name store and table, and the row by its number in it.
struct InstallTables {
    std::vector<BuiltTable> tables;
    Media media;
    ReadErrors damages;
};

/// Reads the stores below a root folder without changing them. What the program would not find is told in
/// `damages`: a store, a table or a field that is missing, a genuine Access file. Where `pictures` is a
/// folder of rendered pictures, the install's own are held against its names.
InstallTables readInstall(const QString& root, const QString& pictures = {});

}  // namespace tools::check
