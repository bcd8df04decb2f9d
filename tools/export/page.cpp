#include "tools/export/page.h"

#include "platform/desktop/look.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace tools {

namespace {

// Everything is laid out in points on a page of A4.
constexpr double pointsPerInch = 72;
constexpr double margin = 42;
constexpr double pictureTop = 96;
constexpr double pictureHeight = 190;
constexpr double rowHeight = 15.5;
constexpr double headHeight = 20;
constexpr double footHeight = 18;
constexpr double plainTop = 74;
constexpr double tableGap = 16;

constexpr QRgb faint = 0xffe9e4d8;
constexpr QRgb band = 0xfff6f3ec;
constexpr QRgb barColour = 0xff9fc4c6;
constexpr QRgb grey = 0xff6b6b6b;
constexpr QRgb warm = 0xffb4541e;

enum class Alignment { Left, Right, Centre };

struct ColumnShape {
    const char* title;
    double width;
    Alignment alignment;
};

// Step, unit, place in the unit, a gap, kind, title, spelling, matching, word part, score, date.
constexpr std::array columns{
    ColumnShape{"단계", 34, Alignment::Right},    ColumnShape{"단원", 34, Alignment::Right},
    ColumnShape{"Unit No", 44, Alignment::Right}, ColumnShape{"", 10, Alignment::Left},
    ColumnShape{"종류", 42, Alignment::Left},     ColumnShape{"제목", 123, Alignment::Left},
    ColumnShape{"철자", 36, Alignment::Right},    ColumnShape{"짝맞추기", 46, Alignment::Right},
    ColumnShape{"단어", 36, Alignment::Right},    ColumnShape{"점수", 46, Alignment::Right},
    ColumnShape{"날짜", 60, Alignment::Right},
};

QFont pageFont(double size, bool bold = false) {
    QFont font = platform::roleFont(platform::TextRole::Body, 1.0);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(size * 100))));
    font.setBold(bold);
    return font;
}

/// Draws a text in hundredths of a point, so that fonts keep their fractions of a point.
void drawText(QPainter& painter, const QRectF& place, Alignment alignment, const QString& text, double size,
              QRgb colour, bool bold = false) {
    painter.save();
    painter.setFont(pageFont(size, bold));
    painter.setPen(QColor::fromRgb(colour));
    painter.scale(0.01, 0.01);
    const QRectF large(place.topLeft() * 100, place.size() * 100);
    const int side = alignment == Alignment::Left    ? Qt::AlignLeft
                     : alignment == Alignment::Right ? Qt::AlignRight
                                                     : Qt::AlignHCenter;
    const QString shown = QFontMetricsF(painter.font()).elidedText(text, Qt::ElideRight, large.width());
    painter.drawText(large, side | Qt::AlignVCenter | Qt::TextSingleLine, shown);
    painter.restore();
}

QString scoreText(double score) {
    return QString::number(std::round(score * 10) / 10);
}

/// Prints the pages of one learner.
class LearnerPages {
   public:
    LearnerPages(QPagedPaintDevice& device, QPainter& painter, const LearnerScores& learner)
        : device_(device), painter_(painter), learner_(learner) {
        const QSizeF size = device.pageLayout().fullRect(QPageLayout::Point).size();
        width_ = size.width() - 2 * margin;
        height_ = size.height();
    }

    int print();

   private:
    int roomBelow(double top) const {
        return static_cast<int>((height_ - margin - footHeight - top - headHeight) / rowHeight);
    }
    void head(int page, int pages);
    void summary();
    void tableHead(double top);
    void row(const StepScore& step, double top, bool striped);
    QRectF line(double top, double height) const { return {margin, top, width_, height}; }

    QPagedPaintDevice& device_;
    QPainter& painter_;
    const LearnerScores& learner_;
    double width_;
    double height_;
};

void LearnerPages::head(int page, int pages) {
    const QString who = learner_.name.isEmpty()
                            ? learner_.studentNo
                            : QStringLiteral("%1 (%2)").arg(learner_.name, learner_.studentNo);
    drawText(painter_, line(margin - 6, 22), Alignment::Left, who, 15, platform::colour::accent, true);
    drawText(painter_, line(margin - 6, 22), Alignment::Right, learner_.program, 10, grey);
    painter_.setPen(QPen(QColor::fromRgb(platform::colour::accent), 1));
    painter_.drawLine(QPointF(margin, margin + 20), QPointF(margin + width_, margin + 20));
    drawText(painter_, line(height_ - margin - 8, footHeight), Alignment::Right,
             QStringLiteral("%1 / %2").arg(page).arg(pages), 9, grey);
}

void LearnerPages::summary() {
    const int course = learner_.courseSteps();
    QString text = course > 0 ? QStringLiteral("마친 단계 %1 / %2").arg(learner_.finished()).arg(course)
                              : QStringLiteral("마친 단계 %1").arg(learner_.finished());
    text += QStringLiteral("     평균 점수 %1").arg(scoreText(learner_.average()));
    const auto begun = static_cast<int>(learner_.steps.size()) - learner_.finished();
    if (begun > 0)
        text += QStringLiteral("     시작만 한 단계 %1").arg(begun);
    drawText(painter_, line(margin + 26, 20), Alignment::Left, text, 11, platform::colour::black);
    drawText(painter_, line(margin + 26, 20), Alignment::Right,
             QStringLiteral("마지막 학습일 %1").arg(learner_.lastDate.left(10)), 10, grey);
}

void LearnerPages::tableHead(double top) {
    double left = margin;
    for (const ColumnShape& column : columns) {
        drawText(painter_, {left + 3, top, column.width - 6, headHeight - 4}, column.alignment,
                 QString::fromUtf8(column.title), 9, platform::colour::accent, true);
        left += column.width;
    }
    painter_.setPen(QPen(QColor::fromRgb(platform::colour::accent), 0.6));
    painter_.drawLine(QPointF(margin, top + headHeight - 3), QPointF(margin + width_, top + headHeight - 3));
}

void LearnerPages::row(const StepScore& step, double top, bool striped) {
    if (striped)
        painter_.fillRect(line(top, rowHeight), QColor::fromRgb(band));
    const bool unfinished = step.unfinished();
    const std::array texts{QString::number(step.step),
                           QString::number(step.unit),
                           QString::number(step.place),
                           QString(),
                           step.kind,
                           step.title,
                           step.spelling,
                           step.matching,
                           step.words,
                           unfinished ? QStringLiteral("시작함") : step.main,
                           step.date.left(10)};
    static_assert(std::tuple_size_v<decltype(texts)> == columns.size());
    double left = margin;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const bool score = i + 2 == columns.size();
        // A step without words says so in each of three columns; a dash is read faster.
        const QString shown = texts[i] == QStringLiteral("N/A") ? QStringLiteral("–") : texts[i];
        drawText(painter_, {left + 3, top, columns[i].width - 6, rowHeight}, columns[i].alignment, shown, 9,
                 score && unfinished ? warm : platform::colour::black, score && !unfinished);
        left += columns[i].width;
    }
}

int LearnerPages::print() {
    const double firstTable = pictureTop + pictureHeight + tableGap;
    const std::vector<int> pages =
        rowsOnPages(static_cast<int>(learner_.steps.size()), roomBelow(firstTable), roomBelow(plainTop));
    auto step = learner_.steps.begin();
    for (std::size_t page = 0; page < pages.size(); ++page) {
        if (page > 0)
            device_.newPage();
        head(static_cast<int>(page) + 1, static_cast<int>(pages.size()));
        double top = page == 0 ? firstTable : plainTop;
        if (page == 0) {
            summary();
            paintUnits(painter_, line(pictureTop, pictureHeight), learner_);
        }
        tableHead(top);
        top += headHeight;
        for (int i = 0; i < pages[page]; ++i, ++step, top += rowHeight)
            row(*step, top, i % 2 == 1);
    }
    return static_cast<int>(pages.size());
}

/// Lines at 0, 25, 50, 75 and 100 with their numbers.
void paintScale(QPainter& painter, const QRectF& field) {
    for (int score = 0; score <= 100; score += 25) {
        const double y = field.bottom() - field.height() * score / 100;
        painter.setPen(QPen(QColor::fromRgb(score == 0 ? grey : faint), score == 0 ? 0.8 : 0.6));
        painter.drawLine(QPointF(field.left(), y), QPointF(field.right(), y));
        drawText(painter, {field.left() - 30, y - 6, 25, 12}, Alignment::Right, QString::number(score), 8,
                 grey);
    }
}

void paintDot(QPainter& painter, const QRectF& slot, double share, const StepScore& step) {
    const double score = std::clamp(step.mainScore().value_or(0), 0.0, 100.0);
    const QPointF centre(slot.left() + slot.width() * share, slot.bottom() - slot.height() * score / 100);
    const bool open = step.unfinished();
    painter.setPen(QPen(QColor::fromRgb(open ? warm : platform::colour::accent), open ? 1.0 : 0.0));
    painter.setBrush(open ? QColor::fromRgb(platform::colour::white)
                          : QColor::fromRgb(platform::colour::accent));
    painter.drawEllipse(centre, 1.6, 1.6);
}

void paintUnit(QPainter& painter, const QRectF& slot, const UnitScore& unit, const LearnerScores& learner) {
    const double gap = slot.width() * 0.16;
    if (unit.finished > 0) {
        const double height = slot.height() * std::clamp(unit.average, 0.0, 100.0) / 100;
        painter.fillRect(QRectF(slot.left() + gap, slot.bottom() - height, slot.width() - 2 * gap, height),
                         QColor::fromRgb(barColour));
    }
    std::vector<const StepScore*> steps;
    for (const StepScore& step : learner.steps)
        if (step.unit == unit.unit)
            steps.push_back(&step);
    for (std::size_t i = 0; i < steps.size(); ++i)
        paintDot(painter, slot,
                 0.2 + 0.6 * (static_cast<double>(i) + 0.5) / static_cast<double>(steps.size()), *steps[i]);
    drawText(painter, {slot.left(), slot.bottom() + 3, slot.width(), 11}, Alignment::Centre,
             QString::number(unit.unit), 9, platform::colour::black, true);
    const QString share = unit.steps > 0 ? QStringLiteral("%1/%2").arg(unit.finished).arg(unit.steps)
                                         : QString::number(unit.finished);
    drawText(painter, {slot.left() - 2, slot.bottom() + 14, slot.width() + 4, 10}, Alignment::Centre, share,
             6.5, grey);
}

}  // namespace

std::vector<int> rowsOnPages(int rows, int firstPage, int otherPages) {
    std::vector<int> pages{std::min(rows, firstPage)};
    for (int left = rows - pages.front(); left > 0; left -= pages.back())
        pages.push_back(std::min(left, otherPages));
    return pages;
}

void paintUnits(QPainter& painter, const QRectF& place, const LearnerScores& learner) {
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF field = place.adjusted(30, 8, 0, -40);
    paintScale(painter, field);
    const double width = field.width() / static_cast<double>(std::max<std::size_t>(1, learner.units.size()));
    for (std::size_t i = 0; i < learner.units.size(); ++i)
        paintUnit(painter,
                  {field.left() + width * static_cast<double>(i), field.top(), width, field.height()},
                  learner.units[i], learner);
    drawText(painter, {place.left(), place.bottom() - 13, place.width(), 12}, Alignment::Left,
             QStringLiteral("가로: 단원과 마친 단계 수   세로: 점수   막대: 단원 평균   점: 단계 하나   빈 "
                            "점: 시작만 한 단계"),
             8, grey);
}

int printScores(QPagedPaintDevice& device, const std::vector<LearnerScores>& learners) {
    QPainter painter;
    if (!painter.begin(&device))
        return 0;
    const double scale = device.logicalDpiX() / pointsPerInch;
    painter.scale(scale, scale);
    int pages = 0;
    for (const LearnerScores& learner : learners) {
        if (pages > 0)
            device.newPage();
        pages += LearnerPages(device, painter, learner).print();
    }
    return pages;
}

}  // namespace tools
