#pragma once

#include "catalogue/judging.h"
#include "catalogue/quizzes.h"

#include <QString>
#include <QStringList>

namespace quizzes {

using catalogue::Compare;

enum class Outcome { Right, Wrong, NotJudged };

/// What a judge says of an answer. `message`, `sounds` and `marksRow` count for a wrong one alone.
struct Verdict {
    Outcome outcome = Outcome::NotJudged;
    QString message{};
    bool sounds = true;
    bool marksRow = true;
};

/// Compares one answer with one field. `ByRecord` is no comparison of its own and never matches.
bool matches(Compare compare, const QString& answer, const QString& field);

/// A click on one choice; with `either` the second field is as good as the first.
Verdict judgeChoice(Compare compare, const QString& choice, const QString& a1, const QString& a2,
                    bool either);

/// Two picks, one of each pair.
Verdict judgePicks(Compare compare, const QString& first, const QString& second, const QString& a1,
                   const QString& a2);

/// The word typed for the wrong one of a sentence. The step says which field holds it; on a step that the
/// rules do not name nothing is judged.
Verdict judgeCorrection(int recordNo, const QString& typed, const QString& a1, const QString& a2,
                        bool byEnter);

/// A press of the button with an index and a caption.
Verdict judgeButton(int recordNo, int index, const QString& caption, const QString& a1);

/// A typed sentence. Compared letter by letter, what follows the length of the answer is not looked at.
Verdict judgeSentence(Compare compare, const QString& typed, const QString& a1);

/// The words of an answer in box order. A single word stays whole, several are filtered to their letters.
QStringList answerWords(const QString& a1);

/// Words typed in boxes. For a count of boxes that the screen has not, nothing is compared.
Verdict judgeWords(Compare compare, const QStringList& boxes, const QString& a1);

/// Cuts a sentence into the words that can be clicked: the first as it stands, the others lower-cased and
/// without marks. What is left after each of those is trimmed, so that a second blank there makes no word of
/// its own. A sentence without a blank gives none.
QStringList cutSentence(const QString& sentence);

}  // namespace quizzes
