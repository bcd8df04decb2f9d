#include "vocabulary/spelling.h"

#include "platform/letter_case.h"

#include <QStringView>

namespace vocabulary {

namespace {

constexpr int shortestWord = 3;
constexpr int longestWord = 16;
constexpr int lastSearched = 7;

template <typename Test>
QString mask(const QString& word, Test hides) {
    QString masked = word;
    for (QChar& letter : masked)
        if (hides(letter))
            letter = hiddenLetter;
    return masked;
}

const Box& at(const BoxRow& row, int index) {
    return row[static_cast<std::size_t>(index)];
}

bool shownAt(const BoxRow& row, int index) {
    return index < boxCount && at(row, index).shown;
}

}  // namespace

bool isVowel(QChar letter) {
    return QStringView(u"eaiouy").contains(letter);
}

bool isConsonant(QChar letter) {
    return QStringView(u"bcdfghjklmnpqrstvwxyz").contains(letter);
}

QString vowelMask(const QString& word) {
    return mask(word, isVowel);
}

QString consonantMask(const QString& word) {
    return mask(word, isConsonant);
}

QString spellingHint(const QString& word) {
    return word.left(1) + QString(qMax<qsizetype>(0, word.size() - 1), u'□');
}

bool isCoached(const QString& word) {
    return word.size() >= shortestWord && word.size() <= longestWord;
}

QString joinShown(const BoxRow& row) {
    QString joined;
    for (const Box& box : row)
        if (box.shown)
            joined += box.text;
    return joined;
}

bool sameWord(const QString& typed, const QString& word) {
    return platform::sameButForCase(typed, word);
}

std::optional<int> firstOpenBox(const BoxRow& row, const FocusSearch& search) {
    for (int i = 0; i <= lastSearched; ++i) {
        const int shownBy = i == lastSearched ? search.seventhShownBy : i;
        if (i > 0 && search.asksShown && !at(row, shownBy).shown)
            return std::nullopt;
        if (at(row, i).text.isEmpty())
            return i;
    }
    return std::nullopt;
}

std::optional<int> openBoxAfter(const BoxRow& row, int index, int reach) {
    for (int i = index + 1; i <= index + reach; ++i) {
        if (!shownAt(row, i))
            return std::nullopt;
        if (!at(row, i).locked)
            return i;
    }
    return std::nullopt;
}

std::optional<int> shownBoxAfter(const BoxRow& row, int index) {
    if (!shownAt(row, index + 1))
        return std::nullopt;
    return index + 1;
}

}  // namespace vocabulary
