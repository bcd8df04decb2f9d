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

/// The sizes of a text that may hold both scripts: Hangul looks larger than Latin letters of the same size.
struct TextSizes {
    double english = 12;
    double korean = 12;
    bool bold = false;

    ReportStyle styleOf(const QString& word) const;
};

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
std::vector<FlowWord> flowWords(const QString& text, const TextSizes& sizes, double blankWidth,
                                int& firstBlank);
/// The same for a text that has no blanks to write on.
std::vector<FlowWord> flowWords(const QString& text, const TextSizes& sizes);
/// A text that stays in one piece wherever it fits into a line.
std::vector<FlowWord> flowWhole(const QString& text, const TextSizes& sizes, double lineWidth);
/// Keeps words in brackets together where they are no wider than `most`.
std::vector<FlowWord> keepBrackets(const std::vector<FlowWord>& words, double most);
/// How wide the words are on one line.
double flowWidth(const std::vector<FlowWord>& words);

/// Breaks words into lines of a width. A word too wide for any line is cut between letters.
std::vector<FlowLine> flowLines(const std::vector<FlowWord>& words, double lineWidth);

}  // namespace platform
