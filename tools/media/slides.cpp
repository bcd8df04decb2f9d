#include "tools/media/slides.h"

#include "tools/media/korean_sounds.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace tools {

namespace {

constexpr qsizetype longestHeading = 30;
constexpr qsizetype longestLabel = 8;
constexpr double turnSeconds = 0.4;    // to find one's way on a new slide
constexpr double readingPace = 8.0;    // letters a second, where nobody reads aloud
constexpr double englishPause = 1.0;   // after each example, to say it again
constexpr double koreanPause = 0.35;   // between two sentences
constexpr double lastSeconds = 1.0;    // the last slide, once all is said
constexpr double shortestPause = 0.5;  // of what it is at ease, where time is short
constexpr double margin = 1.0;         // kept from the bound, for what encoding rounds

const QRegularExpression& hangul() {
    static const QRegularExpression pattern(
        QStringLiteral("[\\x{1100}-\\x{11ff}\\x{3130}-\\x{318f}\\x{ac00}-\\x{d7a3}]"));
    return pattern;
}

bool isHeading(const QString& line) {
    static const QRegularExpression number(QStringLiteral("^\\d+\\.\\s"));
    return line.size() <= longestHeading && number.match(line).hasMatch();
}

/// Marks between forms become what a voice makes of them: a short halt.
QString withoutMarks(QString text) {
    static const QRegularExpression fraction(QStringLiteral("\\d+/\\d+\\s+(?=[A-Za-z])"));
    static const QRegularExpression afterStop(QStringLiteral("(?<=[.?!,])\\s+[-\\x{2192}=/+]\\s+"));
    static const QRegularExpression between(QStringLiteral("\\s+[-\\x{2192}=/+]\\s+"));
    static const QRegularExpression silent(QStringLiteral("[_~*\"]+"));
    text.remove(fraction);
    text.replace(afterStop, QStringLiteral(" "));
    text.replace(between, QStringLiteral(", "));
    text.remove(silent);
    return text.simplified();
}

std::vector<Slide> blocksOf(const std::vector<SlideLine>& lines) {
    std::vector<Slide> blocks;
    for (const SlideLine& line : lines) {
        if (blocks.empty() || line.startsBlock)
            blocks.emplace_back();
        blocks.back().push_back(line);
    }
    return blocks;
}

bool isAllExamples(const Slide& block) {
    return std::all_of(block.begin(), block.end(),
                       [](const SlideLine& l) { return l.kind == LineKind::Example; });
}

/// Cuts a line in two near its middle, after a sentence or else after a word. False when it is one word.
bool cutLine(const SlideLine& line, SlideLine& first, SlideLine& second) {
    const qsizetype middle = line.text.size() / 2;
    qsizetype best = -1;
    for (const QString& end : {QStringLiteral(". "), QStringLiteral(" ")}) {
        for (qsizetype at = line.text.indexOf(end); at >= 0; at = line.text.indexOf(end, at + 1))
            if (best < 0 || std::abs(at - middle) < std::abs(best - middle))
                best = at + end.size();
        if (best > 0)
            break;
    }
    if (best <= 0 || best >= line.text.size())
        return false;
    first = second = line;
    first.text = line.text.left(best).trimmed();
    second.text = line.text.mid(best).trimmed();
    second.startsBlock = false;
    for (SlideLine* part : {&first, &second})
        part->spoken = part->voice == Voice::English ? spokenText(part->text) : koreanSpeech(part->text);
    return true;
}

/// What the Korean voice says of a line that is no example.
QString explanation(const QString& line) {
    static const QRegularExpression letter(QStringLiteral("[A-Za-z]"));
    if (!line.contains(hangul()) && !line.contains(letter))
        return {};
    const Mistake mistake = mistakeIn(line);
    QString rest = line;
    rest.remove(mistake.start, mistake.length);
    // Nobody is to hear a mistake as if it were an example.
    if (mistake.length > 0 && !rest.contains(letter) && line.size() - mistake.length < longestLabel)
        return asPronounced(QStringLiteral("이렇게 쓰면 틀립니다."));
    return koreanSpeech(line);
}

class Layout {
   public:
    Layout(int room, int gap, const std::function<int(const SlideLine&)>& height)
        : room_(room), gap_(gap), height_(height) {}

    void add(const Slide& block) {
        const int wanted = heightOf(block);
        const bool joins = used_ < room_ / 2 || isAllExamples(block);
        if (slides_.empty() || !joins || used_ + gap_ + wanted > room_)
            turnPage();
        if (wanted <= room_)
            for (const SlideLine& line : block)
                put(line);
        else
            spread(block);
    }
    std::vector<Slide> take() { return std::move(slides_); }

   private:
    int heightOf(const Slide& block) const {
        int sum = 0;
        for (const SlideLine& line : block)
            sum += height_(line);
        return sum;
    }
    void turnPage() {
        if (slides_.empty() || !slides_.back().empty())
            slides_.emplace_back();
        used_ = 0;
    }
    void put(const SlideLine& line) {
        used_ += height_(line) + (line.startsBlock && used_ > 0 ? gap_ : 0);
        slides_.back().push_back(line);
    }
    /// A block that no slide can hold: on as few slides as it needs, about equally full.
    void spread(const Slide& block) {
        const std::vector<bool> turns = pageTurns(block);
        for (std::size_t i = 0; i < block.size(); ++i) {
            if (turns[i])
                turnPage();
            putWhole(block[i]);
        }
    }
    /// Before which lines to turn the page: the pages' unused room, squared, is to be least in sum, and an
    /// example parted from what it is an example of counts as two pages more.
    std::vector<bool> pageTurns(const Slide& block) const {
        const std::size_t count = block.size();
        std::vector<double> cost(count + 1, std::numeric_limits<double>::infinity());
        std::vector<std::size_t> from(count + 1, 0);
        cost[0] = 0.0;
        for (std::size_t start = 0; start < count; ++start) {
            int used = 0;
            const bool parts = start > 0 && block[start].kind == LineKind::Example;
            for (std::size_t end = start; end < count; ++end) {
                used += height_(block[end]);
                if (used > room_ && end > start)
                    break;
                const double spare = 1.0 - static_cast<double>(used) / room_;
                const double total = cost[start] + 1.0 + spare * spare + (parts ? 2.0 : 0.0);
                if (total < cost[end + 1]) {
                    cost[end + 1] = total;
                    from[end + 1] = start;
                }
            }
        }
        std::vector<bool> turns(count, false);
        for (std::size_t at = count; at > 0; at = from[at])
            turns[from[at]] = true;
        return turns;
    }
    void putWhole(const SlideLine& line) {
        SlideLine first;
        SlideLine second;
        if (height_(line) <= room_ || !cutLine(line, first, second)) {
            put(line);
            return;
        }
        putWhole(first);
        turnPage();
        putWhole(second);
    }

    int room_;
    int gap_;
    const std::function<int(const SlideLine&)>& height_;
    std::vector<Slide> slides_;
    int used_ = 0;
};

double readingSeconds(const QString& text) {
    const auto letters = std::count_if(text.begin(), text.end(), [](QChar c) { return !c.isSpace(); });
    return static_cast<double>(letters) / readingPace;
}

}  // namespace

QString spokenText(const QString& line) {
    static const QRegularExpression note(
        QStringLiteral("\\([^()]*[\\x{1100}-\\x{11ff}\\x{3130}-\\x{318f}\\x{ac00}-\\x{d7a3}][^()]*\\)"));
    static const QRegularExpression mistake(QStringLiteral("(^|\\s{2,}|/)[^()/]*\\([Xx]\\)"));
    static const QRegularExpression letter(QStringLiteral("[A-Za-z]"));
    // "감각: see, hear": a Korean name before the examples, unless it names a mistake.
    static const QRegularExpression label(QStringLiteral("^[^:A-Za-z]{1,16}:\\s+"));
    if (isHeading(line))
        return {};
    QString text = line;
    if (const auto named = label.match(line);
        named.hasMatch() && !named.captured().contains(QStringLiteral("틀")))
        text.remove(0, named.capturedLength());
    text.remove(note);
    text.remove(mistake);
    text.remove(QStringLiteral("(O)"));
    if (text.contains(hangul()) || !text.contains(letter))
        return {};
    return withoutMarks(text);
}

Mistake mistakeIn(const QString& line) {
    // The last bracket of each pattern holds the mistake.
    static const std::array patterns{
        QRegularExpression(QStringLiteral("^(?:틀림|틀린 [^:]{1,6}):\\s*(.+)$")),
        QRegularExpression(QStringLiteral("(?:^|\\s{2,}|/\\s*)([^()/]*\\S)\\s*\\([Xx]\\)")),
        QRegularExpression(
            QStringLiteral("([A-Za-z][A-Za-z' ,]*[.?!]?)(?:이?라고 하지 않|이?라고 쓰지 않|처럼 줄여 쓰지 "
                           "않|[은는] 틀린)")),
    };
    for (const QRegularExpression& pattern : patterns)
        if (const auto found = pattern.match(line); found.hasMatch())
            return {found.capturedStart(1), found.capturedLength(1)};
    return {};
}

std::vector<SlideLine> slideLines(const QString& tips) {
    std::vector<SlideLine> lines;
    bool startsBlock = true;
    QString text = tips;
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (const QString& raw : text.split(u'\n')) {
        const QString line = raw.trimmed();
        if (line.isEmpty()) {
            startsBlock = true;
            continue;
        }
        SlideLine built{LineKind::Korean, line, spokenText(line), Voice::English, startsBlock};
        if (!built.spoken.isEmpty()) {
            built.kind = LineKind::Example;
        } else {
            built.kind = isHeading(line) ? LineKind::Heading : LineKind::Korean;
            built.voice = Voice::Korean;
            built.spoken = explanation(line);
        }
        lines.push_back(built);
        startsBlock = false;
    }
    return lines;
}

std::vector<Slide> layOutSlides(const std::vector<SlideLine>& lines, int room, int gap,
                                const std::function<int(const SlideLine&)>& height) {
    Layout layout(room, gap, height);
    for (const Slide& block : blocksOf(lines))
        layout.add(block);
    return layout.take();
}

TitleRule titleRule(const QString& tips) {
    static const QRegularExpression number(QStringLiteral("^\\d+\\.\\s+"));
    const std::vector<SlideLine> lines = slideLines(tips);
    auto rule = std::find_if(lines.begin(), lines.end(),
                             [](const SlideLine& line) { return number.match(line.text).hasMatch(); });
    if (rule == lines.end())
        rule = lines.begin();
    // A heading that only names the point gives way to the sentence below it.
    if (rule != lines.end() && !rule->text.endsWith(u'.') && rule + 1 != lines.end() &&
        (rule + 1)->kind == LineKind::Korean)
        ++rule;
    const auto example =
        std::find_if(rule, lines.end(), [](const SlideLine& line) { return line.kind == LineKind::Example; });
    TitleRule shown;
    if (rule != lines.end() && rule->kind != LineKind::Example) {
        shown.rule = *rule;
        shown.rule.kind = LineKind::Korean;
        shown.rule.text.remove(number);
        // One sentence says it; the slides say the rest.
        if (const qsizetype end = shown.rule.text.indexOf(QStringLiteral(". ")); end > 0)
            shown.rule.text.truncate(end + 1);
    }
    if (example != lines.end())
        shown.example = *example;
    return shown;
}

std::vector<Shot> shotsOf(const VideoText& text, const std::vector<Slide>& slides) {
    const QString rule = titleRule(text.tips).rule.text;
    const QString title = koreanSpeech(text.title) + QStringLiteral(". ") + koreanSpeech(rule);
    std::vector<Shot> shots{{-1, -1, title, Voice::Korean, readingSeconds(text.title + rule)}};
    for (std::size_t s = 0; s < slides.size(); ++s) {
        const int slide = static_cast<int>(s);
        shots.push_back({slide, -1, {}, Voice::Korean, turnSeconds});
        for (std::size_t l = 0; l < slides[s].size(); ++l) {
            const SlideLine& line = slides[s][l];
            shots.push_back({slide, static_cast<int>(l), line.spoken, line.voice, readingSeconds(line.text)});
        }
    }
    shots.push_back({static_cast<int>(slides.size()) - 1, -1, {}, Voice::Korean, lastSeconds});
    return shots;
}

void timeShots(std::vector<Shot>& shots) {
    const auto pauseAfter = [](const Shot& shot) {
        return shot.voice == Voice::English ? englishPause : koreanPause;
    };
    double speaking = 0.0;
    double resting = 0.0;
    for (const Shot& shot : shots) {
        speaking += shot.speech;
        resting += shot.speech > 0.0 ? pauseAfter(shot) : shot.reading;
    }
    const double room = longestVideo - margin - speaking;
    const double factor = resting > room ? std::max(0.0, room / resting) : 1.0;
    for (Shot& shot : shots)
        shot.seconds = shot.speech > 0.0 ? shot.speech + pauseAfter(shot) * std::max(factor, shortestPause)
                                         : shot.reading * factor;
}

}  // namespace tools
