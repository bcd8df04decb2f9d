#pragma once

#include <QByteArray>
#include <QString>

namespace platform {

/// Who may read a file that is written.
enum class Readers { Everybody, OwnerAlone };

/// Writes a file that appears whole or not at all: beside its place, flushed to the disk, then moved. What
/// lies there already stays until the new one is whole. A terminal or a pipe is written into and never
/// replaced. Gives back why it cannot be done, empty when it is.
QString writeWhole(const QString& file, const QByteArray& content, Readers readers = Readers::Everybody);

}  // namespace platform
