#pragma once

#include <QString>

namespace tools {

/// Korean respelled as it sounds where neighbouring syllables change each other: 합니다 becomes 함니다, 독립
/// 동닙, 좋습니다 조씀니다. The speech program knows the letters' own sounds and their liaison, and not
/// these.
QString asPronounced(const QString& text);

/// A line of an explanation as a Korean voice is to read it: without numbers of lists and marks, endings such
/// as -es letter by letter, respelled as it sounds.
QString koreanSpeech(const QString& line);

}  // namespace tools
