#pragma once

#include "platform/storage/value.h"
#include "tools/coursefiles/table_file.h"

#include <QMap>

#include <map>
#include <vector>

namespace tools {

/// A course as its author keeps it: the text tables of a folder, one folder a unit.
struct CourseSource {
    QString folder;
    struct UnitTable {
        int topicNo = 0;  // 0 for a table of the whole course
        TableFile table;
    };
    std::vector<UnitTable> tables;

    /// All tables of a name, in the order of their units.
    std::vector<const UnitTable*> named(const QString& table) const;
};

/// Reads every table below a course folder: `topic.csv` beside folders `unit01`, `unit02` … Tables without a
/// field that their screens live by are left out. Throws SourceError where the folder holds no table at all.
CourseSource readCourse(const QString& folder, ReadErrors* damages = nullptr);

/// One row of a store's table as built, with the place in the text table that it came from.
struct BuiltRow {
    std::vector<platform::Value> values;  // in the order of the table's fields
    SourcePlace place;
    QStringList points{};  // what the row trains or teaches, for the check alone
};

struct BuiltTable {
    QString store;
    QString table;
    QStringList fields;
    std::vector<BuiltRow> rows;

    int column(const QString& name) const;
    const platform::Value& value(const BuiltRow& row, const QString& name) const;
};

/// The tables that a course fills, as the stores will hold them: places, orders, counts and running numbers
/// that the author left out are filled in.
class BuiltCourse {
   public:
    /// Throws SourceError where a number is no number or too large, or a column has no place in its table.
    explicit BuiltCourse(const CourseSource& source, ReadErrors* damages = nullptr);

    const std::vector<BuiltTable>& tables() const { return tables_; }
    const BuiltTable& table(const QString& name) const;
    /// Every word of the course once, in order.
    const QMap<QString, QString>& words() const { return words_; }

   private:
    void add(const CourseSource& source, const QString& store, const QString& table);
    void checkColumns(const BuiltTable& built, const QString& authorsField, const TableFile& table);
    void addRows(BuiltTable& built, const CourseSource::UnitTable& unit);
    void fillCounts();
    void addDictionary();

    ReadErrors* damages_;
    std::vector<BuiltTable> tables_;
    QMap<QString, QString> words_;  // word, meaning
};

}  // namespace tools
