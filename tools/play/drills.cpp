// Players of the drills: Begin, every box typed, the check.

#include "catalogue/steps.h"
#include "tools/coursefiles/screens.h"
#include "tools/play/players.h"

#include <array>

namespace tools::play {

namespace {

using platform::TextBox;

int contentRecord(const Stage& stage) {
    if (stage.topName() == QStringLiteral("frmLesson2_2"))
        return catalogue::secondPageRows;
    if (stage.topName() == QStringLiteral("frmLesson3_2"))
        return catalogue::clozeStep;
    return stage.session().recordNo;
}

/// The right word of each box.
QStringList rightWords(const Stage& stage) {
    const check::DrillShape* shape = check::findDrillShape(stage.topName());
    if (shape == nullptr)
        throw PlayError(QStringLiteral("%1 is no drill").arg(stage.topName()));
    QStringList words;
    const auto rows = stage.rows(QStringLiteral("tovalin.mdb"),
                                 "SELECT word1, word2, orderno FROM basic_Data WHERE recordno=" +
                                     std::to_string(contentRecord(stage)) + " ORDER BY orderno");
    for (const QStringList& row : rows) {
        const bool listed = shape->listFrom != 0 && row[2].toInt() >= shape->listFrom;
        words.append(row[listed || shape->answer == 1 ? 0 : 1]);
    }
    return words;
}

/// Types every box that takes typing; the first of them wrong where that is wanted.
void typeBoxes(Stage& stage, const QStringList& words, bool firstWrong) {
    bool wrong = firstWrong;
    for (int i = 0; i < words.size(); ++i) {
        auto& box = stage.find<TextBox>("txtWord", i);
        if (box.locked())
            continue;
        stage.retype(box, wrong ? nonsense : words[i]);
        wrong = false;
    }
}

void playDrill(Stage& stage, Manner manner) {
    const QStringList words = rightWords(stage);
    stage.click(QStringLiteral("picBegin"));
    if (manner == Manner::WrongFirst) {
        typeBoxes(stage, words, true);
        stage.click(QStringLiteral("picQuiz"));
        if (!stage.isVisible(QStringLiteral("picBegin")))
            throw PlayError(QStringLiteral("a wrong answer was taken as right"));
        stage.click(QStringLiteral("picBegin"));
    }
    typeBoxes(stage, words, false);
    stage.takeMessages();
    stage.click(QStringLiteral("picQuiz"));
    const QString told = stage.takeMessages().join(u' ');
    if (!told.contains(QStringLiteral("Good Job!")))
        throw PlayError(QStringLiteral("right answers were refused: %1").arg(told.simplified()));
    if (stage.topName() == QStringLiteral("frmLesson2"))
        stage.click(QStringLiteral("picNext"));
}

constexpr std::array players{
    Player{"frmLesson", playDrill},     Player{"frmLesson2", playDrill},  Player{"frmLesson2_2", playDrill},
    Player{"frmLesson3_2", playDrill},  Player{"frmLesson4", playDrill},  Player{"frmLesson7", playDrill},
    Player{"frmLesson8", playDrill},    Player{"frmLesson9", playDrill},  Player{"frmLesson10", playDrill},
    Player{"frmLesson11", playDrill},   Player{"frmLesson17", playDrill}, Player{"frmLesson18", playDrill},
    Player{"frmLesson18_2", playDrill}, Player{"frmLesson24", playDrill}};

}  // namespace

std::span<const Player> drillPlayers() {
    return players;
}

}  // namespace tools::play
