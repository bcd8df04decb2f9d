// Players of the screens that open a step: the spelling coach, the matching game, the word quiz, the video.

#include "tools/play/players.h"

#include "platform/desktop/timer.h"

#include <QMap>

#include <array>

namespace tools::play {

namespace {

using platform::Label;
using platform::TextBox;

/// The step's words by their meanings, which tell them apart.
QMap<QString, QString> wordsByMeaning(const Stage& stage) {
    QMap<QString, QString> words;
    for (const QStringList& row :
         stage.rows(QStringLiteral("testword_im.mdb"), "SELECT korean, word FROM word_book"))
        words.insert(row[0], row[1]);
    return words;
}

QString wordFor(const QMap<QString, QString>& words, const QString& meaning) {
    if (!words.contains(meaning))
        throw PlayError(QStringLiteral("no word means '%1'").arg(meaning));
    return words.value(meaning);
}

void typeRow(Stage& stage, const char* row, const QString& word) {
    for (int i = 0; i < word.size(); ++i) {
        auto& box = stage.find<TextBox>(row, i);
        if (!box.locked())
            stage.retype(box, word.mid(i, 1).toLower());
    }
    settle();
}

/// Two wrong answers, then the five rows of the spelling method.
void spellByMethod(Stage& stage, const QString& word) {
    for (int i = 0; i < 2; ++i) {
        auto& box = stage.find<TextBox>(QStringLiteral("txtWord"));
        stage.retype(box, nonsense);
        stage.press(box, Qt::Key_Return);
    }
    for (const char* row : {"txtType1", "txtType2", "txtType3", "txtType4", "txtType5"})
        typeRow(stage, row, word);
}

void playCoach(Stage& stage, Manner manner) {
    const auto words = wordsByMeaning(stage);
    const auto& now = stage.find<Label>(QStringLiteral("lblNow"));
    const int total = stage.find<Label>(QStringLiteral("lblTotal")).caption().toInt();
    for (int done = 0; done < total; ++done) {
        const QString word = wordFor(words, stage.find<Label>(QStringLiteral("lblDef2")).caption());
        auto& box = stage.find<TextBox>(QStringLiteral("txtWord"));
        if (manner == Manner::WrongFirst) {
            spellByMethod(stage, word);
        } else {
            stage.retype(box, word);
            stage.press(box, Qt::Key_Return);
        }
        if (now.caption().toInt() != done + 1)
            throw PlayError(QStringLiteral("the coach does not let '%1' be finished").arg(word));
    }
    stage.click(QStringLiteral("picNext"));
    stage.awaitScreen(QStringLiteral("frmVoca3"));
}

/// A label of an array that is on view and shows a text, or any other where that is wanted.
Label& labelShowing(const Stage& stage, const char* array, const QString& text, bool other) {
    for (int i = 0; i < 10; ++i) {
        auto& label = stage.find<Label>(array, i);
        if (label.isVisible() && (label.caption() == text) != other)
            return label;
    }
    throw PlayError(QStringLiteral("no place shows '%1'").arg(text));
}

void playMatching(Stage& stage, Manner manner) {
    const auto words = wordsByMeaning(stage);
    const int total = stage.find<Label>(QStringLiteral("lblTotal")).caption().toInt();
    bool wrong = manner == Manner::WrongFirst;
    for (int done = 0; done < total; ++done) {
        Label& word = labelShowing(stage, "lblWord", QString(), true);
        const QString meaning = words.key(word.caption());
        stage.click(word);
        if (wrong)
            stage.click(labelShowing(stage, "lblDefinition", meaning, true));
        wrong = false;
        stage.click(labelShowing(stage, "lblDefinition", meaning, false));
    }
    stage.click(QStringLiteral("picNext"));
    stage.awaitScreen(QStringLiteral("frmVoca4"));
}

void typeWord(Stage& stage, const QString& word) {
    for (int i = 0; i < word.size(); ++i)
        stage.retype(stage.find<TextBox>("txtType1", i), word.mid(i, 1));
    settle();
}

void playWordQuiz(Stage& stage, Manner manner) {
    const auto words = wordsByMeaning(stage);
    stage.click(QStringLiteral("picBegin"));
    const QPointer<core::Screen> screen = stage.top();
    const int total = stage.find<Label>(QStringLiteral("lblTotal")).caption().toInt();
    for (int number = 1; number <= total; ++number) {
        const QString word = wordFor(words, stage.find<Label>(QStringLiteral("lblWord")).caption());
        if (manner == Manner::WrongFirst && number == 1)
            typeWord(stage, QString(word.size(), u'z'));
        typeWord(stage, word);
        stage.await(
            [&] {
                return stage.top() != screen ||
                       stage.find<Label>(QStringLiteral("lblNow")).caption().toInt() == number + 1;
            },
            QStringLiteral("the word after '%1'").arg(word));
    }
    stage.await([&] { return stage.top() != nullptr && stage.top() != screen; },
                QStringLiteral("the screen after the words"));
}

void playStepVideo(Stage& stage, Manner) {
    const auto* timer = stage.top()->findChild<platform::Timer*>(QStringLiteral("Timer1"));
    if (timer != nullptr && timer->enabled()) {
        stage.awaitScreen(QStringLiteral("frmVideo2"));
        return;
    }
    const QPointer<core::Screen> screen = stage.top();
    stage.click(QStringLiteral("picExit"));
    stage.await([&] { return stage.top() != nullptr && stage.top() != screen; },
                QStringLiteral("the screen after the video"));
}

void closePlayer(Stage& stage, Manner) {
    stage.top()->close();
    stage.awaitScreen(QStringLiteral("frmVideo_2014"));
}

constexpr std::array words{Player{"frmVoca2", playCoach}, Player{"frmVoca3", playMatching},
                           Player{"frmVoca4", playWordQuiz}};
constexpr std::array videos{Player{"frmVideo_2014", playStepVideo}, Player{"frmVideo2", closePlayer}};

}  // namespace

std::span<const Player> wordPlayers() {
    return words;
}

std::span<const Player> videoPlayers() {
    return videos;
}

}  // namespace tools::play
