#pragma once

#include "platform/reports/layout.h"

#include <QPagedPaintDevice>
#include <QPainter>

namespace platform {

/// Paints a page into a rectangle of the painter's device. Windows, printers and files all come here.
void paintReportPage(QPainter& painter, const ReportLayout& layout, int page, const QRectF& target);

/// Paints pages `first` to `last`, counted from 0, on a device of pages. Gives back what went wrong, empty
/// when nothing did.
QString paintReportPages(QPagedPaintDevice& device, const ReportLayout& layout, int first, int last);

/// Writes all pages, or pages `first` to `last`, into a PDF file, which appears whole or not at all. Gives
/// back what went wrong, empty when nothing did.
QString writeReportPdf(const QString& file, const ReportLayout& layout);
QString writeReportPdf(const QString& file, const ReportLayout& layout, int first, int last);

}  // namespace platform
