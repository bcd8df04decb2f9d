#pragma once

#include "tools/wave.h"

#include <QString>

namespace tools {

/// A voice that speaks English: the first speech program that the machine has.
class Narrator {
   public:
    /// Looks for a speech program.
    Narrator();

    /// The program's name, "none" where there is none and all stays silent.
    const QString& name() const { return name_; }
    /// The sentence spoken, a little slower than in talk; no samples where it cannot be spoken. `scratch`
    /// names a file that may be written over.
    Wave speak(const QString& sentence, const QString& scratch) const;

   private:
    QString name_;
    QString program_;
};

}  // namespace tools
