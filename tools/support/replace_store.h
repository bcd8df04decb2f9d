#pragma once

#include <QString>

namespace tools {

/// What becomes of the file that lies at a place already.
enum class Older { Replaced, Kept };

/// The first free name beside a file, "tovalin.mdb.before-import" or one that counts on from there.
QString freeNameBeside(const QString& place);

/// Lets nobody but its owner read or write a file.
void keepFromOthers(const QString& file);

/// Keeps the file that lies at a place under a further name beside it, and gives that name, empty where no
/// file lies there. Throws std::runtime_error.
QString keepOlder(const QString& place);

/// Moves a finished store to its place, over an older one where one lies there. Waits until no program
/// writes into the older one, and takes away what a killed program left beside it, which the engine would
/// otherwise play back into the new one. Throws std::runtime_error where the place cannot be taken; the
/// older store then stays as it is. Gives the name that the older store is kept under, empty without one.
QString moveIntoPlace(const QString& finished, const QString& place, Older older = Older::Replaced);

}  // namespace tools
