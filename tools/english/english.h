#pragma once

#include <QString>
#include <QStringList>

/// The little English that the rules know: which words form a tense, and which words every sentence needs.
/// Words are asked for in small letters.
namespace tools::check::english {

/// Tenses that a course teaches in units of their own.
enum class Tense { Past, Future, Progressive, Perfect, Passive };

/// The first words of a sentence that show a tense, as they stand in it; empty where none does. The words are
/// those of `englishWords`.
QString findTense(const QStringList& words, Tense tense);

/// A noun, or a rarer word: one that can be worn out. Grammar words, everyday verbs and adjectives, numbers
/// and the names of times are none.
bool canWearOut(const QString& word);

/// The word that plural and third person share with its base: boxes and box, cities and city.
QString baseForm(const QString& word);

}  // namespace tools::check::english
