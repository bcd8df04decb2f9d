#include "tools/english/english.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

namespace tools::check::english {

namespace {

QSet<QString> setOf(const char* words) {
    const QStringList list = QString::fromLatin1(words).split(u' ', Qt::SkipEmptyParts);
    return {list.begin(), list.end()};
}

constexpr const char* grammarWords =
    "a an the this that these those my your his her its our their mine yours hers ours theirs i you he she "
    "it "
    "we they me him us them myself yourself himself herself itself ourselves themselves one ones who whom "
    "whose what which when where why how here there some any no not none many much few little every each "
    "another other others both all most more less than as or and but so because if unless when while before "
    "after since until although though whether am is are was were be been being do does did done doing have "
    "has had having will would can could may might must shall should ought let in on at to of for with by "
    "from "
    "into onto about above below under over near between among behind beside next out off up down along "
    "across "
    "through around against during without within toward front back away together yes please too either "
    "neither nor also only just even else enough very really quite well still yet already ever never always "
    "usually often sometimes rarely seldom hardly again once twice ago now then soon later everyone "
    "everybody "
    "everything someone somebody something anyone anybody anything nobody nothing everywhere somewhere "
    "isn't aren't wasn't weren't don't doesn't didn't haven't hasn't hadn't won't wouldn't can't cannot "
    "couldn't "
    "mustn't shouldn't needn't i'm you're he's she's it's we're they're that's there's what's who's where's "
    "let's i'll you'll he'll she'll it'll we'll they'll i've you've we've they've i'd you'd he'd she'd we'd "
    "they'd o'clock a.m p.m mr mrs ms dr";

constexpr const char* numberWords =
    "zero two three four five six seven eight nine ten eleven twelve thirteen fourteen fifteen sixteen "
    "seventeen eighteen nineteen twenty thirty forty fifty sixty seventy eighty ninety hundred thousand "
    "million "
    "first second third fourth fifth sixth seventh eighth ninth tenth last half dozen number lot";

constexpr const char* timeWords =
    "today tomorrow yesterday tonight time day night morning afternoon evening noon week weekend month year "
    "hour "
    "minute monday tuesday wednesday thursday friday saturday sunday january february march april june july "
    "august september october november december";

constexpr const char* everydayVerbs =
    "answer arrive ask become begin believe borrow break bring brush build buy call carry catch change "
    "choose "
    "clean close come cook cost count cry cut dance decide draw drink drive eat end enjoy fall feel fight "
    "find "
    "finish fix fly follow forget get give go going gone grow happen hear help hide hit hold hope hurt "
    "invite "
    "join jump keep kick know laugh learn leave lend lie like listen live look lose love make mean meet mind "
    "miss move need open paint pass pay plan plant play practice prefer promise pull push put rain reach "
    "read "
    "remember rest ride ring run save say see seem sell send shout show sing sit sleep smell smile snow "
    "sound "
    "speak spend stand start stay steal stop study swim take talk taste teach tell thank think throw touch "
    "travel try turn understand use visit wait wake walk want wash watch wear win wish work worry write "
    "went came saw ate drank gave got knew made met read ran said sang sat slept spoke stood swam taught "
    "told "
    "took thought wore won wrote bought brought built caught felt fell found flew forgot grew heard kept "
    "left "
    "lost paid put rode sent sold spent began broke chose drew drove threw woke been begun broken chosen "
    "drawn "
    "driven drunk eaten fallen flown forgotten given grown hidden known ridden seen spoken stolen sung swum "
    "taken thrown woken worn written";

constexpr const char* everydayAdjectives =
    "afraid angry bad beautiful better best big black blue boring bright brown busy cheap clean clear clever "
    "closed cold cool correct dark dead deep delicious different difficult dirty dry early easy empty "
    "excited "
    "exciting expensive fair famous far fast favorite fine free fresh friendly full funny glad good great "
    "green "
    "happy hard heavy high hot hungry important interested interesting kind large late lazy left light long "
    "loud "
    "low lucky main nervous new nice noisy old open own perfect polite poor popular pretty proud quick quiet "
    "ready red rich right sad safe same short shy sick simple sleepy slow small smart soft special strong "
    "sure "
    "sweet tall tasty thick thin thirsty tired true ugly useful warm weak wet white wide wise worse worst "
    "wrong "
    "yellow young quickly slowly carefully loudly quietly hard easily happily badly outside inside home "
    "abroad "
    "upstairs maybe";

const QSet<QString>& everydayWords() {
    static const QSet<QString> words = setOf(grammarWords) + setOf(numberWords) + setOf(timeWords) +
                                       setOf(everydayVerbs) + setOf(everydayAdjectives);
    return words;
}

QString singular(const QString& word) {
    static const QHash<QString, QString> irregular{{QStringLiteral("children"), QStringLiteral("child")},
                                                   {QStringLiteral("men"), QStringLiteral("man")},
                                                   {QStringLiteral("women"), QStringLiteral("woman")},
                                                   {QStringLiteral("feet"), QStringLiteral("foot")},
                                                   {QStringLiteral("teeth"), QStringLiteral("tooth")},
                                                   {QStringLiteral("mice"), QStringLiteral("mouse")},
                                                   {QStringLiteral("geese"), QStringLiteral("goose")},
                                                   {QStringLiteral("shoes"), QStringLiteral("shoe")},
                                                   {QStringLiteral("toes"), QStringLiteral("toe")},
                                                   {QStringLiteral("buses"), QStringLiteral("bus")},
                                                   {QStringLiteral("knives"), QStringLiteral("knife")},
                                                   {QStringLiteral("wives"), QStringLiteral("wife")},
                                                   {QStringLiteral("leaves"), QStringLiteral("leaf")},
                                                   {QStringLiteral("movies"), QStringLiteral("movie")},
                                                   {QStringLiteral("cookies"), QStringLiteral("cookie")}};
    static const QRegularExpression hissing(QStringLiteral("(ss|sh|ch|x|o)es$"));
    static const QRegularExpression noPlural(QStringLiteral("(^.{0,2}|s|u|i)s$"));
    if (const auto known = irregular.constFind(word); known != irregular.constEnd())
        return *known;
    if (word.size() > 4 && word.endsWith(QStringLiteral("ies")))
        return word.chopped(3) + u'y';
    if (hissing.match(word).hasMatch())
        return word.chopped(2);
    return word.endsWith(u's') && !noPlural.match(word).hasMatch() ? word.chopped(1) : word;
}

/// An everyday word with an ending, with or without the letter that was doubled or left out: stopping,
/// cried, happier, loudly.
bool isForm(const QString& word) {
    const auto& known = everydayWords();
    for (const QString& ending : {QStringLiteral("ing"), QStringLiteral("ed"), QStringLiteral("er"),
                                  QStringLiteral("est"), QStringLiteral("ly")}) {
        if (word.size() < ending.size() + 2 || !word.endsWith(ending))
            continue;
        const QString stem = word.chopped(ending.size());
        const bool agent = ending == QStringLiteral("er") && setOf(everydayVerbs).contains(stem);
        if (!agent &&
            (known.contains(stem) || known.contains(stem + u'e') || known.contains(stem.chopped(1)) ||
             (stem.endsWith(u'i') && known.contains(stem.chopped(1) + u'y'))))
            return true;
    }
    return false;
}

}  // namespace

QString baseForm(const QString& word) {
    const qsizetype apostrophe = word.indexOf(u'\'');
    return singular(apostrophe < 0 ? word : word.first(apostrophe));
}

bool canWearOut(const QString& word) {
    const auto isNumber = [](const QString& text) { return !text.isEmpty() && text[0].isDigit(); };
    return word.size() > 1 && !isNumber(word) && !everydayWords().contains(word) &&
           !everydayWords().contains(baseForm(word)) && !isForm(word);
}

}  // namespace tools::check::english
