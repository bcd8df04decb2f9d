// How a tense is known by its words. Only forms that can hardly be anything else count: a rule that is wrong
// now and then is soon passed over.

#include "tools/english/english.h"

#include <QSet>

#include <algorithm>

namespace tools::check::english {

namespace {

using Words = QSet<QString>;

Words setOf(const char* words) {
    const QStringList list = QString::fromLatin1(words).split(u' ', Qt::SkipEmptyParts);
    return {list.begin(), list.end()};
}

/// Past forms that are no other everyday word.
const Words& irregularPast() {
    static const Words words = setOf(
        "was were wasn't weren't did didn't had hadn't became began bit blew broke brought built bought "
        "caught "
        "chose came dealt dug drew drank drove ate fell fed felt fought found flew forgot forgave froze got "
        "gave went grew hung heard hid held kept knew led learnt left lent lost made meant met paid rode "
        "rang "
        "ran said saw sought sold sent shook shone shot showed sang sank sat slept slid spoke spent stood "
        "stole "
        "stuck struck swore swept swam swung took taught tore told thought threw understood woke wore wept "
        "won "
        "wrote");
    return words;
}

const Words& irregularParticiples() {
    static const Words words = setOf(
        "been become begun bitten blown broken brought built bought caught chosen come cut dealt done drawn "
        "drunk driven eaten fallen fed felt fought found flown forgotten forgiven frozen given gone grown "
        "hung "
        "had heard hidden hit held kept known led learnt left lent lost made meant met paid put read ridden "
        "rung run said seen sought sold sent set shaken shot shown sung sunk sat slept spoken spent stood "
        "stolen stuck struck sworn swept swum taken taught torn told thought thrown understood woken worn "
        "won "
        "written");
    return words;
}

/// Words on -ed that are no verb, or stand mostly as adjectives.
const Words& adjectives() {
    static const Words words = setOf(
        "amazed annoyed ashamed bored boiled baked closed colored confused depressed "
        "disappointed dressed dried embarrassed excited frightened fried furnished grilled iced interested "
        "married mixed naked pleased relaxed retired rotten roasted sacred satisfied scared shocked smoked "
        "surprised talented tired wicked worried wooded curved pointed striped spotted aged armed beloved "
        "blessed crooked learned ragged rugged skilled limited advanced used lost broken done gone hurt "
        "stuck "
        "drunk frozen known worn bed red need feed seed weed speed deed breed bleed greed indeed proceed "
        "succeed exceed agreed hundred sled shed fred ted bred filled covered located crowded");
    return words;
}

const Words& determiners() {
    static const Words words = setOf(
        "a an the my your his her its our their this that these those some any no each every two three four "
        "five six seven eight nine ten many much few more most very so too quite really turn turns go goes "
        "on to of in at from with by for first last new old");
    return words;
}

const Words& beForms() {
    static const Words words = setOf(
        "am is are was were be been isn't aren't wasn't weren't i'm you're he's "
        "she's it's we're they're that's");
    return words;
}

const Words& haveForms() {
    static const Words words = setOf("have has haven't hasn't i've you've we've they've");
    return words;
}

/// Words that stand between the two parts of a verb.
const Words& between() {
    static const Words words = setOf(
        "not never always already just ever also often usually now still yet only really recently finally "
        "i you he she it we they all both");
    return words;
}

bool isRegular(const QString& word) {
    return word.size() > 3 && word.endsWith(QStringLiteral("ed"));
}

bool isParticiple(const QString& word) {
    return irregularParticiples().contains(word) || (isRegular(word) && !adjectives().contains(word));
}

/// The word before a place, passing over those that may stand inside a verb.
QString wordBefore(const QStringList& words, qsizetype place) {
    do
        --place;
    while (place >= 0 && between().contains(words[place]));
    return place < 0 ? QString() : words[place];
}

bool isPast(const QStringList& words, qsizetype place) {
    const QString& word = words[place];
    if (word == QStringLiteral("used"))
        return place + 1 < words.size() && words[place + 1] == QStringLiteral("to") &&
               !beForms().contains(wordBefore(words, place));
    if (!irregularPast().contains(word) && (!isRegular(word) || adjectives().contains(word)))
        return false;
    const QString before = wordBefore(words, place);
    const bool neighbour = place > 0 && determiners().contains(words[place - 1]);
    return !neighbour && !beForms().contains(before) && !haveForms().contains(before);
}

bool isFuture(const QStringList& words, qsizetype place) {
    const QString& word = words[place];
    const QString next = words.value(place + 1);
    // "Will you …?" asks a favour.
    if (word == QStringLiteral("will") || word == QStringLiteral("won't"))
        return next != QStringLiteral("you") && !(place > 0 && determiners().contains(words[place - 1]));
    if (word.endsWith(QStringLiteral("'ll")))
        return true;
    static const Words places = setOf("school work bed church town market hospital college busan seoul jeju");
    const QString verb = words.value(place + 2);
    return word == QStringLiteral("going") && next == QStringLiteral("to") && !verb.isEmpty() &&
           beForms().contains(wordBefore(words, place)) && !determiners().contains(verb) &&
           !places.contains(verb);
}

/// The place of the other part of an auxiliary's verb: next to it, or up to three words on in a question,
/// where the subject stands between. -1 without one.
template <typename IsPart>
qsizetype otherPart(const QStringList& words, qsizetype place, IsPart isPart) {
    static const Words ends = setOf("and but or to than");
    const bool question = place == 0;
    qsizetype passed = 0;
    for (qsizetype i = place + 1; i < words.size() && passed <= (question ? 3 : 0); ++i) {
        if (ends.contains(words[i]))
            return -1;
        if (isPart(words[i]) && !(i > place + 1 && determiners().contains(words[i - 1])))
            return i;
        passed += between().contains(words[i]) && !question ? 0 : 1;
    }
    return -1;
}

bool isProgressivePart(const QString& word) {
    static const Words others = setOf(
        "interesting boring exciting surprising amazing tiring shocking charming disappointing embarrassing "
        "confusing frightening annoying relaxing satisfying touching willing missing morning evening thing "
        "something anything nothing everything king ring spring string wing sing bring during building "
        "ceiling "
        "wedding meeting feeling painting drawing clothing pudding beijing darling loving caring "
        "outstanding");
    return word.size() > 4 && word.endsWith(QStringLiteral("ing")) && !others.contains(word);
}

bool isPerfectPart(const QString& word) {
    return word != QStringLiteral("got") && (isParticiple(word) || irregularParticiples().contains(word));
}

bool isPassivePart(const QString& word) {
    // "Is there any milk left?", "spring has come and winter is gone" are no passives.
    static const Words others = setOf("been become come left");
    return isParticiple(word) && !adjectives().contains(word) && !others.contains(word);
}

/// The last word of a form that begins here; -1 where none does.
qsizetype endOfForm(const QStringList& words, qsizetype place, Tense tense) {
    const bool be = beForms().contains(words[place]);
    switch (tense) {
        case Tense::Past: return isPast(words, place) ? place : -1;
        case Tense::Future: return isFuture(words, place) ? std::min(place + 2, words.size() - 1) : -1;
        case Tense::Progressive: return be ? otherPart(words, place, isProgressivePart) : -1;
        case Tense::Perfect:
            return haveForms().contains(words[place]) ? otherPart(words, place, isPerfectPart) : -1;
        case Tense::Passive: return be ? otherPart(words, place, isPassivePart) : -1;
    }
    return -1;
}

}  // namespace

QString findTense(const QStringList& words, Tense tense) {
    QStringList small;
    for (const QString& word : words)
        small.append(word.toLower());
    for (qsizetype i = 0; i < small.size(); ++i)
        if (const qsizetype end = endOfForm(small, i, tense); end >= 0)
            return words.mid(i, end - i + 1).join(u' ');
    return {};
}

}  // namespace tools::check::english
