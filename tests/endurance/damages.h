#pragma once

#include <QString>

#include <cstdint>
#include <random>

namespace endurance {

/// What was done to one file of an install.
struct Damage {
    QString file;         // its name below the install, "D/tovalin.mdb"
    QString what;         // "cut to 812 bytes"
    bool store = false;   // whether it is a store
    bool inside = false;  // whether the file is whole and what it holds is wrong
};

/// The same for the same number on every machine.
using Chance = std::mt19937_64;
std::uint64_t below(Chance& chance, std::uint64_t limit);

/// Damages one file of an install, or the settings, in a way that chance picks: stores as often as all
/// else. `settings` is the settings file, which lies elsewhere. Files are never changed in place, since
/// installs share what no program writes to.
Damage damageOneFile(Chance& chance, const QString& root, const QString& settings);

/// Whether the engine finds a store to be whole.
bool isSound(const QString& store);

}  // namespace endurance
