#include "platform/recordset.h"

#include "platform/connection_guard.h"
#include "platform/database.h"
#include "platform/error.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <algorithm>
#include <limits>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace platform {

namespace {

// Sets up to this size know all their members at once; larger ones read on when a move needs it.
constexpr int eagerMembers = 1000;
// Below this size, asking row by row beats a search that might have to read the whole table.
constexpr std::size_t probeLimit = 64;

Value readColumn(const SQLite::Column& column) {
    switch (column.getType()) {
        case SQLITE_INTEGER: return {static_cast<std::int64_t>(column.getInt64())};
        case SQLITE_FLOAT: return {column.getDouble()};
        case SQLITE_TEXT: return {QString::fromUtf8(column.getText(), column.getBytes())};
        default: return {};
    }
}

void bindValue(SQLite::Statement& statement, int position, const Value& value) {
    std::visit(
        [&](const auto& content) {
            using Content = std::decay_t<decltype(content)>;
            if constexpr (std::is_same_v<Content, std::monostate>)
                statement.bind(position);
            else if constexpr (std::is_same_v<Content, QString>)
                statement.bind(position, content.toStdString());
            else
                statement.bind(position, content);
        },
        value.content());
}

/// "recordno DESC, pageno" turned round.
QString reversedOrder(const QString& orderBy) {
    QStringList terms;
    for (const QString& term : orderBy.split(u',')) {
        const QString trimmed = term.trimmed();
        const bool descending = trimmed.endsWith(QStringLiteral(" desc"), Qt::CaseInsensitive);
        terms.append(descending ? trimmed.chopped(5) : trimmed + QStringLiteral(" DESC"));
    }
    return terms.join(QStringLiteral(", "));
}

}  // namespace

Recordset::Recordset(std::shared_ptr<Connection> connection, Query query)
    : connection_(std::move(connection)), query_(std::move(query)), shape_(connection_->shape(query_.table)) {
    complete_ = false;
    pull(false);
    if (members_.empty())
        return;
    settle(0);
    reached_ = 1;
}

QString Recordset::keyQuery(bool reversed) const {
    QString sql = QStringLiteral("SELECT _rowid_ FROM \"%1\"").arg(query_.table);
    if (!query_.where.isEmpty())
        sql += QStringLiteral(" WHERE (%1)").arg(query_.where);
    const QString last = reversed ? QStringLiteral("_rowid_ DESC") : QStringLiteral("_rowid_");
    if (query_.orderBy.isEmpty())
        return sql + QStringLiteral(" ORDER BY ") + last;
    return sql + QStringLiteral(" ORDER BY %1, %2")
                     .arg(reversed ? reversedOrder(query_.orderBy) : query_.orderBy, last);
}

void Recordset::pull(bool all) {
    if (complete_)
        return;
    connection_->guarded([&] {
        const auto statement = connection_->prepare(keyQuery(false) + QStringLiteral(" LIMIT ?"));
        statement->bind(1, all ? -1 : eagerMembers + 1);
        // Rows may have come and gone since the first ones were read, so the known ones are told by their
        // keys.
        std::unordered_set<std::int64_t> known;
        for (const Member& member : members_)
            known.insert(member.key);
        while (statement->executeStep())
            if (const std::int64_t key = statement->getColumn(0).getInt64(); !known.contains(key)) {
                members_.push_back({key, false});
                ++liveCount_;
            }
        complete_ = all || members_.size() <= static_cast<std::size_t>(eagerMembers);
        statement->reset();
    });
}

void Recordset::settle(std::size_t index) {
    dropEdit();
    index_ = index;
    key_ = members_[index].key;
    place_ = Place::At;
    reached_ = std::max(reached_, index + 1);
}

void Recordset::jump(std::int64_t key) {
    dropEdit();
    key_ = key;
    index_.reset();
    place_ = Place::At;
}

void Recordset::dropEdit() {
    mode_ = Mode::Read;
    pending_.clear();
}

void Recordset::requireOpen() const {
    if (!connection_)
        throw RuntimeError(Fault::InvalidCall, QStringLiteral("A set of rows was used that is not open."));
}

void Recordset::moveFirst() {
    requireOpen();
    for (std::size_t i = 0; i < members_.size(); ++i)
        if (!members_[i].gone)
            return settle(i);
    throw RuntimeError(Fault::NoCurrentRecord,
                       QStringLiteral("No current record: there is no row in %1.").arg(description()));
}

void Recordset::moveLast() {
    requireOpen();
    if (isEmptyNow())
        moveFirst();
    reachedAll_ = true;
    if (!complete_) {
        connection_->guarded([&] {
            const auto statement = connection_->prepare(keyQuery(true) + QStringLiteral(" LIMIT 1"));
            if (statement->executeStep())
                jump(statement->getColumn(0).getInt64());
            statement->reset();
        });
        return;
    }
    std::size_t last = members_.size() - 1;
    while (members_[last].gone)
        --last;
    settle(last);
}

std::size_t Recordset::currentIndex() {
    if (!index_) {
        pull(true);
        const auto found = std::find_if(members_.begin(), members_.end(),
                                        [&](const Member& member) { return member.key == key_; });
        index_ = static_cast<std::size_t>(found - members_.begin());
    }
    return *index_;
}

void Recordset::moveNext() {
    requireOpen();
    if (place_ == Place::Before)
        return moveFirst();
    if (place_ == Place::After)
        throw RuntimeError(Fault::NoCurrentRecord,
                           QStringLiteral("No current record: past the last row of %1.").arg(description()));
    std::size_t next = currentIndex() + 1;
    if (next >= members_.size())
        pull(true);
    while (next < members_.size() && members_[next].gone)
        ++next;
    if (next < members_.size())
        return settle(next);
    dropEdit();
    place_ = Place::After;
}

void Recordset::move(int rows) {
    requireCurrent();
    for (int i = 0; i < rows && place_ != Place::After; ++i)
        moveNext();
}

int Recordset::recordCount() const {
    if (isEmptyNow())
        return 0;
    if (!reachedAll_)
        return static_cast<int>(std::min(reached_, liveCount_));
    if (complete_)
        return static_cast<int>(liveCount_);
    return connection_->guarded([&] {
        QString sql = QStringLiteral("SELECT COUNT(*) FROM \"%1\"").arg(query_.table);
        if (!query_.where.isEmpty())
            sql += QStringLiteral(" WHERE (%1)").arg(query_.where);
        const auto statement = connection_->prepare(sql);
        statement->executeStep();
        const int count = statement->getColumn(0).getInt();
        statement->reset();
        return count;
    });
}

void Recordset::findFirst(const QString& criterion) {
    requireOpen();
    const auto key = complete_ && members_.size() <= probeLimit ? probe(criterion) : search(criterion);
    noMatch_ = !key.has_value();
    if (noMatch_)
        return;
    const auto known = std::find_if(members_.begin(), members_.end(),
                                    [&](const Member& member) { return member.key == *key; });
    if (known != members_.end())
        return settle(static_cast<std::size_t>(known - members_.begin()));
    jump(*key);
}

std::optional<std::int64_t> Recordset::probe(const QString& criterion) {
    return connection_->guarded([&]() -> std::optional<std::int64_t> {
        // Not kept for reuse: criteria carry what a learner typed and are hardly ever asked twice.
        SQLite::Statement statement(connection_->sqlite(),
                                    QStringLiteral("SELECT 1 FROM \"%1\" WHERE _rowid_=?1 AND (%2)")
                                        .arg(query_.table, criterion)
                                        .toStdString());
        for (const Member& member : members_) {
            if (member.gone)
                continue;
            statement.bind(1, member.key);
            const bool holds = statement.executeStep();
            statement.reset();
            if (holds)
                return member.key;
        }
        return std::nullopt;
    });
}

std::optional<std::int64_t> Recordset::search(const QString& criterion) {
    return connection_->guarded([&]() -> std::optional<std::int64_t> {
        Query narrowed = query_;
        narrowed.where =
            query_.where.isEmpty() ? criterion : QStringLiteral("(%1) AND (%2)").arg(query_.where, criterion);
        std::swap(narrowed, query_);
        const QString sql = keyQuery(false);
        std::swap(narrowed, query_);
        SQLite::Statement statement(connection_->sqlite(), sql.toStdString());
        std::optional<std::int64_t> first;
        if (!complete_) {
            if (statement.executeStep())
                first = statement.getColumn(0).getInt64();
            return first;
        }
        std::unordered_map<std::int64_t, std::size_t> places;
        for (std::size_t i = 0; i < members_.size(); ++i)
            if (!members_[i].gone)
                places.emplace(members_[i].key, i);
        std::size_t best = std::numeric_limits<std::size_t>::max();
        while (statement.executeStep())
            if (const auto place = places.find(statement.getColumn(0).getInt64());
                place != places.end() && place->second < best) {
                best = place->second;
                first = place->first;
            }
        return first;
    });
}

void Recordset::edit() {
    requireCurrent();
    pending_.clear();
    mode_ = Mode::Edit;
}

void Recordset::addNew() {
    requireOpen();
    pending_.clear();
    mode_ = Mode::Add;
}

void Recordset::update() {
    if (mode_ == Mode::Read)
        throw RuntimeError(Fault::InvalidCall,
                           QStringLiteral("Update without an edit on %1.").arg(description()));
    if (mode_ == Mode::Add)
        insertRow();
    else if (!pending_.empty())
        updateRow();
    dropEdit();
}

void Recordset::insertRow() {
    QStringList columns;
    QStringList marks;
    for (const auto& [index, value] : pending_) {
        columns.append(u'"' + shape_->columns[index] + u'"');
        marks.append(QStringLiteral("?"));
    }
    const QString sql = columns.isEmpty()
                            ? QStringLiteral("INSERT INTO \"%1\" DEFAULT VALUES").arg(query_.table)
                            : QStringLiteral("INSERT INTO \"%1\" (%2) VALUES (%3)")
                                  .arg(query_.table, columns.join(u','), marks.join(u','));
    connection_->guarded([&] {
        const auto statement = connection_->prepare(sql);
        int position = 0;
        for (const auto& [index, value] : pending_)
            bindValue(*statement, ++position, value);
        statement->exec();
        if (complete_) {
            members_.push_back({connection_->sqlite().getLastInsertRowid(), false});
            ++liveCount_;
        }
    });
    if (place_ == Place::After && liveCount_ == 1)
        place_ = Place::Before;
    reached_ = std::max<std::size_t>(reached_, 1);
}

void Recordset::updateRow() {
    // What already stands in the row is not written again: an unchanged row costs no flush to the disk.
    fetch();
    std::erase_if(pending_, [&](const auto& entry) {
        return row_[static_cast<std::size_t>(entry.first)].content() == entry.second.content();
    });
    if (pending_.empty())
        return;
    QStringList assignments;
    for (const auto& [index, value] : pending_)
        assignments.append(QStringLiteral("\"%1\"=?").arg(shape_->columns[index]));
    connection_->guarded([&] {
        const auto statement = connection_->prepare(
            QStringLiteral("UPDATE \"%1\" SET %2 WHERE _rowid_=?").arg(query_.table, assignments.join(u',')));
        int position = 0;
        for (const auto& [index, value] : pending_)
            bindValue(*statement, ++position, value);
        statement->bind(++position, key_);
        statement->exec();
    });
}

void Recordset::remove() {
    requireCurrent();
    pull(true);
    const std::size_t index = currentIndex();
    dropEdit();
    connection_->guarded([&] {
        const auto statement =
            connection_->prepare(QStringLiteral("DELETE FROM \"%1\" WHERE _rowid_=?").arg(query_.table));
        statement->bind(1, key_);
        statement->exec();
    });
    members_[index].gone = true;
    --liveCount_;
    place_ = Place::Gone;
}

int Recordset::fieldCount() const {
    requireOpen();
    return static_cast<int>(shape_->columns.size());
}

QString Recordset::fieldName(int index) const {
    requireOpen();
    return shape_->columns.value(index);
}

int Recordset::findField(const QString& field) const {
    return shape_ ? shape_->indexByLowerName.value(field.toLower(), -1) : -1;
}

int Recordset::fieldIndex(const QString& field) const {
    requireOpen();
    const int index = findField(field);
    if (index < 0)
        throw RuntimeError(Fault::ItemNotFound,
                           QStringLiteral("There is no field '%1' in %2.").arg(field, description()));
    return index;
}

const Value& Recordset::value(const QString& field) const {
    return value(fieldIndex(field));
}

const Value& Recordset::value(int index) const {
    static const Value nothing;
    if (mode_ == Mode::Add) {
        const auto set = pending_.find(index);
        return set == pending_.end() ? nothing : set->second;
    }
    requireCurrent();
    if (index < 0 || index >= fieldCount())
        throw RuntimeError(Fault::ItemNotFound,
                           QStringLiteral("There is no field %1 in %2.").arg(index).arg(description()));
    if (mode_ == Mode::Edit)
        if (const auto set = pending_.find(index); set != pending_.end())
            return set->second;
    fetch();
    return row_[static_cast<std::size_t>(index)];
}

void Recordset::fetch() const {
    if (rowKey_ == key_ && rowChanges_ == connection_->totalChanges() && !row_.empty())
        return;
    connection_->guarded([&] {
        const auto statement =
            connection_->prepare(QStringLiteral("SELECT * FROM \"%1\" WHERE _rowid_=?").arg(query_.table));
        statement->bind(1, key_);
        if (!statement->executeStep())
            throw RuntimeError(
                Fault::NoCurrentRecord,
                QStringLiteral("No current record: a row of %1 was deleted.").arg(description()));
        row_.clear();
        for (int i = 0; i < statement->getColumnCount(); ++i)
            row_.push_back(readColumn(statement->getColumn(i)));
        statement->reset();
    });
    rowKey_ = key_;
    rowChanges_ = connection_->totalChanges();
}

template <typename Read>
auto Recordset::explain(const QString& field, Read read) const {
    const Value& content = value(field);
    try {
        return read(content);
    } catch (const RuntimeError& error) {
        const QString row = index_ ? QStringLiteral(", row %1").arg(*index_ + 1) : QString();
        throw RuntimeError(
            error.fault(),
            QStringLiteral("%1 (field '%2' of %3%4)").arg(error.sentence(), field, description(), row));
    }
}

QString Recordset::text(const QString& field) const {
    return explain(field, [](const Value& content) { return content.toText(); });
}

Int16 Recordset::integer(const QString& field) const {
    return explain(field, [](const Value& content) { return content.toInt16(); });
}

QString Recordset::textOrEmpty(const QString& field) const {
    const Value& content = value(field);
    return content.isNull() ? QString() : content.toText();
}

void Recordset::set(const QString& field, const Value& value) {
    set(fieldIndex(field), value);
}

void Recordset::set(int index, const Value& value) {
    requireOpen();
    if (mode_ == Mode::Read)
        throw RuntimeError(Fault::InvalidCall,
                           QStringLiteral("A field of %1 was set without an edit.").arg(description()));
    if (index < 0 || index >= fieldCount())
        throw RuntimeError(Fault::ItemNotFound,
                           QStringLiteral("There is no field %1 in %2.").arg(index).arg(description()));
    pending_[index] = value;
}

QString Recordset::description() const {
    if (!connection_)
        return QStringLiteral("a set that is not open");
    QString text = QStringLiteral("table '%1' of '%2'").arg(query_.table, connection_->shownName());
    if (!query_.where.isEmpty())
        text += QStringLiteral(" where ") + query_.where;
    return text;
}

void Recordset::requireCurrent() const {
    requireOpen();
    if (place_ != Place::At)
        throw RuntimeError(Fault::NoCurrentRecord,
                           QStringLiteral("No current record in %1.").arg(description()));
}

void deleteAll(Recordset& rows) {
    if (rows.isEmpty())
        return;
    for (rows.moveFirst(); !rows.eof(); rows.moveNext())
        rows.remove();
}

}  // namespace platform
