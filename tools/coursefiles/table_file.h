#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <stdexcept>
#include <vector>

namespace tools {

/// A place in a text table: file as it was given, line from 1, column as a field's name where one is meant.
struct SourcePlace {
    QString file;
    int line = 0;
    QString field;

    /// "unit01/newword.csv:12, field 'word'".
    QString text() const;
};

/// A text table that cannot be read, with the place where reading ended, and what would be right there.
class SourceError : public std::runtime_error {
   public:
    SourceError(SourcePlace place, QString sentence, QString right);

    const SourcePlace& place() const { return place_; }
    const QString& sentence() const { return sentence_; }
    const QString& right() const { return right_; }

   private:
    SourcePlace place_;
    QString sentence_;
    QString right_;
};

/// Told of each place that cannot be read; reading then goes on behind it. Without one the first such place
/// ends the reading.
using ReadErrors = std::vector<SourceError>;

/// Throws the error, or keeps it where somebody collects them.
void complain(ReadErrors* damages, const SourceError& error);

/// One row of a text table and the line it starts on.
struct TableRow {
    QStringList fields;
    int line = 0;
};

/// A text table: comma-separated values in UTF-8, quoted as spreadsheets do, field names in the first line.
struct TableFile {
    QString file;   // as messages name it
    QString table;  // the file's name without its ending
    QStringList columns;
    std::vector<TableRow> rows;

    /// The index of a column by its name in any case, -1 without one.
    int column(const QString& name) const;
    /// The row's text in a column, empty where the table has no such column.
    QString field(const TableRow& row, const QString& name) const;
    SourcePlace place(const TableRow& row, const QString& field = {}) const {
        return {file, row.line, field};
    }
};

/// Reads one text table. Throws SourceError for a missing or damaged file and for text that is not UTF-8. A
/// row with more or fewer fields than the first line names is left out. Rows without any text do not count.
TableFile readTableFile(const QString& path, const QString& shownName, ReadErrors* damages = nullptr);
/// The same from the bytes of a file.
TableFile parseTable(QByteArray bytes, const QString& shownName, ReadErrors* damages = nullptr);

}  // namespace tools
