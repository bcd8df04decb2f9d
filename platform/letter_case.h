#pragma once

#include <QString>

#include <string_view>

struct sqlite3;

namespace platform {

/// Whether two texts are the same but for capitals and small letters, in any alphabet. It is what every
/// answer is compared by that may be typed either way, here and in the engine of the stores.
bool sameButForCase(const QString& one, const QString& other);

/// The order of two texts in UTF-8 by the same rule: below, above or equal to 0.
int compareButForCase(std::string_view one, std::string_view other);

/// Makes a connection compare the texts of its stores by this rule. The engine's own takes notice of the case
/// of every letter beyond a to z.
void compareStoredTextsButForCase(sqlite3* connection);

}  // namespace platform
