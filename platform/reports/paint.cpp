#include "platform/reports/paint.h"

#include "platform/desktop/look.h"
#include "platform/reports/pdf_blanks.h"
#include "platform/whole_file.h"

#include <QBuffer>
#include <QPdfWriter>

namespace platform {

namespace {

constexpr QRgb keyInk = 0xffb3261e;
constexpr QRgb softInk = 0xff4a4a4a;
constexpr QRgb ruleInk = 0xff6b6b6b;
constexpr QRgb paleInk = 0xffc9c9c9;
constexpr int pdfResolution = 600;

struct Ink {
    QRgb colour;
    double pen;  // millimetres, for shapes
};

Ink inkOf(PieceRole role) {
    switch (role) {
        case PieceRole::Title:
        case PieceRole::GuideMark:
        case PieceRole::GroupHead:
        case PieceRole::BankTitle: return {colour::accent, 0};
        case PieceRole::HeadRule: return {colour::accent, 0.5};
        case PieceRole::BankFrame: return {colour::accent, 0.35};
        case PieceRole::GroupRule:
        case PieceRole::ColumnRule: return {paleInk, 0.2};
        case PieceRole::LineRule:
        case PieceRole::Blank: return {ruleInk, 0.25};
        case PieceRole::MaskBox: return {ruleInk, 0.2};
        case PieceRole::Badge:
        case PieceRole::Answer:
        case PieceRole::MaskAnswer: return {keyInk, 0};
        case PieceRole::BadgeFrame: return {keyInk, 0.4};
        case PieceRole::LineLabel:
        case PieceRole::Foot: return {softInk, 0};
        case PieceRole::Heading:
        case PieceRole::LineText:
        case PieceRole::Guide:
        case PieceRole::BankWord:
        case PieceRole::Number:
        case PieceRole::ItemHead:
        case PieceRole::MaskLetter:
        case PieceRole::Prompt: break;
    }
    return {colour::black, 0};
}

void paintShape(QPainter& painter, const ReportPiece& piece, const Ink& ink) {
    const QColor colour = QColor::fromRgb(ink.colour);
    if (piece.role == PieceRole::GuideMark) {
        painter.fillRect(piece.place, colour);
        return;
    }
    painter.setPen(QPen(colour, millimetres(ink.pen), Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    if (piece.role == PieceRole::BankFrame || piece.role == PieceRole::BadgeFrame)
        painter.drawRoundedRect(piece.place, millimetres(1.4), millimetres(1.4));
    else if (piece.role == PieceRole::MaskBox)
        painter.drawRect(piece.place);
    else
        painter.drawLine(piece.place.bottomLeft(), piece.role == PieceRole::ColumnRule
                                                       ? piece.place.topLeft()
                                                       : piece.place.bottomRight());
}

void paintPiece(QPainter& painter, const ReportPiece& piece) {
    const Ink ink = inkOf(piece.role);
    if (piece.text.isEmpty()) {
        paintShape(painter, piece, ink);
        return;
    }
    painter.setPen(QColor::fromRgb(ink.colour));
    painter.setFont(reportFont(piece.style));
    painter.drawText(piece.place.bottomLeft(), piece.text);
}

}  // namespace

void paintReportPage(QPainter& painter, const ReportLayout& layout, int page, const QRectF& target) {
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.translate(target.topLeft());
    painter.scale(target.width() / layout.pageArea.width(), target.height() / layout.pageArea.height());
    for (const ReportPiece& piece : layout.pages.at(static_cast<std::size_t>(page)).pieces)
        paintPiece(painter, piece);
    painter.restore();
}

QString paintReportPages(QPagedPaintDevice& device, const ReportLayout& layout, int first, int last) {
    QPainter painter;
    if (!painter.begin(&device))
        return QStringLiteral("The device does not take any pages.");
    // The layout has its own margins, so it is put on the whole sheet.
    const QRectF sheet(QPointF(0, 0), device.pageLayout().fullRectPixels(device.logicalDpiX()).size());
    for (int page = first; page <= last; ++page) {
        if (page > first && !device.newPage())
            return QStringLiteral("The device stopped after page %1.").arg(page);
        paintReportPage(painter, layout, page, sheet);
    }
    if (!painter.end())
        return QStringLiteral("The device did not finish the pages.");
    return {};
}

QString writeReportPdf(const QString& file, const ReportLayout& layout, int first, int last) {
    // The writer tells of no failure of its device, so that it gets one that has none.
    QBuffer pages;
    pages.open(QIODevice::WriteOnly);
    QString problem;
    {
        QPdfWriter writer(&pages);
        writer.setResolution(pdfResolution);
        writer.setPageSize(layout.pageSize);
        writer.setPageMargins(QMarginsF());
        writer.setTitle(layout.name);
        problem = paintReportPages(writer, layout, first, last);
    }
    return problem.isEmpty() ? writeWhole(file, withBlanks(pages.data())) : problem;
}

QString writeReportPdf(const QString& file, const ReportLayout& layout) {
    return writeReportPdf(file, layout, 0, static_cast<int>(layout.pages.size()) - 1);
}

}  // namespace platform
