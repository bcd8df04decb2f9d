#include "tools/table_file.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <csv.h>

#include <memory>

namespace tools {

namespace {

/// Collects what the parser reports. Lines are fed one by one, so that each row knows the line it began on.
struct Collector {
    TableFile& table;
    QStringList fields;
    int line = 1;
    int rowLine = 1;
    bool rowOpen = false;

    void addField(const char* text, size_t length) {
        fields.append(QString::fromUtf8(text, static_cast<qsizetype>(length)));
    }

    void endRow() {
        rowOpen = false;
        QStringList row;
        row.swap(fields);
        if (row.size() == 1 && row[0].isEmpty())
            return;
        if (table.columns.isEmpty()) {
            table.columns = row;
            return;
        }
        if (row.size() != table.columns.size())
            throw SourceError({table.file, rowLine, {}},
                              QStringLiteral("the row has %1 fields, but the first line names %2")
                                  .arg(row.size())
                                  .arg(table.columns.size()));
        table.rows.push_back({row, rowLine});
    }
};

void onField(void* text, size_t length, void* collector) {
    static_cast<Collector*>(collector)->addField(static_cast<const char*>(text), length);
}

void onRow(int, void* collector) {
    static_cast<Collector*>(collector)->endRow();
}

// Blanks at the edges of a field belong to it: a sentence may have to end in one.
int keepBlanks(unsigned char) {
    return 0;
}

void checkUtf8(const QByteArray& bytes, const QString& shownName) {
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QList<QByteArray> lines = bytes.split('\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString decoded = decoder(lines[i]);
        if (decoder.hasError())
            throw SourceError({shownName, static_cast<int>(i) + 1, {}},
                              QStringLiteral("the text is not UTF-8"));
    }
}

}  // namespace

QString SourcePlace::text() const {
    QString text = file;
    if (line > 0)
        text += QStringLiteral(":%1").arg(line);
    if (!field.isEmpty())
        text += QStringLiteral(", field '%1'").arg(field);
    return text;
}

SourceError::SourceError(SourcePlace place, QString sentence)
    : std::runtime_error((place.text() + QStringLiteral(": ") + sentence).toStdString()),
      place_(std::move(place)),
      sentence_(std::move(sentence)) {}

int TableFile::column(const QString& name) const {
    for (qsizetype i = 0; i < columns.size(); ++i)
        if (columns[i].compare(name, Qt::CaseInsensitive) == 0)
            return static_cast<int>(i);
    return -1;
}

QString TableFile::field(const TableRow& row, const QString& name) const {
    const int index = column(name);
    return index < 0 ? QString() : row.fields[index];
}

TableFile readTableFile(const QString& path, const QString& shownName) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw SourceError({shownName, 0, {}}, QStringLiteral("the file cannot be read"));
    return parseTable(file.readAll(), shownName);
}

TableFile parseTable(QByteArray bytes, const QString& shownName) {
    TableFile table{shownName, QFileInfo(shownName).completeBaseName(), {}, {}};
    if (bytes.startsWith("\xEF\xBB\xBF"))
        bytes.remove(0, 3);
    checkUtf8(bytes, shownName);

    csv_parser parser;
    csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI);
    const std::unique_ptr<csv_parser, void (*)(csv_parser*)> owner(&parser, csv_free);
    csv_set_space_func(&parser, keepBlanks);
    Collector collector{table, {}, 1, 1, false};
    for (qsizetype start = 0; start < bytes.size();) {
        const qsizetype newline = bytes.indexOf('\n', start);
        const qsizetype end = newline < 0 ? bytes.size() : newline + 1;
        if (!collector.rowOpen) {
            collector.rowLine = collector.line;
            collector.rowOpen = true;
        }
        const auto length = static_cast<size_t>(end - start);
        if (csv_parse(&parser, bytes.constData() + start, length, onField, onRow, &collector) != length)
            throw SourceError({shownName, collector.line, {}},
                              QStringLiteral("a quotation mark stands in the wrong place"));
        ++collector.line;
        start = end;
    }
    if (csv_fini(&parser, onField, onRow, &collector) != 0)
        throw SourceError({shownName, collector.rowLine, {}}, QStringLiteral("a quoted text does not end"));
    if (table.columns.isEmpty())
        throw SourceError({shownName, 1, {}}, QStringLiteral("the first line must name the fields"));
    return table;
}

}  // namespace tools
