#include "tools/import/scores.h"

#include <QHash>

namespace tools {

namespace {

const QString scoreTable = QStringLiteral("score");

/// Rows of a score table by column name in lower case, since two installs may order or spell columns apart.
using ScoreRow = QHash<QString, QVariant>;

ScoreRow rowOf(SQLite::Statement& rows) {
    ScoreRow row;
    for (int i = 0; i < rows.getColumnCount(); ++i)
        row.insert(QString::fromUtf8(rows.getColumnName(i)).toLower(), columnValue(rows.getColumn(i)));
    return row;
}

/// Of two rows of the same day, one with a time is newer; a row without a date is older than any.
bool isNewer(const ScoreRow& row, const ScoreRow& than) {
    return row.value(QStringLiteral("vdate")).toString() > than.value(QStringLiteral("vdate")).toString();
}

bool isAlike(const ScoreRow& one, const ScoreRow& other) {
    for (auto field = one.begin(); field != one.end(); ++field)
        if (canonical(field.value()) != canonical(other.value(field.key())))
            return false;
    return true;
}

QString describe(const ScoreRow& row) {
    const auto text = [&](const char* field) { return row.value(QLatin1String(field)).toString(); };
    return QStringLiteral("student %1, %2, step %3")
        .arg(text("studentno"), text("program"), text("recordno"));
}

QString dateOf(const ScoreRow& row) {
    const QString date = row.value(QStringLiteral("vdate")).toString();
    return date.isEmpty() ? QStringLiteral("no date") : date;
}

class Merger {
   public:
    Merger(SQLite::Database& copy, SQLite::Database& inUse) : copy_(copy), inUse_(inUse) {}
    ScoreMerge run();

   private:
    void take(const ScoreRow& row);
    void add(const ScoreRow& row);
    void replace(qint64 rowId, const ScoreRow& row);
    void bindFields(SQLite::Statement& statement, const ScoreRow& row) const;
    void readColumns();

    SQLite::Database& copy_;
    SQLite::Database& inUse_;
    QStringList columns_;
    ScoreMerge merge_;
};

/// Columns that both have; the source must not hold one that the store in use would drop.
void Merger::readColumns() {
    SQLite::Statement there(inUse_, "SELECT * FROM score LIMIT 0");
    SQLite::Statement here(copy_, "SELECT * FROM score LIMIT 0");
    QStringList known;
    for (int i = 0; i < there.getColumnCount(); ++i)
        known.append(QString::fromUtf8(there.getColumnName(i)).toLower());
    for (int i = 0; i < here.getColumnCount(); ++i) {
        const QString name = QString::fromUtf8(here.getColumnName(i));
        if (!known.contains(name.toLower()))
            throw ReadError(QStringLiteral("the scores in use have no column %1").arg(name));
        columns_.append(name);
    }
}

void Merger::bindFields(SQLite::Statement& statement, const ScoreRow& row) const {
    for (int i = 0; i < columns_.size(); ++i)
        bindColumn(statement, i + 1, row.value(columns_[i].toLower()));
}

void Merger::add(const ScoreRow& row) {
    QStringList names;
    for (const QString& column : columns_)
        names.append(quotedName(column));
    const QString marks = QStringList(columns_.size(), QStringLiteral("?")).join(u',');
    SQLite::Statement insert(
        inUse_,
        QStringLiteral("INSERT INTO score (%1) VALUES (%2)").arg(names.join(u','), marks).toStdString());
    bindFields(insert, row);
    insert.exec();
    ++merge_.added;
}

void Merger::replace(qint64 rowId, const ScoreRow& row) {
    QStringList sets;
    for (const QString& column : columns_)
        sets.append(quotedName(column) + QStringLiteral("=?"));
    SQLite::Statement update(
        inUse_,
        QStringLiteral("UPDATE score SET %1 WHERE rowid=%2").arg(sets.join(u',')).arg(rowId).toStdString());
    bindFields(update, row);
    update.exec();
    ++merge_.renewed;
}

void Merger::take(const ScoreRow& row) {
    SQLite::Statement find(
        inUse_, "SELECT rowid, * FROM score WHERE studentno IS ? AND program IS ? AND recordno IS ?");
    int place = 0;
    for (const char* key : {"studentno", "program", "recordno"})
        bindColumn(find, ++place, row.value(QLatin1String(key)));
    if (!find.executeStep()) {
        add(row);
        return;
    }
    const ScoreRow present = rowOf(find);
    if (isAlike(row, present)) {
        ++merge_.alike;
    } else if (isNewer(row, present)) {
        merge_.details.append(QStringLiteral("%1: taken, %2 is newer than %3.")
                                  .arg(describe(row), dateOf(row), dateOf(present)));
        const qint64 rowId = find.getColumn(0).getInt64();
        find.reset();
        replace(rowId, row);
    } else {
        ++merge_.kept;
        merge_.details.append(QStringLiteral("%1: kept as it is, %2 is not newer than %3.")
                                  .arg(describe(row), dateOf(row), dateOf(present)));
    }
}

ScoreMerge Merger::run() {
    SQLite::Transaction transaction(inUse_, SQLite::TransactionBehavior::IMMEDIATE);
    readColumns();
    const qint64 before = sumOfTable(inUse_, scoreTable).rows();
    SQLite::Statement rows(copy_, "SELECT * FROM score ORDER BY rowid");
    while (rows.executeStep())
        take(rowOf(rows));
    const qint64 after = sumOfTable(inUse_, scoreTable).rows();
    if (after != before + merge_.added)
        throw ReadError(
            QStringLiteral("%1 rows and %2 new ones made %3").arg(before).arg(merge_.added).arg(after));
    transaction.commit();
    return merge_;
}

}  // namespace

ScoreMerge mergeScores(SQLite::Database& copy, SQLite::Database& inUse) {
    try {
        return Merger(copy, inUse).run();
    } catch (const SQLite::Exception& error) {
        throw ReadError(
            QStringLiteral("the scores in use cannot be changed: %1").arg(QString::fromUtf8(error.what())));
    }
}

}  // namespace tools
