#pragma once

#include "tools/media/slides.h"
#include "tools/media/wave.h"

#include <QString>

namespace tools {

/// The voices of the videos: the speech programs that the machine has for English and for Korean.
class Narrator {
   public:
    /// Looks for the speech programs.
    Narrator();

    /// The programs' names, "none" where there is none and all stays silent.
    QString name() const;
    /// Whether a voice is there.
    bool speaks(Voice voice) const { return !programOf(voice).isEmpty(); }
    /// The sentence spoken, a little slower than in talk; no samples where it cannot be spoken. `scratch`
    /// names a file that may be written over.
    Wave speak(const QString& sentence, Voice voice, const QString& scratch) const;

   private:
    const QString& programOf(Voice voice) const { return voice == Voice::English ? english_ : korean_; }

    QString english_;
    QString korean_;
};

}  // namespace tools
