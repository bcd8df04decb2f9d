#include "tools/play/walk.h"

namespace tools::play {

namespace {

constexpr int rowsOnPage = 20;

std::vector<PlayStep> stepsOf(const Stage& stage) {
    std::vector<PlayStep> steps;
    for (const QStringList& row : stage.rows(
             QStringLiteral("tovalin.mdb"),
             "SELECT recordno, topicno, pageno, Title, useform, Type FROM tablework ORDER BY recordno"))
        steps.push_back({row[0].toInt(), row[1].toInt(), row[2].toInt(), row[3], row[4],
                         row[5] == QStringLiteral("Final")});
    return steps;
}

/// Clicks the unit, the page and the row of a step on the course table.
void chooseStep(Stage& stage, const PlayStep& step) {
    stage.awaitScreen(QStringLiteral("frmTable"));
    stage.click("lblTopic", step.topic - 1);
    for (int page = 1; page <= (step.page - 1) / rowsOnPage; ++page)
        stage.click(QStringLiteral("picDown"));
    const int row = (step.page - 1) % rowsOnPage;
    if (stage.find<platform::Label>("lblAutoNo", row).caption().toInt() != step.record)
        throw PlayError(QStringLiteral("the course table does not show the step in its place"));
    const QPointer<core::Screen> table = stage.top();
    stage.click("lblTitle", row);
    stage.await([&] { return stage.top() != nullptr && stage.top() != table; },
                QStringLiteral("the step's first screen"));
}

/// Plays screen after screen until the course table stands again.
void playScreens(Stage& stage, Manner manner) {
    while (true) {
        const QString name = stage.awaitScreen();
        if (name == QStringLiteral("frmTable"))
            return;
        const Player* player = findPlayer(name);
        if (player == nullptr)
            throw PlayError(QStringLiteral("nobody knows how to play %1").arg(name));
        const QPointer<core::Screen> screen = stage.top();
        player->play(stage, manner);
        settle();
        if (stage.top() == screen)
            return;
    }
}

void leaveToTable(Stage& stage) {
    if (stage.topName() != QStringLiteral("frmTable"))
        stage.click(QStringLiteral("picTable"));
    stage.awaitScreen(QStringLiteral("frmTable"));
}

struct StoredScore {
    QString words;
    QString main;
};

StoredScore storedScore(const Stage& stage, int record) {
    const auto rows = stage.scoreRows("SELECT s3, s4 FROM score WHERE recordno=" + std::to_string(record));
    if (rows.size() != 1)
        throw PlayError(QStringLiteral("%1 score rows are stored").arg(rows.size()));
    return {rows[0][0], QString::number(rows[0][1].toDouble())};
}

void playStep(Stage& stage, Manner manner, PlayResult& result) {
    const PlayStep& step = result.step;
    chooseStep(stage, step);
    playScreens(stage, manner);
    result.first = storedScore(stage, step.record).main;
    // What was answered wrong on a screen that asks once is made good in a second run.
    if (result.first != QStringLiteral("100") && manner == Manner::WrongFirst) {
        if (step.isFinal) {
            chooseStep(stage, step);
            playScreens(stage, Manner::Right);
        } else {
            stage.click(QStringLiteral("picBegin"));
            findPlayer(stage.topName())->play(stage, Manner::Right);
        }
    }
    leaveToTable(stage);
    const StoredScore stored = storedScore(stage, step.record);
    result.words = stored.words;
    result.score = stored.main;
}

}  // namespace

std::vector<PlayResult> playCourse(const QString& root, Manner manner,
                                   const std::function<bool(int record)>& wanted,
                                   const std::function<void(const PlayResult&)>& tell) {
    std::vector<PlayResult> results;
    std::optional<Stage> stage(std::in_place, root);
    for (const PlayStep& step : stepsOf(*stage)) {
        if (!wanted(step.record))
            continue;
        PlayResult result{step, {}, {}, {}, {}};
        try {
            playStep(*stage, manner, result);
        } catch (const std::exception& trouble) {
            result.trouble = QString::fromUtf8(trouble.what());
            stage.reset();
            stage.emplace(root);
        }
        tell(result);
        results.push_back(result);
    }
    return results;
}

}  // namespace tools::play
