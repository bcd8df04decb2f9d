#include "platform/reports/flow.h"

#include "platform/desktop/look.h"
#include "platform/reports/answers.h"

#include <QFontMetricsF>

#include <algorithm>
#include <map>

namespace platform {

namespace {

constexpr double slack = 1.0;

double spaceWidth(const ReportStyle& style) {
    return textWidth(QStringLiteral(" "), style);
}

void append(FlowLine& line, const FlowBit& bit, double left) {
    FlowBit placed = bit;
    placed.left = left;
    line.bits.push_back(placed);
    line.width = left + bit.width;
}

/// How many letters of the text fit into a width, at least one.
qsizetype lettersThatFit(const QString& text, const ReportStyle& style, double width) {
    qsizetype least = 1;
    qsizetype most = text.size();
    while (least < most) {
        const qsizetype middle = (least + most + 1) / 2;
        if (textWidth(text.left(middle), style) <= width)
            least = middle;
        else
            most = middle - 1;
    }
    return least;
}

/// A word wider than a line, cut into pieces that are not.
std::vector<FlowWord> cutWord(const FlowWord& word, double width) {
    std::vector<FlowWord> pieces;
    for (const FlowBit& bit : word.bits) {
        QString rest = bit.text;
        if (bit.blank >= 0) {
            FlowBit narrowed = bit;
            narrowed.width = std::min(bit.width, width);
            pieces.push_back({{narrowed}, narrowed.width, 0});
            continue;
        }
        while (!rest.isEmpty()) {
            const qsizetype count = lettersThatFit(rest, bit.style, width);
            FlowBit piece = bit;
            piece.text = rest.left(count);
            piece.width = textWidth(piece.text, bit.style);
            pieces.push_back({{piece}, piece.width, 0});
            rest = rest.mid(count);
        }
    }
    pieces.back().spaceAfter = word.spaceAfter;
    return pieces;
}

/// Words as one that is not broken, the spaces between them part of its texts.
FlowWord glued(std::vector<FlowWord>::const_iterator first, std::vector<FlowWord>::const_iterator end) {
    FlowWord whole = *first;
    for (auto word = first + 1; word != end; ++word) {
        FlowBit& last = whole.bits.back();
        last.text += QString(qRound(whole.spaceAfter / spaceWidth(last.style)), u' ');
        last.width += whole.spaceAfter;
        whole.bits.insert(whole.bits.end(), word->bits.begin(), word->bits.end());
        whole.width += whole.spaceAfter + word->width;
        whole.spaceAfter = word->spaceAfter;
    }
    return whole;
}

/// Joins neighbouring texts of one style, the spaces between them included.
void joinTexts(FlowLine& line) {
    std::vector<FlowBit> joined;
    for (const FlowBit& bit : line.bits) {
        const bool follows =
            !joined.empty() && joined.back().blank < 0 && bit.blank < 0 && joined.back().style == bit.style;
        if (!follows) {
            joined.push_back(bit);
            continue;
        }
        FlowBit& last = joined.back();
        const double gap = bit.left - last.left - last.width;
        last.text += QString(qRound(gap / spaceWidth(bit.style)), u' ') + bit.text;
        last.width = bit.left + bit.width - last.left;
    }
    line.bits = std::move(joined);
}

}  // namespace

QFont reportFont(const ReportStyle& style) {
    QFont font = roleFont(TextRole::Body, 1.0);
    font.setPixelSize(std::max(1, qRound(pointsOnPage(style.points))));
    font.setBold(style.bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

double textWidth(const QString& text, const ReportStyle& style) {
    // Never destroyed: font metrics must not outlive the application that draws with them.
    static auto& kept = *new std::map<std::pair<int, bool>, QFontMetricsF>;
    const std::pair<int, bool> size(qRound(pointsOnPage(style.points)), style.bold);
    auto metrics = kept.find(size);
    if (metrics == kept.end())
        metrics = kept.emplace(size, QFontMetricsF(reportFont(style))).first;
    return metrics->second.horizontalAdvance(text);
}

ReportStyle TextSizes::styleOf(const QString& word) const {
    const bool hangul = std::any_of(word.begin(), word.end(),
                                    [](QChar letter) { return letter.script() == QChar::Script_Hangul; });
    return {hangul ? korean : english, bold};
}

bool FlowLine::hasBlank() const {
    return std::any_of(bits.begin(), bits.end(), [](const FlowBit& bit) { return bit.blank >= 0; });
}

std::vector<FlowWord> flowWords(const QString& text, const TextSizes& sizes, double blankWidth,
                                int& firstBlank) {
    std::vector<FlowWord> words;
    FlowWord word;
    const auto add = [&word](FlowBit bit) {
        word.width += bit.width;
        word.bits.push_back(std::move(bit));
    };
    const auto end = [&] {
        if (!word.bits.empty())
            words.push_back(word);
        word = {};
        if (!words.empty())
            words.back().spaceAfter += spaceWidth(words.back().bits.back().style);
    };
    for (const ReportStretch& stretch : cutAtBlanks(text)) {
        if (stretch.blank) {
            add({{}, {sizes.english, sizes.bold}, firstBlank++, 0, blankWidth});
            continue;
        }
        const QStringList parts = stretch.text.split(u' ');
        for (qsizetype i = 0; i < parts.size(); ++i) {
            if (i > 0)
                end();
            const ReportStyle style = sizes.styleOf(parts[i]);
            if (!parts[i].isEmpty())
                add({parts[i], style, -1, 0, textWidth(parts[i], style)});
        }
    }
    end();
    if (!words.empty())
        words.back().spaceAfter = 0;
    return words;
}

std::vector<FlowWord> flowWords(const QString& text, const TextSizes& sizes) {
    int none = 0;
    return flowWords(text, sizes, 0, none);
}

double flowWidth(const std::vector<FlowWord>& words) {
    double width = 0;
    for (const FlowWord& word : words)
        width += word.width + word.spaceAfter;
    return width;
}

std::vector<FlowWord> flowWhole(const QString& text, const TextSizes& sizes, double lineWidth) {
    const auto words = flowWords(text, sizes);
    if (words.empty() || flowWidth(words) > lineWidth)
        return words;
    return {glued(words.begin(), words.end())};
}

std::vector<FlowWord> keepBrackets(const std::vector<FlowWord>& words, double most) {
    std::vector<FlowWord> kept;
    for (auto word = words.begin(); word != words.end(); ++word) {
        auto end = word + 1;
        if (word->bits.front().text.startsWith(u'(') && !word->bits.back().text.contains(u')')) {
            const auto closing = std::find_if(
                end, words.end(), [](const FlowWord& w) { return w.bits.back().text.contains(u')'); });
            if (closing != words.end() && glued(word, closing + 1).width <= most)
                end = closing + 1;
        }
        kept.push_back(glued(word, end));
        word = end - 1;
    }
    return kept;
}

std::vector<FlowLine> flowLines(const std::vector<FlowWord>& words, double lineWidth) {
    std::vector<FlowLine> lines(1);
    double next = 0;
    const auto place = [&](const FlowWord& word) {
        if (next > 0 && next + word.width > lineWidth + slack) {
            lines.emplace_back();
            next = 0;
        }
        for (const FlowBit& bit : word.bits) {
            append(lines.back(), bit, next);
            next += bit.width;
        }
        next += word.spaceAfter;
    };
    for (const FlowWord& word : words) {
        if (word.width <= lineWidth) {
            place(word);
            continue;
        }
        for (const FlowWord& piece : cutWord(word, lineWidth))
            place(piece);
    }
    for (FlowLine& line : lines)
        joinTexts(line);
    return lines;
}

}  // namespace platform
