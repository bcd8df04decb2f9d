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

/// Korean explains, examples are English and spoken, headings number a short point.
enum class LineKind { Heading, Korean, Example };

struct SlideLine {
    LineKind kind = LineKind::Korean;
    QString text;
    QString spoken;            // what is said while the line is lit; empty for silence
    bool startsBlock = false;  // an empty line stands before it
};

using Slide = std::vector<SlideLine>;

/// What is said of a line: its English without Korean notes in brackets, empty where Korean is more than a
/// note or the line shows a mistake.
QString spokenText(const QString& line);

/// Takes the tips apart; empty lines divide blocks.
std::vector<SlideLine> slideLines(const QString& tips);

/// Lays lines out on slides of `room` pixels: blocks stay whole where they can, and examples stay with what
/// they are examples of. `height` tells what a line takes, `gap` what stands between blocks.
std::vector<Slide> layOutSlides(const std::vector<SlideLine>& lines, int room, int gap,
                                const std::function<int(const SlideLine&)>& height);

/// One picture of the video and how long it stands.
struct Shot {
    int slide = -1;  // -1 for the title
    int line = -1;   // the lit line; -1 for none
    QString spoken;
    double reading = 0.0;  // seconds that silent text takes at an easy pace
    double speech = 0.0;   // seconds that the spoken line takes
    double seconds = 0.0;  // as timed
};

/// The pictures of a video in their order, each slide's text before the examples that follow it.
std::vector<Shot> shotsOf(const std::vector<Slide>& slides);

/// Bounds of a video's length in seconds.
inline constexpr double shortestVideo = 40.0;
inline constexpr double longestVideo = 120.0;

/// Sets how long each shot stands, from its reading time and the length of its speech. Reading times give
/// way so that the whole keeps the bounds; only where the speech alone is too long is it longer.
void timeShots(std::vector<Shot>& shots);

}  // namespace tools
