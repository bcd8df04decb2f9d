#include "tools/import/report.h"

#include <algorithm>
#include <array>

namespace tools {

namespace {

constexpr std::size_t columnCount = 6;
using Line = std::array<QString, columnCount>;

QString verdict(const TableProof& proof) {
    if (proof.leftOut)
        return QStringLiteral("LEFT OUT");
    if (!proof.proven())
        return QStringLiteral("DIFFERENT");
    return proof.problems > 0 ? QStringLiteral("DAMAGED") : QStringLiteral("same");
}

Line lineOf(const TableProof& proof) {
    return {proof.table,
            QString::number(proof.sourceRows),
            proof.leftOut ? QString() : QString::number(proof.copyRows),
            proof.sourceSum,
            proof.copySum,
            verdict(proof)};
}

}  // namespace

QString proofTable(const std::vector<TableProof>& tables) {
    std::vector<Line> lines{{QStringLiteral("table"), QStringLiteral("rows"), QStringLiteral("copied"),
                             QStringLiteral("checksum"), QStringLiteral("of the copy"), QString()}};
    std::transform(tables.begin(), tables.end(), std::back_inserter(lines), lineOf);
    std::array<qsizetype, columnCount> widths{};
    for (const Line& line : lines)
        for (std::size_t i = 0; i < columnCount; ++i)
            widths[i] = std::max(widths[i], line[i].size());
    QString text;
    for (const Line& line : lines) {
        QString shown = QStringLiteral("  ");
        for (std::size_t i = 0; i < columnCount; ++i) {
            const bool number = i == 1 || i == 2;
            shown += (number ? line[i].rightJustified(widths[i]) : line[i].leftJustified(widths[i])) +
                     QStringLiteral("  ");
        }
        while (shown.endsWith(u' '))
            shown.chop(1);
        text += shown + u'\n';
    }
    return text;
}

}  // namespace tools
