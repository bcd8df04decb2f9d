#pragma once

#include <QString>

namespace platform {

/// What a learner with the Korean input mode left on meant to type: Hangul letters and syllables turned back
/// into the Latin letters on the same keys of the two-set keyboard. Everything else stays.
QString latinFromHangul(const QString& text);

}  // namespace platform
