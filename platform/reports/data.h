#pragma once

#include "platform/reports/template.h"

#include <QHash>

#include <vector>

namespace platform {

/// One row by its fields' lower-case names; a field without a value is empty.
using ReportRow = QHash<QString, QString>;

/// Everything a report prints, read once.
struct ReportData {
    std::vector<ReportRow> rows;
    QHash<QString, ReportRow> single;  // the first row of each table that "{table.field}" names
    std::vector<ReportRow> ranges;     // the rows of the table that groups go by
};

/// Reads what the template names from the store beside it. Throws the template's error, with file and line,
/// for a table that the store does not have.
ReportData readReportData(const Drives& drives, const ReportTemplate& report);

/// The text with its fields filled in; `extra` holds names that are no fields. Throws the template's error
/// for a name that stands for nothing.
QString filledText(const ReportText& text, const ReportData& data, const ReportRow& row,
                   const ReportRow& extra = {});

/// The value of a field of a row by its name in any case, or empty.
QString fieldOf(const ReportRow& row, const QString& field);

}  // namespace platform
