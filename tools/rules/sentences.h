#pragma once

#include "tools/coursefiles/screens.h"
#include "tools/rules/check.h"

#include <QStringList>

#include <vector>

/// The English of a course's questions, as a learner reads it once they are solved.
namespace tools::check {

/// The question with its gaps filled by the answers; the whole sentence where that is what is typed.
QString filledQuestion(const QuizShape& shape, const Question& question);

/// The English words of a text in their order, as they are written: letters and digits, with the apostrophes
/// and points inside a word. What stands in round brackets is a hint and is left out.
QStringList englishWords(const QString& text);

/// The sentence of a question: filled, when it has two words or more and a final mark. Otherwise empty, as
/// for a single word whose plural is asked.
QString sentenceOf(const QuizShape& shape, const Question& question);

/// A question together with its unit and its sentence, which may be empty.
struct Sentence {
    const Question* question = nullptr;
    const QuizShape* shape = nullptr;
    int unit = 0;
    QString text;
    QStringList words;  // of the sentence in small letters; those of the filled question without one

    bool isSentence() const { return !text.isEmpty(); }
};

/// The questions of all quiz steps in the order of their steps.
std::vector<Sentence> sentencesOf(const Course& course);

}  // namespace tools::check
