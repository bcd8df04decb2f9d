#pragma once

#include <QString>

#include <optional>

namespace platform {

/// The text under a key of a section; names in any case. Files written by hand are read as they were meant:
/// blanks and commas belong to the text, and so does a backslash that escapes nothing. Nothing without file,
/// section or key.
std::optional<QString> readIni(const QString& file, const QString& section, const QString& key);

/// Why a file that is there cannot be read as settings ("it is a folder"); empty where it can, and where
/// there is none.
QString iniTrouble(const QString& file);

/// Stores a text under a key of a section, everything else in the file staying as it is, its line ends
/// and byte order mark too. The file appears whole or not at all; it is for its owner alone. False
/// when it cannot be written, or is there and cannot be read.
bool writeIni(const QString& file, const QString& section, const QString& key, const QString& value);

}  // namespace platform
