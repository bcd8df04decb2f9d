#pragma once

#include <QFont>
#include <QString>

#include <vector>

namespace platform {

/// Reports are laid out in hundredths of a millimetre, whatever device shows them afterwards.
inline constexpr double reportUnitsPerMillimetre = 100.0;
constexpr double millimetres(double length) {
    return length * reportUnitsPerMillimetre;
}
/// A size in points as a length on the page.
constexpr double pointsOnPage(double points) {
    return points * reportUnitsPerMillimetre * 25.4 / 72.0;
}

/// How a text of a report is set.
struct ReportStyle {
    double points = 11;
    bool bold = false;

    bool operator==(const ReportStyle&) const = default;
};

/// The font of a style, its pixel being one unit of the page.
QFont reportFont(const ReportStyle& style);
double textWidth(const QString& text, const ReportStyle& style);

/// Whether a text is Korean in the main. Hangul looks larger than Latin letters of the same size.
bool isKorean(const QString& text);

/// Something in a line that is not broken: text of one style, or a blank.
struct FlowBit {
    QString text;
    ReportStyle style;
    int blank = -1;  // number of the blank, -1 for text
    double left = 0;
    double width = 0;
};

/// Bits that stay together, and the room that follows them.
struct FlowWord {
    std::vector<FlowBit> bits;
    double width = 0;
    double spaceAfter = 0;
};

struct FlowLine {
    std::vector<FlowBit> bits;
    double width = 0;
    bool hasBlank() const;
};

/// Cuts a text into words and blanks of a fixed width, which are numbered on from `firstBlank`. Wide spaces
/// between words stay wide.
std::vector<FlowWord> flowWords(const QString& text, const ReportStyle& style, double blankWidth,
                                int& firstBlank);
/// A text that stays in one piece wherever it fits into a line.
std::vector<FlowWord> flowWhole(const QString& text, const ReportStyle& style, double lineWidth);

/// Breaks words into lines of a width. A word too wide for any line is cut between letters.
std::vector<FlowLine> flowLines(const std::vector<FlowWord>& words, double lineWidth);

}  // namespace platform
