#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace tools {

/// What a video is made of: its number, the unit's title, and the tips of the step.
struct VideoText {
    int number = 0;
    QString title;
    QString tips;
};

/// Korean explains, examples are English, headings number a short point.
enum class LineKind { Heading, Korean, Example };

/// Who says a line.
enum class Voice { English, Korean };

struct SlideLine {
    LineKind kind = LineKind::Korean;
    QString text;
    QString spoken;  // what is said while the line is lit; empty for silence
    Voice voice = Voice::Korean;
    bool startsBlock = false;  // an empty line stands before it
};

using Slide = std::vector<SlideLine>;

/// What is said of a line: its English without Korean notes in brackets, empty where Korean is more than a
/// note or the line shows a mistake.
QString spokenText(const QString& line);

/// The part of a line that shows how not to write: "틀림: He go.", "with she (X)", "a milk라고 하지
/// 않습니다". Empty where there is none.
struct Mistake {
    qsizetype start = 0;
    qsizetype length = 0;
};
Mistake mistakeIn(const QString& line);

/// Takes the tips apart; empty lines divide blocks.
std::vector<SlideLine> slideLines(const QString& tips);

/// Lays lines out on slides of `room` pixels: blocks stay whole where they can, and examples stay with what
/// they are examples of. `height` tells what a line takes, `gap` what stands between blocks.
std::vector<Slide> layOutSlides(const std::vector<SlideLine>& lines, int room, int gap,
                                const std::function<int(const SlideLine&)>& height);

/// What the title shows of the lesson: its first rule, and the example that goes with it. Either may be
/// empty.
struct TitleRule {
    SlideLine rule;
    SlideLine example;
};
TitleRule titleRule(const QString& tips);

/// One picture of the video and how long it stands.
struct Shot {
    int slide = -1;  // -1 for the title
    int line = -1;   // the lit line; -1 for none
    QString spoken;
    Voice voice = Voice::Korean;
    double reading = 0.0;  // seconds that the line takes to read where nobody says it
    double speech = 0.0;   // seconds that the spoken line takes
    double seconds = 0.0;  // as timed
};

/// The pictures of a video in their order: the title, and each line of each slide as it is said.
std::vector<Shot> shotsOf(const VideoText& text, const std::vector<Slide>& slides);

/// A video's length in seconds, where speech alone is not longer.
inline constexpr double longestVideo = 180.0;

/// Sets how long each shot stands, from its speech, or its reading time where it has no voice. Pauses give
/// way so that the whole keeps its bound.
void timeShots(std::vector<Shot>& shots);

}  // namespace tools
