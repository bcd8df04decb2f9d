#pragma once

#include <QString>

namespace video {

/// The units that the menu has room for.
inline constexpr int menuTopics = 24;

/// The video of a menu entry by its place. The first unit has two videos, so that every later entry plays
/// the number two above its place; those names keep a doubled separator, which the file system ignores.
QString menuVideoFile(const QString& videoRoot, int index);
/// The video of the first unit's second entry.
QString secondVideoFile(const QString& videoRoot);
/// The video of a step by the number that its tips carry; 0 where it has none.
QString stepVideoFile(const QString& videoRoot, int number);

}  // namespace video
