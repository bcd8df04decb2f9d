#pragma once

#include "tools/media/slides.h"

#include <QFont>
#include <QImage>

class QPainter;

namespace tools {

inline constexpr QSize slideSize(640, 480);

/// Draws slides in the look of the course.
class SlidePainter {
   public:
    SlidePainter();

    /// The slides that the tips of a video fill.
    std::vector<Slide> layOut(const VideoText& text) const;
    QImage paintTitle(const VideoText& text, const TitleRule& rule) const;
    /// A slide, with one of its lines lit; `number` counts from 1.
    QImage paint(const VideoText& text, const Slide& slide, int number, int count, int litLine) const;

   private:
    struct Run {
        QString text;
        bool latin = false;
        bool wrong = false;
    };
    using Word = std::vector<Run>;
    using Row = std::vector<Word>;

    const QFont& fontOf(LineKind kind, bool latin) const;
    double width(const Word& word, LineKind kind) const;
    std::vector<Row> wrap(const SlideLine& line) const;
    int lineHeight(const SlideLine& line) const;
    int slideHeight(const Slide& slide) const;
    void paintLine(QPainter& painter, const SlideLine& line, int top, bool lit) const;
    void paintRow(QPainter& painter, const Row& row, LineKind kind, double left, int top) const;
    QRgb inkOf(const Run& run, LineKind kind) const;
    void paintHeader(QPainter& painter, const VideoText& text, int number, int count) const;

    QFont body_;
    QFont heading_;
    QFont example_;
    QFont note_;
};

}  // namespace tools
