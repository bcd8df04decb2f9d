// Players of the quizzes that show all their questions at once.

#include "tools/play/players.h"

#include <array>

namespace tools::play {

namespace {

using platform::Label;
using platform::TextBox;

bool sameText(const QString& one, const QString& other) {
    return one.trimmed().compare(other.trimmed(), Qt::CaseInsensitive) == 0;
}

void expectQuestion(const Stage& stage, int row, const AskedQuestion& question) {
    const QString shown = stage.find<Label>("lblWord", row).caption();
    if (!sameText(shown, question.q[1]))
        throw PlayError(QStringLiteral("line %1 shows '%2' for '%3'").arg(row + 1).arg(shown, question.q[1]));
}

/// Presses the check, and after a wrong answer the way back into the quiz.
void checkWrong(Stage& stage) {
    stage.click(QStringLiteral("picQuiz"));
    if (!stage.isVisible(QStringLiteral("picBegin")))
        throw PlayError(QStringLiteral("a wrong answer was taken as right"));
    stage.click(QStringLiteral("picBegin"));
}

void checkRight(Stage& stage, const QPointer<core::Screen>& screen) {
    stage.takeMessages();
    stage.click(QStringLiteral("picQuiz"));
    const bool finished = stage.top() != screen || !stage.isVisible(QStringLiteral("picQuiz"));
    const QString told = stage.takeMessages().join(u' ');
    if (!finished || told.contains(QStringLiteral("틀린")))
        throw PlayError(QStringLiteral("right answers were refused: %1").arg(told.simplified()));
}

void pickPairs(Stage& stage, bool firstWrong) {
    int row = 0;
    for (const AskedQuestion& question : askedQuestions(stage)) {
        expectQuestion(stage, row, question);
        const bool first = stage.find<Label>("lblWord2", row).caption() == question.a1;
        const bool wrong = firstWrong && row == 0;
        stage.click(first != wrong ? "lblWord2" : "lblWord3", row);
        ++row;
    }
}

void playPairs(Stage& stage, Manner manner) {
    const QPointer<core::Screen> screen = stage.top();
    if (manner == Manner::WrongFirst) {
        pickPairs(stage, true);
        checkWrong(stage);
    }
    pickPairs(stage, false);
    checkRight(stage, screen);
}

/// The place of an answer in the pool; any other answer where a wrong one is wanted.
int poolPlace(const Stage& stage, const QString& answer, bool wrong, int count) {
    for (int i = 0; i < count; ++i)
        if ((stage.find<Label>("lblWord3", i).caption() == answer) != wrong)
            return i;
    throw PlayError(QStringLiteral("the pool does not hold '%1'").arg(answer));
}

void pickFromPool(Stage& stage, bool firstWrong) {
    const auto questions = askedQuestions(stage);
    int row = 0;
    for (const AskedQuestion& question : questions) {
        expectQuestion(stage, row, question);
        stage.click("lblWord3", poolPlace(stage, question.a1, firstWrong && row == 0,
                                          static_cast<int>(questions.size())));
        ++row;
    }
}

void playPool(Stage& stage, Manner manner) {
    const QPointer<core::Screen> screen = stage.top();
    if (manner == Manner::WrongFirst) {
        pickFromPool(stage, true);
        checkWrong(stage);
    }
    pickFromPool(stage, false);
    checkRight(stage, screen);
}

void typeAnswers(Stage& stage, bool firstWrong) {
    int row = 0;
    for (const AskedQuestion& question : askedQuestions(stage)) {
        expectQuestion(stage, row, question);
        stage.retype(stage.find<TextBox>("txtWord", row), firstWrong && row == 0 ? nonsense : question.a1);
        if (stage.topName() == QStringLiteral("frmQuiz9"))
            stage.retype(stage.find<TextBox>("txtWord2", row), question.a2);
        ++row;
    }
}

/// A retry keeps what was right; only the wrong boxes stand empty.
void typeEmptied(Stage& stage) {
    int row = 0;
    for (const AskedQuestion& question : askedQuestions(stage)) {
        auto& box = stage.find<TextBox>("txtWord", row++);
        if (box.text().isEmpty())
            stage.retype(box, question.a1);
    }
}

void playTyped(Stage& stage, Manner manner) {
    const QPointer<core::Screen> screen = stage.top();
    if (manner == Manner::WrongFirst) {
        typeAnswers(stage, true);
        checkWrong(stage);
        typeEmptied(stage);
    } else {
        typeAnswers(stage, false);
    }
    checkRight(stage, screen);
}

constexpr std::array players{Player{"frmQuiz", playPairs}, Player{"frmQuiz11", playPool},
                             Player{"frmQuiz12", playPool}, Player{"frmQuiz2", playTyped},
                             Player{"frmQuiz9", playTyped}};

}  // namespace

std::span<const Player> tableQuizPlayers() {
    return players;
}

}  // namespace tools::play
