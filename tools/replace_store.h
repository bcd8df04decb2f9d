#pragma once

#include <QString>

namespace tools {

/// Moves a finished store to its place, over an older one where one lies there. Waits until no program
/// writes into the older one, and takes away what a killed program left beside it, which the engine would
/// otherwise play back into the new one. Throws std::runtime_error where the place cannot be taken; the
/// older store then stays as it is.
void moveIntoPlace(const QString& finished, const QString& place);

}  // namespace tools
