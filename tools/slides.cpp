#include "tools/slides.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <limits>

namespace tools {

namespace {

constexpr qsizetype longestHeading = 30;
constexpr double titleSeconds = 3.5;
constexpr double slideSeconds = 1.0;  // to find one's way on a new slide
constexpr double readingPace = 8.0;   // letters a second
constexpr double speechPause = 1.1;   // after each example, to say it again
constexpr double lastSeconds = 2.0;   // the last slide, once all is said
constexpr double margin = 1.0;        // kept from both bounds, for what encoding rounds

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
        part->spoken = spokenText(part->text);
    return true;
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
        SlideLine built{LineKind::Korean, line, spokenText(line), startsBlock};
        if (!built.spoken.isEmpty())
            built.kind = LineKind::Example;
        else if (isHeading(line))
            built.kind = LineKind::Heading;
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

std::vector<Shot> shotsOf(const std::vector<Slide>& slides) {
    std::vector<Shot> shots{Shot{-1, -1, {}, titleSeconds}};
    for (std::size_t s = 0; s < slides.size(); ++s) {
        const int slide = static_cast<int>(s);
        shots.push_back({slide, -1, {}, slideSeconds});
        for (std::size_t l = 0; l < slides[s].size(); ++l) {
            const SlideLine& line = slides[s][l];
            if (line.kind == LineKind::Example) {
                shots.push_back({slide, static_cast<int>(l), line.spoken, 0.0});
                continue;
            }
            if (shots.back().line >= 0)
                shots.push_back({slide, -1, {}, 0.0});
            shots.back().reading += readingSeconds(line.text);
        }
    }
    shots.push_back({static_cast<int>(slides.size()) - 1, -1, {}, lastSeconds});
    return shots;
}

void timeShots(std::vector<Shot>& shots) {
    double reading = 0.0;
    double speaking = 0.0;
    for (Shot& shot : shots) {
        reading += shot.reading;
        // A line that no voice could be had for stands as long as it takes to read.
        if (shot.line >= 0)
            speaking += std::max(shot.speech, readingSeconds(shot.spoken)) + speechPause;
    }
    const double wanted = std::clamp(reading + speaking, shortestVideo + margin, longestVideo - margin);
    const double factor = reading > 0.0 ? std::max(0.0, wanted - speaking) / reading : 1.0;
    for (Shot& shot : shots)
        shot.seconds = shot.line >= 0 ? std::max(shot.speech, readingSeconds(shot.spoken)) + speechPause
                                      : shot.reading * factor;
}

}  // namespace tools
