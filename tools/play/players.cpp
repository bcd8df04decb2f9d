#include "tools/play/players.h"

namespace tools::play {

const Player* findPlayer(const QString& screen) {
    for (const auto players :
         {tableQuizPlayers(), questionQuizPlayers(), drillPlayers(), wordPlayers(), videoPlayers()})
        for (const Player& player : players)
            if (screen == QLatin1String(player.screen))
                return &player;
    return nullptr;
}

std::vector<AskedQuestion> askedQuestions(const Stage& stage) {
    const auto rows =
        stage.rows(QStringLiteral("tovalin.mdb"),
                   "SELECT '', q1, q2, q3, q4, q5, q6, q7, a1, a2 FROM quiz_data_New3 WHERE topicno=" +
                       std::to_string(stage.session().topicNo) +
                       " AND recordno=" + std::to_string(stage.session().recordNo) + " ORDER BY orderno");
    std::vector<AskedQuestion> questions;
    questions.reserve(rows.size());
    for (const QStringList& row : rows)
        questions.push_back({row.mid(0, 8), row[8], row[9]});
    return questions;
}

}  // namespace tools::play
