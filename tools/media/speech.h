#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace tools {

/// Speaks each word that has no sound file yet. Gives the number of words that stay silent because no speech
/// program is there.
int speakWords(const QStringList& words, const QString& folder,
               const std::function<void(const QString& what, int done, int total)>& progress);

}  // namespace tools
