#include "tools/media/slide_painter.h"

#include "platform/desktop/look.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace tools {

namespace {

constexpr QRgb ground = 0xfff5f1e8;
constexpr QRgb header = 0xfffbf8f2;
constexpr QRgb shade = 0xffebe5d8;
constexpr QRgb example = 0xffeef5f4;
constexpr QRgb exampleLit = 0xffc9e4e1;
constexpr QRgb noteInk = 0xff5a6465;
constexpr QRgb wrongInk = 0xffc62f2f;

constexpr int headerHeight = 54;
constexpr QRect card(20, 70, 600, 394);
constexpr int contentLeft = 44;
constexpr int contentWidth = 552;
constexpr int contentTop = 86;
constexpr int contentRoom = 362;
constexpr int blockGap = 14;
constexpr int rowHeight = 30;
constexpr int lineGap = 6;
constexpr int examplePadding = 12;

QColor ink(QRgb colour) {
    return QColor::fromRgb(colour);
}

QFont slideFont(int pixels, bool bold) {
    QFont font;
    font.setFamilies(
        {QStringLiteral("NanumGothic"), QStringLiteral("Noto Sans CJK KR"), QStringLiteral("sans-serif")});
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

bool isHangul(QChar c) {
    return (c >= QChar(0xac00) && c <= QChar(0xd7a3)) || (c >= QChar(0x1100) && c <= QChar(0x11ff)) ||
           (c >= QChar(0x3130) && c <= QChar(0x318f));
}

bool isLatin(QChar c) {
    return c.unicode() < 0x250 && c.isLetter();
}

QImage blankSlide() {
    QImage image(slideSize, QImage::Format_RGB32);
    image.fill(ground);
    return image;
}

void paintCard(QPainter& painter, const QRect& place) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink(shade));
    painter.drawRoundedRect(place.translated(0, 3), 10, 10);
    painter.setPen(ink(platform::colour::line));
    painter.setBrush(ink(platform::colour::paper));
    painter.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), 10, 10);
}

}  // namespace

SlidePainter::SlidePainter()
    : body_(slideFont(19, false)),
      heading_(slideFont(20, true)),
      example_(slideFont(20, true)),
      note_(slideFont(17, false)) {}

const QFont& SlidePainter::fontOf(LineKind kind, bool latin) const {
    switch (kind) {
        case LineKind::Heading: return heading_;
        case LineKind::Example: return latin ? example_ : note_;
        case LineKind::Korean: break;
    }
    return body_;
}

double SlidePainter::width(const Word& word, LineKind kind) const {
    double sum = 0.0;
    for (const Run& run : word)
        sum += QFontMetricsF(fontOf(kind, run.latin)).horizontalAdvance(run.text);
    return sum;
}

std::vector<SlidePainter::Row> SlidePainter::wrap(const SlideLine& line) const {
    // Korean is broken between words only, as people write it, not between syllables.
    const double room = contentWidth - (line.kind == LineKind::Example ? 2 * examplePadding : 0);
    const double blank =
        QFontMetricsF(fontOf(line.kind, line.kind == LineKind::Example)).horizontalAdvance(u' ');
    std::vector<Row> rows(1);
    double used = 0.0;
    bool latin = line.kind == LineKind::Example;
    const Mistake mistake = mistakeIn(line.text);
    qsizetype place = 0;
    for (const QString& text : line.text.split(u' ')) {
        Word word;
        for (const QChar c : text) {
            const bool wrong = place >= mistake.start && place < mistake.start + mistake.length;
            ++place;
            // Stops and brackets go with the script before them, an opening bracket with Korean notes.
            if (isHangul(c) || (c == u'(' && line.kind == LineKind::Example))
                latin = false;
            else if (isLatin(c))
                latin = true;
            if (word.empty() || word.back().latin != latin || word.back().wrong != wrong)
                word.push_back({QString(), latin, wrong});
            word.back().text += c;
        }
        ++place;
        if (word.empty())
            continue;
        const double wanted = width(word, line.kind);
        if (!rows.back().empty() && used + blank + wanted > room) {
            rows.emplace_back();
            used = 0.0;
        }
        used += wanted + (rows.back().empty() ? 0.0 : blank);
        rows.back().push_back(std::move(word));
    }
    return rows;
}

int SlidePainter::lineHeight(const SlideLine& line) const {
    const int rows = static_cast<int>(wrap(line).size());
    return rows * rowHeight + lineGap + (line.kind == LineKind::Example ? lineGap : 0);
}

std::vector<Slide> SlidePainter::layOut(const VideoText& text) const {
    return layOutSlides(slideLines(text.tips), contentRoom, blockGap,
                        [this](const SlideLine& line) { return lineHeight(line); });
}

int SlidePainter::slideHeight(const Slide& slide) const {
    int sum = 0;
    for (std::size_t i = 0; i < slide.size(); ++i)
        sum += lineHeight(slide[i]) + (slide[i].startsBlock && i > 0 ? blockGap : 0);
    return sum;
}

void SlidePainter::paintHeader(QPainter& painter, const VideoText& text, int number, int count) const {
    painter.fillRect(0, 0, slideSize.width(), headerHeight, ink(header));
    painter.fillRect(0, headerHeight, slideSize.width(), 2, ink(platform::colour::line));
    painter.fillRect(0, headerHeight, slideSize.width() * number / count, 2, ink(platform::colour::accent));
    const QRect place(24, 0, slideSize.width() - 48, headerHeight);
    const QString lesson = QStringLiteral("Lesson %1").arg(text.number);
    painter.setFont(slideFont(16, true));
    painter.setPen(ink(platform::colour::accent));
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, lesson);
    painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter,
                     QStringLiteral("%1 / %2").arg(number).arg(count));
    const int after = painter.fontMetrics().horizontalAdvance(lesson) + 18;
    painter.setFont(slideFont(20, true));
    painter.setPen(Qt::black);
    const QRect title = place.adjusted(after, 0, -72, 0);
    painter.drawText(title, Qt::AlignLeft | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(text.title, Qt::ElideRight, title.width()));
}

void SlidePainter::paintLine(QPainter& painter, const SlideLine& line, int top, bool lit) const {
    const std::vector<Row> rows = wrap(line);
    double left = contentLeft;
    if (line.kind == LineKind::Example) {
        const QRectF pill(contentLeft, top, contentWidth,
                          static_cast<int>(rows.size()) * rowHeight + lineGap);
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink(lit ? exampleLit : example));
        painter.drawRoundedRect(pill, 6, 6);
        if (lit) {
            painter.setBrush(ink(platform::colour::accent));
            painter.drawRoundedRect(QRectF(contentLeft, top, 5, pill.height()), 2.5, 2.5);
        }
        left += examplePadding;
        top += lineGap / 2;
    } else if (lit) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink(platform::colour::accent));
        painter.drawRoundedRect(
            QRectF(contentLeft - 12, top + 3, 5, static_cast<int>(rows.size()) * rowHeight - 6), 2.5, 2.5);
    }
    for (const Row& row : rows) {
        paintRow(painter, row, line.kind, left, top);
        top += rowHeight;
    }
}

QRgb SlidePainter::inkOf(const Run& run, LineKind kind) const {
    if (run.wrong)
        return wrongInk;
    if (kind == LineKind::Heading || (kind == LineKind::Korean && run.latin))
        return platform::colour::accent;
    return kind == LineKind::Example && !run.latin ? noteInk : platform::colour::black;
}

/// Draws the words of a row; what is wrong is crossed out in one stroke.
void SlidePainter::paintRow(QPainter& painter, const Row& row, LineKind kind, double left, int top) const {
    const double blank = QFontMetricsF(fontOf(kind, kind == LineKind::Example)).horizontalAdvance(u' ');
    double x = left;
    double crossedFrom = -1.0;
    double crossedTo = -1.0;
    for (const Word& word : row) {
        for (const Run& run : word) {
            const QFont& font = fontOf(kind, run.latin);
            painter.setFont(font);
            painter.setPen(ink(inkOf(run, kind)));
            painter.drawText(QPointF(x, top + 22), run.text);
            const double end = x + QFontMetricsF(font).horizontalAdvance(run.text);
            if (run.wrong) {
                crossedFrom = crossedFrom < 0.0 ? x : crossedFrom;
                crossedTo = end;
            }
            x = end;
        }
        x += blank;
    }
    if (crossedTo > crossedFrom) {
        painter.setPen(QPen(ink(wrongInk), 2.5, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(crossedFrom - 2, top + 17), QPointF(crossedTo + 2, top + 13));
    }
}

QImage SlidePainter::paint(const VideoText& text, const Slide& slide, int number, int count,
                           int litLine) const {
    QImage image = blankSlide();
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    paintHeader(painter, text, number, count);
    paintCard(painter, card);
    int top = contentTop + std::max(0, contentRoom - slideHeight(slide)) / 3;
    for (std::size_t i = 0; i < slide.size(); ++i) {
        if (slide[i].startsBlock && i > 0)
            top += blockGap;
        paintLine(painter, slide[i], top, static_cast<int>(i) == litLine);
        top += lineHeight(slide[i]);
    }
    return image;
}

QImage SlidePainter::paintTitle(const VideoText& text, const TitleRule& rule) const {
    QImage image = blankSlide();
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setFont(slideFont(16, false));
    painter.setPen(ink(noteInk));
    painter.drawText(QRect(0, 24, slideSize.width(), 30), Qt::AlignCenter,
                     QStringLiteral("Video Grammar Lesson"));
    paintCard(painter, card);
    const QRect place(contentLeft, 0, contentWidth, 0);
    painter.setFont(slideFont(22, true));
    painter.setPen(ink(platform::colour::accent));
    painter.drawText(place.adjusted(0, 98, 0, 130), Qt::AlignLeft | Qt::AlignVCenter,
                     QStringLiteral("Lesson %1").arg(text.number));
    painter.setFont(slideFont(38, true));
    painter.setPen(Qt::black);
    painter.drawText(place.adjusted(0, 134, 0, 190), Qt::AlignLeft | Qt::AlignVCenter, text.title);
    painter.fillRect(contentLeft, 204, 64, 4, ink(platform::colour::accent));
    int top = 232;
    for (const SlideLine* line : {&rule.rule, &rule.example})
        if (!line->text.isEmpty()) {
            paintLine(painter, *line, top, line == &rule.example);
            top += lineHeight(*line) + blockGap;
        }
    return image;
}

}  // namespace tools
