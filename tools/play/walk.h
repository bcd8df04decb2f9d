#pragma once

#include "tools/play/players.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace tools::play {

/// A step of the course as the table offers it.
struct PlayStep {
    int record = 0;
    int topic = 0;
    int page = 0;
    QString title;
    QString form;
    bool isFinal = false;
};

struct PlayResult {
    PlayStep step;
    QString words;  // the word part's score, "N/A" for a step without words
    QString first;  // the score after the first run
    QString score;  // the score in the end
    QString trouble;

    bool isPerfect() const { return trouble.isEmpty() && score == QStringLiteral("100"); }
};

/// Plays the steps of an install one after the other, each from the course table, and tells of each as it
/// ends. A step that breaks the program is told in `trouble`, and the program starts anew for the next one.
std::vector<PlayResult> playCourse(const QString& root, Manner manner,
                                   const std::function<bool(int record)>& wanted,
                                   const std::function<void(const PlayResult&)>& tell);

}  // namespace tools::play
