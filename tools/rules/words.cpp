// Words pass three screens: a coach with one box a letter, a matching game, a quiz typed into 18 boxes.

#include "tools/rules/check.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace tools::check {

namespace {

constexpr int shortest = 3;
constexpr int longest = 16;

bool isLetter(QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

// The coach's rows hide vowels in one and consonants in the other; y counts as both, capitals as neither.
bool isVowel(QChar c) {
    return QStringLiteral("eaiouy").contains(c);
}
bool isConsonant(QChar c) {
    return c >= u'a' && c <= u'z' && !QStringLiteral("eaiou").contains(c);
}

void wordLength(const Course& course, Findings& findings) {
    for (const Word& word : course.words)
        if (word.word.size() < shortest || word.word.size() > longest)
            findings.add(word.at("word"),
                         QStringLiteral("'%1' has %2 letters, and the spelling coach leaves it out")
                             .arg(word.word)
                             .arg(word.word.size()),
                         QStringLiteral("a word of %1 to %2 letters").arg(shortest).arg(longest));
}

bool staysShown(QChar c) {
    return c == u' ' || c == u'-';
}

void wordLetters(const Course& course, Findings& findings) {
    for (const Word& word : course.words) {
        const bool fine = !word.word.isEmpty() && isLetter(word.word[0]) &&
                          std::all_of(word.word.begin(), word.word.end(),
                                      [](QChar c) { return isLetter(c) || staysShown(c); });
        if (!fine)
            findings.add(word.at("word"),
                         QStringLiteral("'%1' cannot be spelled in the letter boxes").arg(word.word),
                         QStringLiteral("the letters a to z alone"));
    }
}

void wordMarks(const Course& course, Findings& findings) {
    for (const Word& word : course.words)
        if (std::any_of(word.word.begin(), word.word.end(), staysShown))
            findings.add(
                word.at("word"),
                QStringLiteral("'%1' holds a mark that learners have to guess and type").arg(word.word),
                QStringLiteral("one word without a blank or hyphen"));
}

void wordCapital(const Course& course, Findings& findings) {
    for (const Word& word : course.words)
        if (word.word != word.word.toLower())
            findings.add(word.at("word"),
                         QStringLiteral("the capital in '%1' is never hidden").arg(word.word),
                         QStringLiteral("'%1'").arg(word.word.toLower()));
}

void wordMask(const Course& course, Findings& findings) {
    for (const Word& word : course.words) {
        const bool vowel = std::any_of(word.word.begin(), word.word.end(), isVowel);
        const bool consonant = std::any_of(word.word.begin(), word.word.end(), isConsonant);
        if (!vowel || !consonant)
            findings.add(
                word.at("word"),
                QStringLiteral("'%1' has no %2 to hide, so that the coach's row for them cannot be left")
                    .arg(word.word, vowel ? QStringLiteral("consonant") : QStringLiteral("vowel")),
                QStringLiteral("a word with both"));
    }
}

/// Whether a row of the coach is judged before its last open box: it looks only so many boxes ahead.
bool judgedEarly(const QString& word, bool (*open)(QChar), int ahead) {
    qsizetype last = -1;
    for (qsizetype i = 0; i < word.size(); ++i) {
        if (!open(word[i]))
            continue;
        if (last >= 0 && i - last > ahead)
            return true;
        last = i;
    }
    return false;
}

void wordMethod(const Course& course, Findings& findings) {
    for (const Word& word : course.words) {
        const bool vowels = judgedEarly(word.word, isVowel, 6);
        if (vowels || judgedEarly(word.word, isConsonant, 4))
            findings.add(
                word.at("word"),
                QStringLiteral(
                    "'%1' has so many %2 in a row that the coach judges it before its end is typed")
                    .arg(word.word, vowels ? QStringLiteral("consonants") : QStringLiteral("vowels")),
                QStringLiteral("a word with at most 5 consonants, and at most 3 vowels, between two others"));
    }
}

void wordFocus(const Course& course, Findings& findings) {
    const auto first = [](const QString& word, bool (*open)(QChar)) {
        return std::find_if(word.begin(), word.end(), open) - word.begin();
    };
    for (const Word& word : course.words) {
        const auto late = [&](qsizetype place) { return place > 7 && place < word.word.size(); };
        if (late(first(word.word, isVowel)) || late(first(word.word, isConsonant)))
            findings.add(word.at("word"),
                         QStringLiteral(
                             "the first letter to fill in '%1' stands behind the eighth box, where the coach "
                             "does not look for it")
                             .arg(word.word),
                         QStringLiteral("a word with a vowel and a consonant among its first eight letters"));
    }
}

/// Tells of each word whose text a word of the same step has already.
template <typename Text>
void twiceInStep(const Course& course, Findings& findings, const char* field, Text text, const QString& wrong,
                 const QString& right) {
    QSet<std::pair<int, QString>> seen;
    for (const Word& word : course.words) {
        const std::pair<int, QString> key(word.record.value_or(0), folded(text(word)));
        if (key.second.isEmpty())
            continue;
        if (seen.contains(key))
            findings.add(word.at(field), wrong.arg(text(word)), right);
        seen.insert(key);
    }
}

void wordTwice(const Course& course, Findings& findings) {
    twiceInStep(
        course, findings, "word", [](const Word& word) { return word.word; },
        QStringLiteral("'%1' is among the step's words already"), QStringLiteral("each word once"));
}

void meaningTwice(const Course& course, Findings& findings) {
    twiceInStep(
        course, findings, "korean", [](const Word& word) { return word.korean; },
        QStringLiteral(
            "'%1' is the meaning of another word of the step, so that a right match counts as wrong"),
        QStringLiteral("a meaning that tells the two words apart"));
}

/// The dictionary keeps one meaning of a word.
void otherMeaning(const Course& course, Findings& findings) {
    QHash<QString, const Word*> first;
    for (const Word& word : course.words) {
        const Word*& known = first[folded(word.word)];
        if (known == nullptr)
            known = &word;
        else if (known->record != word.record && folded(known->korean) != folded(word.korean))
            findings.add(word.at("korean"),
                         QStringLiteral("'%1' was taught as '%2', at %3")
                             .arg(word.word, known->korean, known->at("korean").text()),
                         QStringLiteral("one meaning in both places"));
    }
}

void meaningMissing(const Course& course, Findings& findings) {
    for (const Word& word : course.words)
        if (folded(word.korean).isEmpty())
            findings.add(word.at("korean"), QStringLiteral("'%1' has no meaning to ask it by").arg(word.word),
                         QStringLiteral("a short Korean meaning"));
}

void meaningWidth(const Course& course, Findings& findings) {
    for (const Word& word : course.words)
        if (columnsOf(word.korean) > 36)
            findings.add(word.at("korean"),
                         QStringLiteral("the meaning takes %1 columns").arg(columnsOf(word.korean)),
                         QStringLiteral("at most 36, a Korean character counting 2"));
}

void wordsOfStep(const Course& course, Findings& findings) {
    for (const Step& step : course.steps) {
        const auto& words = course.of(step.record).words;
        if (!words.empty() && (words.size() < 10 || words.size() > 20))
            findings.add(words.front()->at("recordno"),
                         QStringLiteral("%1 has %2 words; the games fill their pages with 10 to 20")
                             .arg(step.called())
                             .arg(words.size()),
                         QStringLiteral("10 to 20 words"));
    }
}

void wordsOfFinal(const Course& course, Findings& findings) {
    for (const Step& step : course.steps)
        if (const auto& words = course.of(step.record).words; step.isFinal() && !words.empty())
            findings.add(words.front()->at("recordno"),
                         QStringLiteral("%1 is a Final, which asks no words").arg(step.called()),
                         QStringLiteral("the words at the unit's opener"));
}

void wordSound(const Course& course, Findings& findings) {
    if (!course.media)
        return;
    for (const Word& word : course.words)
        if (!course.media->sounds.contains(folded(word.word)))
            findings.add(word.at("word"), QStringLiteral("'%1' has no sound").arg(word.word),
                         QStringLiteral("a file %1.wav among the word sounds").arg(word.word));
}

constexpr std::array rules{
    Rule{"word-length", Severity::Error, "a word has 3 to 16 letters", wordLength},
    Rule{"word-letters", Severity::Error, "a word begins with a letter and holds no apostrophe or digit",
         wordLetters},
    Rule{"word-marks", Severity::Warning, "a word holds no blank or hyphen", wordMarks},
    Rule{"word-capital", Severity::Warning, "a word is written small", wordCapital},
    Rule{"word-mask", Severity::Error, "a word has a vowel and a consonant", wordMask},
    Rule{"word-method", Severity::Error, "a word can be typed to its end in the coach's rows", wordMethod},
    Rule{"word-focus", Severity::Warning, "the coach finds the first letter to fill in", wordFocus},
    Rule{"word-twice", Severity::Error, "no word stands twice in a step", wordTwice},
    Rule{"meaning-other", Severity::Warning, "a word means the same wherever it is taught", otherMeaning},
    Rule{"meaning-missing", Severity::Error, "a word has a meaning", meaningMissing},
    Rule{"meaning-twice", Severity::Error, "no two words of a step have the same meaning", meaningTwice},
    Rule{"meaning-width", Severity::Warning, "a meaning fits on its label", meaningWidth},
    Rule{"word-number", Severity::Warning, "a step with words has 10 to 20", wordsOfStep},
    Rule{"words-of-final", Severity::Warning, "a Final has no words", wordsOfFinal},
    Rule{"word-sound", Severity::Warning, "an installed word has a sound", wordSound},
};

}  // namespace

std::span<const Rule> wordRules() {
    return rules;
}

}  // namespace tools::check
