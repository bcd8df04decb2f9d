#pragma once

#include "platform/reports/layout.h"

#include <QStringList>

namespace support {

inline platform::ReportText text(const char* written) {
    return {QString::fromUtf8(written), QStringLiteral("test.rpt"), 1};
}

/// A sheet with one question a row.
inline platform::ReportTemplate oneColumn() {
    platform::ReportTemplate report;
    report.title = text("Sheet");
    report.guide = text("빈칸을 채우십시오.");
    report.foot = text("{page} / {pages}");
    report.items.resize(1);
    report.items[0].prompts = {text("{q}")};
    report.items[0].answers = {text("{a}"), text("{b}")};
    return report;
}

inline platform::ReportRow question(const QString& q, const QString& a, const QString& b = {}) {
    return {{QStringLiteral("q"), q}, {QStringLiteral("a"), a}, {QStringLiteral("b"), b}};
}

inline platform::ReportData questions(int count, const QString& q = QStringLiteral("It is ____ today."),
                                      const QString& a = QStringLiteral("sunny")) {
    platform::ReportData data;
    for (int i = 0; i < count; ++i)
        data.rows.push_back(question(q, a));
    return data;
}

inline std::vector<platform::ReportPiece> pieces(const platform::ReportLayout& layout,
                                                 platform::PieceRole role) {
    std::vector<platform::ReportPiece> found;
    for (const auto& page : layout.pages)
        for (const platform::ReportPiece& piece : page.pieces)
            if (piece.role == role)
                found.push_back(piece);
    return found;
}

inline QStringList texts(const platform::ReportLayout& layout, platform::PieceRole role) {
    QStringList found;
    for (const platform::ReportPiece& piece : pieces(layout, role))
        found.append(piece.text);
    return found;
}

}  // namespace support
