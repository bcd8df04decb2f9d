#pragma once

#include "tools/play/stage.h"

#include <span>

namespace tools::play {

/// How a player answers: everything right, or the first thing of a screen wrong and the rest right.
enum class Manner { Right, WrongFirst };

/// Plays one screen to its end with the answers of the course. Throws PlayError where the screen refuses a
/// right answer or takes a wrong one.
struct Player {
    const char* screen;
    void (*play)(Stage& stage, Manner manner);
};

std::span<const Player> tableQuizPlayers();
std::span<const Player> questionQuizPlayers();
std::span<const Player> drillPlayers();
std::span<const Player> wordPlayers();
std::span<const Player> videoPlayers();

/// The player of a screen, or null.
const Player* findPlayer(const QString& screen);

/// A question of the step in hand, as the working table holds it.
struct AskedQuestion {
    QStringList q;  // q[1] to q[7]
    QString a1, a2;
};

/// The questions of the step in hand in the order in which they are asked now.
std::vector<AskedQuestion> askedQuestions(const Stage& stage);

/// What no course takes for an answer.
inline const QString nonsense = QStringLiteral("zzzz");

}  // namespace tools::play
