#include "tools/coursefiles/table_file.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <csv.h>

#include <algorithm>
#include <memory>
#include <optional>

namespace tools {

namespace {

const QString savedAsUtf8 = QStringLiteral("the table saved as comma-separated values in UTF-8");

QString fieldCount(qsizetype count) {
    return count == 1 ? QStringLiteral("1 field") : QStringLiteral("%1 fields").arg(count);
}

/// Collects what the parser reports. Lines are fed one by one, so that each row knows the line it began on.
struct Collector {
    TableFile& table;
    ReadErrors* damages;
    QStringList fields;
    int line = 1;
    int rowLine = 1;
    bool rowOpen = false;
    std::optional<SourceError> end;  // the parser's library cannot be left by an exception

    /// The place of the field that comes next.
    SourcePlace place() const { return {table.file, rowLine, table.columns.value(fields.size())}; }

    void stop(const QString& sentence, const QString& right) {
        if (!end)
            end = SourceError(place(), sentence, right);
    }

    void addField(const QByteArray& bytes) {
        // Each field stands alone, so that a character that is cut off at its end is told too.
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString text = decoder(bytes);
        if (decoder.hasError())
            stop(QStringLiteral("the text is not UTF-8"), savedAsUtf8);
        else if (bytes.contains('\0'))
            stop(QStringLiteral("the text holds a byte of value 0"), savedAsUtf8);
        fields.append(text);
    }

    void keep(const QStringList& row) {
        if (row.size() == table.columns.size()) {
            table.rows.push_back({row, rowLine});
            return;
        }
        complainLater(
            {{table.file, rowLine, table.columns.value(row.size())},
             QStringLiteral("the row has %1, and the first line names %2")
                 .arg(fieldCount(row.size()))
                 .arg(table.columns.size()),
             QStringLiteral("a comma between the fields, and a field with a comma in double quotes")});
    }

    void complainLater(const SourceError& error) {
        if (damages != nullptr)
            damages->push_back(error);
        else if (!end)
            end = error;
    }

    void endRow() {
        rowOpen = false;
        QStringList row;
        row.swap(fields);
        if (std::all_of(row.begin(), row.end(), [](const QString& field) { return field.isEmpty(); }))
            return;
        if (table.columns.isEmpty())
            table.columns = row;
        else
            keep(row);
    }
};

void onField(void* text, size_t length, void* collector) {
    static_cast<Collector*>(collector)->addField(
        QByteArray(static_cast<const char*>(text), static_cast<qsizetype>(length)));
}

void onRow(int, void* collector) {
    static_cast<Collector*>(collector)->endRow();
}

// Blanks at the edges of a field belong to it: a sentence may have to end in one.
int keepBlanks(unsigned char) {
    return 0;
}

void feed(csv_parser& parser, Collector& collector, const QByteArray& bytes) {
    for (qsizetype start = 0; start < bytes.size() && !collector.end;) {
        const qsizetype newline = bytes.indexOf('\n', start);
        const qsizetype end = newline < 0 ? bytes.size() : newline + 1;
        if (!collector.rowOpen) {
            collector.rowLine = collector.line;
            collector.rowOpen = true;
        }
        const auto length = static_cast<size_t>(end - start);
        if (csv_parse(&parser, bytes.constData() + start, length, onField, onRow, &collector) != length) {
            collector.rowLine = collector.line;
            collector.stop(
                QStringLiteral("a quotation mark stands in the wrong place"),
                QStringLiteral("a field with quotation marks in double quotes, each of them doubled"));
        }
        ++collector.line;
        start = end;
    }
    if (!collector.end && csv_fini(&parser, onField, onRow, &collector) != 0)
        collector.stop(QStringLiteral("a quoted text does not end"),
                       QStringLiteral("a double quotation mark behind the text"));
}

void checkColumns(const TableFile& table, ReadErrors* damages) {
    if (table.columns.isEmpty())
        throw SourceError({table.file, 1, {}}, QStringLiteral("the first line must name the fields"),
                          QStringLiteral("the names of the fields with commas between them"));
    for (qsizetype i = 1; i < table.columns.size(); ++i)
        if (!table.columns[i].isEmpty() &&
            table.columns.mid(0, i).contains(table.columns[i], Qt::CaseInsensitive))
            complain(damages, {{table.file, 1, table.columns[i]},
                               QStringLiteral("the first line names this field twice"),
                               QStringLiteral("each field once")});
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

SourceError::SourceError(SourcePlace place, QString sentence, QString right)
    : std::runtime_error((place.text() + QStringLiteral(": ") + sentence).toStdString()),
      place_(std::move(place)),
      sentence_(std::move(sentence)),
      right_(std::move(right)) {}

void complain(ReadErrors* damages, const SourceError& error) {
    if (damages == nullptr)
        throw error;
    damages->push_back(error);
}

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

TableFile readTableFile(const QString& path, const QString& shownName, ReadErrors* damages) {
    QFile file(path);
    if (!QFileInfo(path).isFile())
        throw SourceError({shownName, 0, {}}, QStringLiteral("it is no regular file"),
                          QStringLiteral("a text table"));
    if (!file.open(QIODevice::ReadOnly))
        throw SourceError({shownName, 0, {}}, QStringLiteral("the file cannot be read"),
                          QStringLiteral("a file that its owner may read"));
    return parseTable(file.readAll(), shownName, damages);
}

TableFile parseTable(QByteArray bytes, const QString& shownName, ReadErrors* damages) {
    TableFile table{shownName, QFileInfo(shownName).completeBaseName(), {}, {}};
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF"))
        throw SourceError({shownName, 1, {}}, QStringLiteral("the text is UTF-16, not UTF-8"), savedAsUtf8);
    if (bytes.startsWith("\xEF\xBB\xBF"))
        bytes.remove(0, 3);

    csv_parser parser;
    csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI);
    const std::unique_ptr<csv_parser, void (*)(csv_parser*)> owner(&parser, csv_free);
    csv_set_space_func(&parser, keepBlanks);
    Collector collector{table, damages, {}, 1, 1, false, {}};
    feed(parser, collector, bytes);
    if (collector.end)
        throw SourceError(*collector.end);
    checkColumns(table, damages);
    return table;
}

}  // namespace tools
