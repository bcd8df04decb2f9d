#pragma once

#include "platform/reports/data.h"
#include "platform/reports/flow.h"

#include <QPageSize>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <vector>

namespace platform {

/// What a piece of a page is for.
enum class PieceRole {
    Title,
    Heading,
    Badge,
    BadgeFrame,
    HeadRule,
    LineLabel,
    LineText,
    LineRule,
    GuideMark,
    Guide,
    BankFrame,
    BankTitle,
    BankWord,
    GroupHead,
    GroupRule,
    Number,
    ItemHead,
    Prompt,
    Blank,
    Answer,
    MaskBox,
    MaskLetter,
    MaskAnswer,
    ColumnRule,
    Foot,
};

/// One thing to paint. A text stands on the bottom edge of its place, a rule is the bottom edge, a frame the
/// outline; all in units of the page from its corner.
struct ReportPiece {
    PieceRole role = PieceRole::Prompt;
    QRectF place;
    QString text;
    ReportStyle style;
    int row = -1;   // index of the row it belongs to
    int item = -1;  // which of the row's items
};

struct ReportPage {
    std::vector<ReportPiece> pieces;
};

/// A report laid out on its pages: the same for a window, a printer and a file.
struct ReportLayout {
    QString name;
    QPageSize pageSize;
    QSizeF pageArea;  // in units
    std::vector<ReportPage> pages;
};

/// Lays a report out. There is always at least one page.
ReportLayout layOutReport(const ReportTemplate& report, const ReportData& data);

}  // namespace platform
