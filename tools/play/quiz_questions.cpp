// Players of the quizzes that ask one question at a time.

#include "tools/coursefiles/screens.h"
#include "tools/play/players.h"

#include <array>

namespace tools::play {

namespace {

using platform::CommandButton;
using platform::Label;
using platform::TextBox;

using Answer = void (*)(Stage& stage, const AskedQuestion& question, bool wrong);

void expectShown(const Stage& stage, const AskedQuestion& question) {
    const auto shows = [&](const char* name) {
        const auto* label = stage.seek<Label>(QLatin1String(name));
        return label != nullptr && label->caption().trimmed() == question.q[1].trimmed();
    };
    if (!shows("lblWord") && !shows("lblKorean"))
        throw PlayError(QStringLiteral("the screen does not show '%1'").arg(question.q[1]));
}

/// Asks for the answer to each question; the first one is given wrong where that is wanted.
void playQuestions(Stage& stage, Manner manner, Answer answer) {
    bool wrong = manner == Manner::WrongFirst;
    for (const AskedQuestion& question : askedQuestions(stage)) {
        expectShown(stage, question);
        stage.takeMessages();
        answer(stage, question, wrong);
        const QString told = stage.takeMessages().join(u' ');
        const bool refused = told.contains(QStringLiteral("틀린")) || told.contains(QStringLiteral("올바른"));
        if (refused && !wrong)
            throw PlayError(QStringLiteral("the right answer to '%1' was refused").arg(question.q[1]));
        wrong = false;
    }
}

/// Clicks the first label of a list that shows the text, or one that does not.
void clickChoice(Stage& stage, const QStringList& labels, const QString& text, bool wrong) {
    for (const QString& name : labels) {
        auto* label = stage.seek<Label>(name);
        if (label == nullptr || !label->isVisible())
            continue;
        const bool right = label->caption().compare(text, Qt::CaseInsensitive) == 0;
        if (right != wrong) {
            stage.click(*label);
            return;
        }
    }
    throw PlayError(QStringLiteral("no choice shows '%1'").arg(text));
}

void answerTwoPicks(Stage& stage, const AskedQuestion& question, bool wrong) {
    clickChoice(stage, {QStringLiteral("lblWord4"), QStringLiteral("lblWord5")}, question.a1, wrong);
    clickChoice(stage, {QStringLiteral("lblWord6"), QStringLiteral("lblWord7")}, question.a2, false);
    stage.click(QStringLiteral("picQuiz"));
}

void answerChoice(Stage& stage, const AskedQuestion& question, bool wrong) {
    clickChoice(stage,
                {QStringLiteral("lblWord2(0)"), QStringLiteral("lblWord2(1)"), QStringLiteral("lblWord2(2)"),
                 QStringLiteral("lblWord2(3)")},
                question.a1, wrong);
}

void answerWrongWord(Stage& stage, const AskedQuestion& question, bool wrong) {
    stage.click("lblWord2", 0);
    const bool second = check::wrongWordField(stage.session().recordNo) == 2;
    auto& box = stage.find<TextBox>(QStringLiteral("txtWord"));
    stage.retype(box, wrong ? nonsense : second ? question.a2 : question.a1);
    stage.press(box, Qt::Key_Return);
}

void answerButton(Stage& stage, const AskedQuestion& question, bool wrong) {
    const int record = stage.session().recordNo;
    const QStringList answers = check::buttonAnswers(record);
    const Qt::CaseSensitivity sensitivity =
        check::buttonsAreArticles(record) ? Qt::CaseInsensitive : Qt::CaseSensitive;
    int button = 0;
    while (button < answers.size() && answers[button].compare(question.a1, sensitivity) != 0)
        ++button;
    if (wrong)
        button = button == 0 ? 1 : 0;
    stage.click("cmdOne", button);
}

void answerSentence(Stage& stage, const AskedQuestion& question, bool wrong) {
    auto& box = stage.find<TextBox>(QStringLiteral("txtWord"));
    stage.retype(box, wrong ? nonsense : question.a1);
    stage.press(box, Qt::Key_Return);
}

void answerBoxes(Stage& stage, const AskedQuestion& question, bool wrong) {
    const QStringList words = question.a1.split(u' ');
    for (int i = 0; i < words.size(); ++i) {
        auto& box = stage.find<TextBox>("txtWord", i);
        stage.retype(box, wrong ? nonsense : words[i]);
        stage.press(box, Qt::Key_Return);
    }
}

template <Answer answer>
void playWith(Stage& stage, Manner manner) {
    playQuestions(stage, manner, answer);
}

constexpr std::array players{
    Player{"frmQuiz3", playWith<answerTwoPicks>}, Player{"frmQuiz4", playWith<answerWrongWord>},
    Player{"frmQuiz5", playWith<answerButton>},   Player{"frmQuiz6", playWith<answerSentence>},
    Player{"frmQuiz7", playWith<answerChoice>},   Player{"frmQuiz8", playWith<answerChoice>},
    Player{"frmQuiz10", playWith<answerBoxes>}};

}  // namespace

std::span<const Player> questionQuizPlayers() {
    return players;
}

}  // namespace tools::play
