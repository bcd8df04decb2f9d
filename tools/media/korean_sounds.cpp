#include "tools/media/korean_sounds.h"

#include <QRegularExpression>

#include <optional>
#include <vector>

namespace tools {

namespace {

constexpr char16_t firstSyllable = 0xac00;
constexpr char16_t lastSyllable = 0xd7a3;
constexpr int vowels = 21;
constexpr int endings = 28;

// Letters in the order in which syllables are numbered; an ending may be none.
const QString& onsets() {
    static const QString letters = QStringLiteral("ㄱㄲㄴㄷㄸㄹㅁㅂㅃㅅㅆㅇㅈㅉㅊㅋㅌㅍㅎ");
    return letters;
}
const QString& codas() {
    static const QString letters = QStringLiteral(" ㄱㄲㄳㄴㄵㄶㄷㄹㄺㄻㄼㄽㄾㄿㅀㅁㅂㅄㅅㅆㅇㅈㅊㅋㅌㅍㅎ");
    return letters;
}

/// A character taken apart when it is a syllable.
struct Sound {
    QChar other;
    bool isSyllable = false;
    QChar onset;
    int vowel = 0;
    QChar coda;

    explicit Sound(QChar c) : other(c), isSyllable(c >= firstSyllable && c <= lastSyllable) {
        if (!isSyllable)
            return;
        const int number = c.unicode() - firstSyllable;
        onset = onsets()[number / (vowels * endings)];
        vowel = number / endings % vowels;
        coda = codas()[number % endings];
    }
    QChar spelled() const {
        if (!isSyllable)
            return other;
        const auto number = (onsets().indexOf(onset) * vowels + vowel) * endings + codas().indexOf(coda);
        return QChar(static_cast<char16_t>(firstSyllable + number));
    }
};

bool isOneOf(QChar letter, const char16_t* letters) {
    return QStringView(letters).contains(letter);
}

// What a closing consonant stops with.
constexpr const char16_t* lips = u"ㅂㅍㅄㄿ";
constexpr const char16_t* teeth = u"ㄷㅅㅆㅈㅊㅌ";
constexpr const char16_t* throat = u"ㄱㄲㅋㄳㄺ";

/// What stays of an ending that holds ㅎ.
std::optional<QChar> withoutH(QChar coda) {
    if (coda == u'ㅎ')
        return u' ';
    if (coda == u'ㄶ')
        return u'ㄴ';
    if (coda == u'ㅀ')
        return u'ㄹ';
    return {};
}

/// 좋습니다 → 조씁니다, 않는 → 안는, 못하다 → 모타다.
void soundH(Sound& before, Sound& after) {
    if (const auto rest = withoutH(before.coda)) {
        if (after.onset == u'ㅅ') {
            before.coda = *rest;
            after.onset = u'ㅆ';
        } else if (after.onset == u'ㄴ') {
            before.coda = *rest == u' ' ? QChar(u'ㄴ') : *rest;
        }
    } else if (after.onset == u'ㅎ' && isOneOf(before.coda, u"ㅅㅌㄷ")) {
        before.coda = u' ';
        after.onset = u'ㅌ';
    }
}

/// 종류 → 종뉴, 독립 → 독닙: ㄹ keeps its sound behind a vowel and behind ㄹ and ㄴ alone.
void soundR(const Sound& before, Sound& after) {
    if (after.onset == u'ㄹ' && (isOneOf(before.coda, u"ㅁㅇ") || isOneOf(before.coda, lips) ||
                                 isOneOf(before.coda, teeth) || isOneOf(before.coda, throat)))
        after.onset = u'ㄴ';
}

/// 합니다 → 함니다, 있는 → 인는, 읽는 → 잉는.
void soundNasal(Sound& before, const Sound& after) {
    if (!isOneOf(after.onset, u"ㄴㅁ"))
        return;
    if (isOneOf(before.coda, lips))
        before.coda = u'ㅁ';
    else if (isOneOf(before.coda, teeth))
        before.coda = u'ㄴ';
    else if (isOneOf(before.coda, throat))
        before.coda = u'ㅇ';
}

/// 관련 → 괄련, 설날 → 설랄.
void soundL(Sound& before, Sound& after) {
    if (before.coda == u'ㄴ' && after.onset == u'ㄹ')
        before.coda = u'ㄹ';
    else if (isOneOf(before.coda, u"ㄹㅀㄾ") && after.onset == u'ㄴ') {
        before.coda = u'ㄹ';
        after.onset = u'ㄹ';
    }
}

}  // namespace

QString asPronounced(const QString& text) {
    std::vector<Sound> sounds;
    for (const QChar c : text)
        sounds.emplace_back(c);
    for (std::size_t i = 0; i + 1 < sounds.size(); ++i) {
        Sound& before = sounds[i];
        Sound& after = sounds[i + 1];
        if (!before.isSyllable || !after.isSyllable)
            continue;
        soundH(before, after);
        soundR(before, after);
        soundNasal(before, after);
        soundL(before, after);
    }
    QString spelled;
    for (const Sound& sound : sounds)
        spelled += sound.spelled();
    return spelled;
}

QString koreanSpeech(const QString& line) {
    static const QRegularExpression number(QStringLiteral("^\\d+\\.\\s+"));
    static const QRegularExpression halt(QStringLiteral("\\s*[/:→=]\\s*|\\s+-\\s+"));
    static const QRegularExpression ending(QStringLiteral("-([a-z]{1,2}|ves|ies)(?![a-z])"));
    static const QRegularExpression silent(
        QStringLiteral("[\"“”‘’<>\\[\\]_~*]|(?<![A-Za-z])['-]|['-](?![A-Za-z])"));
    static const QRegularExpression brackets(QStringLiteral("[()]"));
    static const QRegularExpression halts(QStringLiteral("(?:\\s*,)*\\s*([,.?!])"));
    static const QRegularExpression lastHalt(QStringLiteral("[\\s,]+$"));
    QString text = line;
    text.remove(number);
    for (auto found = ending.match(text); found.hasMatch(); found = ending.match(text)) {
        QString letters;
        for (const QChar c : found.captured(1))
            letters += c.toUpper() + QStringLiteral(" ");
        text.replace(found.capturedStart(), found.capturedLength(), letters.trimmed());
    }
    text.replace(halt, QStringLiteral(", "));
    text.replace(QStringLiteral("+"), QStringLiteral(" 더하기 "));
    text.replace(brackets, QStringLiteral(", "));
    text.remove(silent);
    text.replace(halts, QStringLiteral("\\1"));
    text.remove(lastHalt);
    return asPronounced(text.simplified());
}

}  // namespace tools
