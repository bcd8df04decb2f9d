#include "platform/reports/block.h"

#include <algorithm>

namespace platform {

namespace {

constexpr double titleBaseLine = millimetres(7);
constexpr double headRule = millimetres(9.6);
constexpr double lineBaseLine = millimetres(18);
constexpr double headEnd = millimetres(21.5);
constexpr double guideMarkWidth = millimetres(1.2);
constexpr double bankPadding = millimetres(3);

/// The lines for name and date, side by side over the width.
void addLines(ReportBlock& block, const ReportTemplate& report, const ReportData& data, double width) {
    const ReportStyle style{report.sizes.line, false};
    const double gap = millimetres(6);
    double shares = 0;
    for (const ReportLine& line : report.lines)
        shares += line.share;
    const double room = width - gap * (static_cast<double>(report.lines.size()) - 1);
    double left = 0;
    for (const ReportLine& line : report.lines) {
        const double share = shares > 0 ? room * line.share / shares : 0;
        const QString label = filledText(line.label, data, {});
        addText(block, PieceRole::LineLabel, left, lineBaseLine, label, style);
        const double ruleLeft = left + textWidth(label, style) + millimetres(2);
        addShape(block, PieceRole::LineRule,
                 QRectF(ruleLeft, lineBaseLine + millimetres(1.2), left + share - ruleLeft, 0));
        if (const QString text = filledText(line.text, data, {}); !text.isEmpty())
            addText(block, PieceRole::LineText, ruleLeft + millimetres(3), lineBaseLine, text,
                    {report.sizes.line, true});
        left += share + gap;
    }
}

void addGuide(ReportBlock& block, const QString& guide, const ReportStyle& style, double width) {
    if (guide.isEmpty())
        return;
    const double indent = millimetres(4);
    const double pitch = pointsOnPage(style.points) * 1.55;
    const auto lines = flowLines(flowWords(guide, {style.points, style.points, style.bold}), width - indent);
    const double top = block.height + millimetres(1.5);
    double baseLine = top;
    for (const FlowLine& line : lines) {
        baseLine += pitch;
        for (const FlowBit& bit : line.bits)
            addText(block, PieceRole::Guide, indent + bit.left, baseLine - pitch * 0.27, bit.text, bit.style);
    }
    addShape(block, PieceRole::GuideMark, QRectF(0, top, guideMarkWidth, baseLine - top));
    block.height = baseLine + millimetres(2);
}

/// The words of the bank in even columns inside a frame.
void addBank(ReportBlock& block, const ReportTemplate& report, const ReportData& data, double width) {
    std::vector<QString> words;
    for (const ReportText& word : report.bank.words)
        if (const QString text = filledText(word, data, {}); !text.isEmpty())
            words.push_back(text);
    if (words.empty())
        return;
    if (report.bank.sorted)
        std::sort(words.begin(), words.end(),
                  [](const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) < 0; });
    const ReportStyle style{report.sizes.bank, true};
    const QString title = filledText(report.bank.title, data, {});
    const ReportStyle titleStyle{report.sizes.korean, true};
    const double titleWidth = title.isEmpty() ? 0 : textWidth(title, titleStyle) + millimetres(7);
    const double room = width - 2 * bankPadding - titleWidth;
    double widest = 0;
    for (const QString& word : words)
        widest = std::max(widest, textWidth(word, style));
    const int count = static_cast<int>(words.size());
    const int most = std::clamp(static_cast<int>(room / (widest + millimetres(7))), 1, count);
    const int rows = (count + most - 1) / most;
    const int columns = (count + rows - 1) / rows;
    const double pitch = pointsOnPage(style.points) * 1.75;
    const double top = block.height + millimetres(1);
    const double height = rows * pitch + 2 * millimetres(1.8);
    addShape(block, PieceRole::BankFrame, QRectF(0, top, width, height));
    if (!title.isEmpty())
        addText(block, PieceRole::BankTitle, bankPadding,
                top + height / 2 + pointsOnPage(titleStyle.points) * 0.36, title, titleStyle);
    for (int i = 0; i < count; ++i) {
        const double cell = room / columns;
        const int row = i / columns;
        const double middle = bankPadding + titleWidth + cell * (i % columns + 0.5);
        const double baseLine = top + millimetres(1.8) + pitch * (row + 0.68);
        addText(block, PieceRole::BankWord, middle - textWidth(words[i], style) / 2, baseLine, words[i],
                style);
    }
    block.height = top + height + millimetres(3);
}

void addBadge(ReportBlock& block, const QString& text, double left, const ReportStyle& style) {
    const double padding = millimetres(2.4);
    addShape(block, PieceRole::BadgeFrame,
             QRectF(left, millimetres(1.4), textWidth(text, style) + 2 * padding, millimetres(6.6)));
    addText(block, PieceRole::Badge, left + padding, titleBaseLine - millimetres(0.9), text, style);
}

}  // namespace

void addText(ReportBlock& block, PieceRole role, double left, double baseLine, const QString& text,
             const ReportStyle& style) {
    const double height = pointsOnPage(style.points);
    block.pieces.push_back(
        {role, QRectF(left, baseLine - height, textWidth(text, style), height), text, style, -1, -1});
}

void addShape(ReportBlock& block, PieceRole role, const QRectF& place) {
    block.pieces.push_back({role, place, {}, {}, -1, -1});
}

void placeBlock(const ReportBlock& block, double left, double top, ReportPage& page) {
    for (ReportPiece piece : block.pieces) {
        piece.place.translate(left, top);
        page.pieces.push_back(std::move(piece));
    }
}

ReportBlock headBlock(const ReportTemplate& report, const ReportData& data, double width) {
    ReportBlock block;
    const ReportStyle titleStyle{report.sizes.title, true};
    const QString title = filledText(report.title, data, {});
    addText(block, PieceRole::Title, 0, titleBaseLine, title, titleStyle);
    if (report.key && !report.badge.isEmpty())
        addBadge(block, filledText(report.badge, data, {}), textWidth(title, titleStyle) + millimetres(5),
                 {report.sizes.heading, true});
    const ReportStyle headingStyle{report.sizes.heading, true};
    const QString heading = filledText(report.heading, data, {});
    addText(block, PieceRole::Heading, width - textWidth(heading, headingStyle), titleBaseLine, heading,
            headingStyle);
    addShape(block, PieceRole::HeadRule, QRectF(0, headRule, width, 0));
    block.height = headRule + millimetres(3);
    if (!report.lines.empty()) {
        addLines(block, report, data, width);
        block.height = headEnd;
    }
    addGuide(block, filledText(report.guide, data, {}), {report.sizes.guide, true}, width);
    addBank(block, report, data, width);
    block.height += millimetres(1);
    return block;
}

ReportBlock groupBlock(const ReportTemplate& report, const QString& text, double width) {
    ReportBlock block;
    const ReportStyle style{report.sizes.group, true};
    const double pitch = pointsOnPage(style.points) * 1.5;
    double baseLine = millimetres(1);
    for (const FlowLine& line : flowLines(flowWords(text, {style.points, style.points, style.bold}), width)) {
        baseLine += pitch;
        for (const FlowBit& bit : line.bits)
            addText(block, PieceRole::GroupHead, bit.left, baseLine - pitch * 0.25, bit.text, bit.style);
    }
    addShape(block, PieceRole::GroupRule, QRectF(0, baseLine + millimetres(0.8), width, 0));
    block.height = baseLine + millimetres(3);
    return block;
}

}  // namespace platform
