// Variety: sentences that begin alike, and words that stand everywhere, are learnt by heart and not read.

#include "tools/english/english.h"
#include "tools/rules/sentences.h"

#include <QMap>
#include <QSet>

namespace tools::check {

namespace {

constexpr int frameWords = 3;
constexpr int mostOfAFrame = 15;
constexpr int mostOfANoun = 20;
constexpr int wholeCourse = 24;
constexpr int wordsOfAWholeCourse = 600;

/// What is counted, and the place of the first one too many.
struct Count {
    int times = 0;
    const Question* tooMany = nullptr;
};

void tell(const QMap<QString, Count>& counts, int most, const QString& wrong, const QString& right,
          Findings& findings) {
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        if (count->times > most)
            findings.add(count->tooMany->at("q1"), wrong.arg(count.key()).arg(count->times), right.arg(most));
}

void take(QMap<QString, Count>& counts, const QString& key, int most, const Question& question) {
    Count& count = counts[key];
    if (++count.times == most + 1)
        count.tooMany = &question;
}

void frameRepeated(const Course& course, Findings& findings) {
    QMap<QString, Count> frames;
    for (const Sentence& sentence : sentencesOf(course))
        if (sentence.isSentence() && sentence.words.size() > frameWords)
            take(frames, sentence.words.first(frameWords).join(u' '), mostOfAFrame, *sentence.question);
    tell(frames, mostOfAFrame, QStringLiteral("%2 sentences of the course begin with '%1'"),
         QStringLiteral("at most %1 that begin alike; this is the first one more"), findings);
}

void nounRepeated(const Course& course, Findings& findings) {
    QMap<QString, Count> nouns;
    for (const Sentence& sentence : sentencesOf(course)) {
        QSet<QString> met;
        for (const QString& word : sentence.words)
            if (english::canWearOut(word))
                met.insert(english::baseForm(word));
        for (const QString& word : met)
            take(nouns, word, mostOfANoun, *sentence.question);
    }
    tell(nouns, mostOfANoun, QStringLiteral("'%1' stands in %2 questions of the course"),
         QStringLiteral("at most %1 with the same noun; this is the first one more"), findings);
}

void fewWords(const Course& course, Findings& findings) {
    QSet<QString> words;
    for (const Word& word : course.words)
        words.insert(folded(word.word));
    if (course.topics.size() >= wholeCourse && words.size() < wordsOfAWholeCourse && !course.words.empty())
        findings.add(
            course.words.front().at("word"),
            QStringLiteral("the lists of the whole course hold %1 different words").arg(words.size()),
            QStringLiteral("%1 or more in a course of %2 units").arg(wordsOfAWholeCourse).arg(wholeCourse));
}

constexpr std::array rules{
    Rule{"frame-repeated", Severity::Warning,
         "at most 15 sentences of a course begin with the same three words", frameRepeated},
    Rule{"noun-repeated", Severity::Warning, "at most 20 questions of a course have the same noun",
         nounRepeated},
    Rule{"words-few", Severity::Warning, "a course of 24 units has 600 different words in its lists",
         fewWords},
};

}  // namespace

std::span<const Rule> varietyRules() {
    return rules;
}

}  // namespace tools::check
