#include "platform/reports/data.h"

#include "platform/error.h"
#include "platform/storage/database.h"
#include "platform/storage/recordset.h"

#include <QRegularExpression>

#include <functional>

namespace platform {

namespace {

/// A name in braces; the part before a dot is a table.
const QRegularExpression& fieldPattern() {
    static const QRegularExpression pattern(QStringLiteral("\\{(?:([A-Za-z0-9_]+)\\.)?([A-Za-z0-9_]+)\\}"));
    return pattern;
}

void forEachText(const ReportTemplate& report, const std::function<void(const ReportText&)>& visit) {
    for (const ReportText* text : {&report.name, &report.title, &report.heading, &report.badge, &report.guide,
                                   &report.foot, &report.bank.title, &report.group.text})
        visit(*text);
    for (const ReportLine& line : report.lines) {
        visit(line.label);
        visit(line.text);
    }
    for (const ReportText& word : report.bank.words)
        visit(word);
    for (const ReportItem& item : report.items) {
        visit(item.number);
        visit(item.head);
        for (const auto* list : {&item.prompts, &item.choices, &item.answers, &item.words, &item.masks})
            for (const ReportText& text : *list)
                visit(text);
    }
}

/// Names of a set's fields, lower-case and in the set's order.
QStringList lowerNames(const Recordset& rows) {
    QStringList names;
    for (int i = 0; i < rows.fieldCount(); ++i)
        names.append(rows.fieldName(i).toLower());
    return names;
}

ReportRow rowOf(const Recordset& rows, const QStringList& names) {
    ReportRow row;
    row.reserve(names.size());
    for (int i = 0; i < names.size(); ++i) {
        const Value& value = rows.value(i);
        row.insert(names[i], value.isNull() ? QString() : value.toText());
    }
    return row;
}

std::vector<ReportRow> readRows(Recordset rows) {
    const QStringList names = lowerNames(rows);
    std::vector<ReportRow> all;
    for (; !rows.eof(); rows.moveNext())
        all.push_back(rowOf(rows, names));
    return all;
}

ReportRow firstRow(const Recordset& rows) {
    const QStringList names = lowerNames(rows);
    if (!rows.isEmpty())
        return rowOf(rows, names);
    ReportRow empty;
    for (const QString& name : names)
        empty.insert(name, QString());
    return empty;
}

Recordset opened(const Database& store, const QString& table, const QString& order, const QString& file,
                 int line) {
    QString sql = QStringLiteral("Select * from ") + table;
    if (!order.isEmpty())
        sql += QStringLiteral(" order by ") + order;
    try {
        return store.openRecordset(sql);
    } catch (const RuntimeError& failure) {
        throwBrokenReport(file, line, failure.sentence());
    }
}

}  // namespace

QString fieldOf(const ReportRow& row, const QString& field) {
    return row.value(field.toLower());
}

ReportData readReportData(const Drives& drives, const ReportTemplate& report) {
    const QString path = report.file.left(report.file.lastIndexOf(u'\\') + 1) + report.store;
    const Database store = Database::open(drives.resolve(path), path);
    ReportData data;
    data.rows = readRows(opened(store, report.rows, report.order, report.file, 1));
    if (!report.group.table.isEmpty())
        data.ranges = readRows(opened(store, report.group.table, {}, report.file, report.group.text.line));
    forEachText(report, [&](const ReportText& text) {
        for (auto match = fieldPattern().globalMatch(text.text); match.hasNext();) {
            const QString table = match.next().captured(1).toLower();
            if (!table.isEmpty() && !data.single.contains(table))
                data.single.insert(table, firstRow(opened(store, table, {}, text.file, text.line)));
        }
    });
    return data;
}

QString filledText(const ReportText& text, const ReportData& data, const ReportRow& row,
                   const ReportRow& extra) {
    QString result;
    qsizetype done = 0;
    for (auto match = fieldPattern().globalMatch(text.text); match.hasNext();) {
        const auto found = match.next();
        const QString table = found.captured(1).toLower();
        const QString field = found.captured(2).toLower();
        const ReportRow& source = !table.isEmpty()        ? *data.single.constFind(table)
                                  : extra.contains(field) ? extra
                                                          : row;
        const auto value = source.constFind(field);
        if (value == source.constEnd())
            throwBrokenReport(text.file, text.line,
                              QStringLiteral("There is no field '%1'.").arg(found.captured(0)));
        result += QStringView(text.text).mid(done, found.capturedStart() - done);
        result += *value;
        done = found.capturedEnd();
    }
    return result + QStringView(text.text).mid(done).toString();
}

}  // namespace platform
