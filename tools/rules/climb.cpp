// A course climbs: sentences grow from unit to unit, and no tense is met before it is taught.

#include "tools/english/english.h"
#include "tools/rules/figures.h"
#include "tools/rules/sentences.h"

#include <QRegularExpression>

#include <algorithm>
#include <optional>

namespace tools::check {

namespace {

using english::Tense;

constexpr int fewSentences = 8;

void sentenceLength(const Course& course, Findings& findings) {
    std::map<int, std::vector<const Sentence*>> byUnit;
    const std::vector<Sentence> sentences = sentencesOf(course);
    for (const Sentence& sentence : sentences)
        if (sentence.isSentence())
            byUnit[sentence.unit].push_back(&sentence);
    for (const auto& [unit, those] : byUnit) {
        const LengthBand* band = lengthBand(unit);
        if (band == nullptr || those.size() < fewSentences)
            continue;
        qsizetype words = 0;
        for (const Sentence* sentence : those)
            words += sentence->words.size();
        const double mean = static_cast<double>(words) / static_cast<double>(those.size());
        if (mean < band->least || mean > band->most)
            findings.add(
                those.front()->question->at("q1"),
                QStringLiteral("the sentences of unit %1 have %2 words each").arg(unit).arg(mean, 0, 'f', 1),
                QStringLiteral("%1 to %2 on the whole: easy first, harder from unit to unit")
                    .arg(band->least, 0, 'f', 1)
                    .arg(band->most, 0, 'f', 1));
    }
}

/// A tense, and the word in a unit's title that says the unit teaches it.
struct TaughtTense {
    Tense tense;
    const char16_t* title;
    const char* name;
};

constexpr std::array taughtTenses{
    TaughtTense{Tense::Progressive, u"진행형", "the progressive"},
    TaughtTense{Tense::Past, u"과거시제", "the past"},
    TaughtTense{Tense::Future, u"미래시제", "the future"},
    TaughtTense{Tense::Perfect, u"현재완료", "the perfect"},
    TaughtTense{Tense::Passive, u"수동태", "the passive"},
};

std::optional<int> unitOf(const Course& course, const TaughtTense& taught) {
    std::optional<int> first;
    for (const Topic& topic : course.topics)
        if (topic.topic && topic.title.contains(QString::fromUtf16(taught.title)))
            first = std::min(first.value_or(*topic.topic), *topic.topic);
    return first;
}

/// Told once for a text: the tenses come in the order in which they are taught.
class EarlyTenses {
   public:
    EarlyTenses(const Course& course, Findings& findings) : findings_(findings) {
        for (const TaughtTense& taught : taughtTenses)
            if (const auto unit = unitOf(course, taught))
                units_.push_back({&taught, *unit});
    }

    void look(const Row& row, const char* field, const QStringList& words) {
        for (const auto& [taught, unit] : units_) {
            if (row.topic.value_or(0) >= unit)
                continue;
            const QString form = english::findTense(words, taught->tense);
            if (form.isEmpty())
                continue;
            findings_.add(row.at(field),
                          QStringLiteral("'%1' shows %2, which unit %3 teaches")
                              .arg(form, QLatin1String(taught->name))
                              .arg(unit),
                          QStringLiteral("a sentence in what was taught so far"));
            return;
        }
    }

   private:
    Findings& findings_;
    std::vector<std::pair<const TaughtTense*, int>> units_;
};

void earlyTense(const Course& course, Findings& findings) {
    static const QRegularExpression korean(QStringLiteral("[\\x{3130}-\\x{318F}\\x{AC00}-\\x{D7A3}]"));
    static const QRegularExpression note(QStringLiteral("\\([^)]*\\)"));
    EarlyTenses early(course, findings);
    for (const Sentence& sentence : sentencesOf(course))
        early.look(*sentence.question, "q1", sentence.words);
    for (const DrillRow& row : course.drill)
        for (const int field : {1, 2})
            early.look(row, field == 1 ? "word1" : "word2",
                       englishWords(row.word[static_cast<std::size_t>(field)]));
    for (const Tip& tip : course.tips)
        for (QString line : tip.tips.split(u'\n'))
            if (!line.remove(note).contains(korean))
                for (const QString& part : line.split(QRegularExpression(QStringLiteral("[.!?→/=]|, | - "))))
                    early.look(tip, "tips", englishWords(part));
}

constexpr std::array rules{
    Rule{"sentence-length", Severity::Warning, "sentences grow from unit to unit", sentenceLength},
    Rule{"tense-early", Severity::Warning, "no tense is met before the unit that teaches it", earlyTense},
};

}  // namespace

std::span<const Rule> climbRules() {
    return rules;
}

}  // namespace tools::check
