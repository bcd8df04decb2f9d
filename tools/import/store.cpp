#include "tools/import/store.h"

#include <SQLiteCpp/Savepoint.h>

#include <algorithm>

namespace tools {

namespace {

constexpr qint64 progressStep = 1000;
// A damaged file can complain about every row; more sentences would help nobody.
constexpr int toldProblems = 20;

QString fromView(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

const core::FieldShape* findField(const core::TableDefinition* table, const QString& name) {
    if (!table)
        return nullptr;
    const auto found =
        std::find_if(table->fields.begin(), table->fields.end(), [&](const core::FieldShape& field) {
            return fromView(field.name).compare(name, Qt::CaseInsensitive) == 0;
        });
    return found == table->fields.end() ? nullptr : &*found;
}

/// Copies one table and tells what went wrong with it.
class TableCopy {
   public:
    TableCopy(AccessReader& reader, const StoreSource& source, SQLite::Database& store,
              const CopyProgress& progress)
        : reader_(reader), source_(source), store_(store), progress_(progress) {}

    TableProof run(const QString& name, QStringList& problems);
    const TableSum& sum() const { return sum_; }

   private:
    void create();
    bool hasColumn(const QString& name) const;
    void createIndexes();
    void copyRows();
    void copyRow(SQLite::Statement& insert, const SourceRow& row);
    void tell(qint64 row, const QString& column, const QString& sentence);

    AccessReader& reader_;
    const StoreSource& source_;
    SQLite::Database& store_;
    const CopyProgress& progress_;
    const core::TableDefinition* definition_ = nullptr;
    SourceTable table_;
    std::vector<StoreKind> kinds_;
    TableSum sum_;
    qint64 row_ = 0;
    int problems_ = 0;
    QStringList told_;
};

void TableCopy::tell(qint64 row, const QString& column, const QString& sentence) {
    QStringList places{source_.shownName, QStringLiteral("table %1").arg(table_.name)};
    if (row > 0)
        places.append(QStringLiteral("row %1").arg(row));
    if (!column.isEmpty())
        places.append(QStringLiteral("column %1").arg(column));
    if (++problems_ <= toldProblems)
        told_.append(QStringLiteral("%1: %2.").arg(places.join(QStringLiteral(", ")), sentence));
    else if (problems_ == toldProblems + 1)
        told_.append(QStringLiteral("%1, table %2: further problems are not listed.")
                         .arg(source_.shownName, table_.name));
}

void TableCopy::create() {
    QStringList columns;
    for (const SourceColumn& column : table_.columns) {
        kinds_.push_back(storeKind(column.type, findField(definition_, column.name)));
        columns.append(quotedName(column.name) + u' ' + columnDeclaration(kinds_.back()));
        if (column.type == SourceType::Unknown)
            tell(0, column.name,
                 QStringLiteral("the field type %1 is not known, its values are left out")
                     .arg(column.typeCode));
        if (column.type == SourceType::Calculated)
            tell(0, column.name,
                 QStringLiteral(
                     "Access calculates the values of this field, and they are left out; in Access, "
                     "make it a field that stores them"));
    }
    store_.exec(QStringLiteral("CREATE TABLE %1 (%2)")
                    .arg(quotedName(table_.name), columns.join(QStringLiteral(", ")))
                    .toStdString());
    createIndexes();
}

bool TableCopy::hasColumn(const QString& name) const {
    return std::any_of(table_.columns.begin(), table_.columns.end(), [&](const SourceColumn& column) {
        return column.name.compare(name, Qt::CaseInsensitive) == 0;
    });
}

/// Takes the statements of the schema, since both have the tables' names in them.
void TableCopy::createIndexes() {
    if (!definition_)
        return;
    for (const core::FieldShape& field : definition_->fields) {
        const QString name = fromView(field.name);
        // Fields that are only copied along by their place may have any name.
        if (hasColumn(name) || name.startsWith(QStringLiteral("extra")))
            continue;
        tell(0, name, QStringLiteral("the course needs this column and the file lacks it"));
        return;
    }
    const QStringList statements = core::createStatements(*definition_);
    for (const QString& statement : statements.mid(1))
        store_.exec(statement.toStdString());
}

void TableCopy::copyRow(SQLite::Statement& insert, const SourceRow& row) {
    for (std::size_t i = 0; i < table_.columns.size(); ++i) {
        const SourceColumn& column = table_.columns[i];
        const QVariant value = i < row.values.size() ? row.values[i] : QVariant();
        QString problem;
        bindColumn(insert, static_cast<int>(i) + 1, storedValue(value, column.type, kinds_[i], problem));
        if (!problem.isEmpty())
            tell(row_, column.name, problem);
        sum_.add(comparedValue(value, column.type));
    }
    sum_.endRow();
    insert.exec();
    insert.reset();
}

void TableCopy::copyRows() {
    QStringList marks;
    marks.fill(QStringLiteral("?"), static_cast<qsizetype>(table_.columns.size()));
    SQLite::Statement insert(store_, QStringLiteral("INSERT INTO %1 VALUES (%2)")
                                         .arg(quotedName(table_.name), marks.join(u','))
                                         .toStdString());
    SourceRow row;
    while (reader_.nextRow(row)) {
        ++row_;
        for (const ReadProblem& problem : row.problems)
            tell(problem.ofTable ? 0 : row_, problem.column, problem.sentence);
        if (row.readable())
            copyRow(insert, row);
        if (row_ % progressStep == 0)
            progress_(table_.name, row_);
    }
}

TableProof TableCopy::run(const QString& name, QStringList& problems) {
    table_.name = name;
    definition_ = core::findTable(source_.schemaStore.toStdString(), name.toStdString());
    SQLite::Savepoint savepoint(store_, "table_copy");
    try {
        table_ = reader_.openTable(name);
        table_.name = name;
        create();
        copyRows();
        savepoint.release();
    } catch (const ReadError& error) {
        tell(row_ > 0 ? row_ + 1 : 0, {}, error.sentence());
        savepoint.release();
    } catch (const SQLite::Exception& error) {
        tell(row_, {}, QStringLiteral("it cannot be stored: %1").arg(QString::fromUtf8(error.what())));
        savepoint.rollback();
    }
    problems += told_;
    progress_(name, row_);
    TableProof proof;
    proof.table = name;
    proof.sourceRows = sum_.rows();
    proof.sourceSum = sum_.text();
    proof.known = definition_ != nullptr;
    proof.problems = problems_;
    return proof;
}

bool hasTable(SQLite::Database& store, const QString& table) {
    SQLite::Statement query(
        store, "SELECT count(*) FROM sqlite_master WHERE type='table' AND name=? COLLATE NOCASE");
    query.bind(1, table.toStdString());
    return query.executeStep() && query.getColumn(0).getInt() > 0;
}

void createMissing(const StoreSource& source, SQLite::Database& store, CopyReport& report) {
    for (const core::TableDefinition& definition : core::tableDefinitions()) {
        const QString table = fromView(definition.table);
        if (fromView(definition.store) != source.schemaStore || hasTable(store, table))
            continue;
        for (const QString& statement : core::createStatements(definition))
            store.exec(statement.toStdString());
        report.notes.append(
            QStringLiteral("%1 has no table %2; it was made empty.").arg(source.shownName, table));
    }
}

void prove(const StoreSource& source, SQLite::Database& store, TableProof& proof, const TableSum& kept,
           CopyReport& report) {
    const TableSum sum = sumOfTable(store, proof.table);
    proof.copyRows = sum.rows();
    proof.copySum = sum.text();
    if (!proof.proven()) {
        const qint64 row = kept.firstDifference(sum);
        report.problems.append(QStringLiteral("%1, table %2, row %3: the copy differs from the source.")
                                   .arg(source.shownName, proof.table)
                                   .arg(row));
        ++proof.problems;
    }
}

}  // namespace

QString quotedName(const QString& name) {
    QString quoted = name;
    return u'"' + quoted.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

QVariant columnValue(const SQLite::Column& column) {
    if (column.isNull())
        return {};
    if (column.isInteger())
        return qlonglong{column.getInt64()};
    if (column.isFloat())
        return column.getDouble();
    if (column.isBlob())
        return QByteArray(static_cast<const char*>(column.getBlob()), column.getBytes());
    return QString::fromUtf8(column.getText(), column.getBytes());
}

void bindColumn(SQLite::Statement& statement, int place, const QVariant& value) {
    if (!value.isValid())
        statement.bind(place);
    else if (value.typeId() == QMetaType::Double)
        statement.bind(place, value.toDouble());
    else if (value.typeId() == QMetaType::LongLong)
        statement.bind(place, static_cast<std::int64_t>(value.toLongLong()));
    else if (value.typeId() == QMetaType::QByteArray)
        statement.bind(place, value.toByteArray().constData(), static_cast<int>(value.toByteArray().size()));
    else
        statement.bind(place, value.toString().toStdString());
}

TableSum sumOfTable(SQLite::Database& store, const QString& table) {
    TableSum sum;
    SQLite::Statement rows(
        store, QStringLiteral("SELECT * FROM %1 ORDER BY rowid").arg(quotedName(table)).toStdString());
    while (rows.executeStep()) {
        for (int i = 0; i < rows.getColumnCount(); ++i)
            sum.add(columnValue(rows.getColumn(i)));
        sum.endRow();
    }
    return sum;
}

CopyReport copyStore(AccessReader& reader, const StoreSource& source, SQLite::Database& store, bool salvage,
                     const CopyProgress& progress) {
    CopyReport report;
    SQLite::Transaction transaction(store);
    for (const QString& name : reader.tables()) {
        TableCopy copy(reader, source, store, progress);
        TableProof proof = copy.run(name, report.problems);
        proof.leftOut = !hasTable(store, name);
        if (!proof.leftOut)
            prove(source, store, proof, copy.sum(), report);
        const bool whole = proof.problems == 0 && proof.proven();
        if (!whole && proof.known)
            report.sound = false;
        if (!whole && !proof.known && !salvage && !proof.leftOut) {
            store.exec(QStringLiteral("DROP TABLE %1").arg(quotedName(name)).toStdString());
            proof.leftOut = true;
            report.notes.append(QStringLiteral("%1, table %2: left out, the course does not use it.")
                                    .arg(source.shownName, name));
        }
        report.tables.push_back(proof);
    }
    const bool ours =
        std::any_of(report.tables.begin(), report.tables.end(), [](const TableProof& p) { return p.known; });
    report.foreign = !ours && !source.schemaStore.isEmpty();
    if (report.foreign) {
        report.problems.append(
            QStringLiteral("%1: it holds no table that the course uses, and no store is made of it.")
                .arg(source.shownName));
        report.sound = false;
    } else {
        createMissing(source, store, report);
    }
    transaction.commit();
    return report;
}

}  // namespace tools
