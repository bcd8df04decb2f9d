#pragma once

#include "tests/support/desk.h"

#include <QDir>
#include <QFile>

/// The folder that worksheets work in.
inline const QString sheetFolder = QStringLiteral("C:\\Larkfield\\Larkfield2013\\Tovalin1\\");

/// Puts the real templates where the program looks for them.
inline void installReports(const support::Desk& desk) {
    const QDir reports(QStringLiteral(MENDORI_SOURCE "/reports"));
    for (const QString& name : reports.entryList({QStringLiteral("*.rpt")}))
        QFile::copy(reports.filePath(name), desk.file(sheetFolder + name));
}
