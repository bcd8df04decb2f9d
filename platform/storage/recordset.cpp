#include "platform/storage/recordset.h"

#include "platform/error.h"
#include "platform/storage/connection.h"
#include "platform/storage/database.h"
#include "platform/storage/sql_value.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>
#include <utility>

namespace platform {

namespace {

// What a long text field of the old stores holds at most. Far longer ones stem from damage and would keep a
// screen from ever being painted.
constexpr qsizetype longestText = 65535;

}  // namespace

Recordset::Recordset(std::shared_ptr<Connection> connection, Query query)
    : connection_(std::move(connection)),
      shape_(connection_->shape(query.table)),
      members_(connection_, std::move(query)) {
    if (members_.isEmpty())
        return;
    settle(0);
    reached_ = 1;
}

void Recordset::settle(std::size_t index) {
    dropEdit();
    index_ = index;
    key_ = members_.keyAt(index);
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
        throw RuntimeError(ErrorCode::InvalidCall,
                           QStringLiteral("A set of rows was used that is not open."));
}

void Recordset::moveFirst() {
    requireOpen();
    if (const auto first = members_.nextLive(0))
        return settle(*first);
    throw RuntimeError(ErrorCode::NoCurrentRecord,
                       QStringLiteral("No current record: there is no row in %1.").arg(description()));
}

void Recordset::moveLast() {
    requireOpen();
    if (members_.isEmpty())
        moveFirst();
    reachedAll_ = true;
    if (members_.isComplete())
        settle(members_.lastLive());
    else if (const auto key = members_.lastKeyInStore())
        jump(*key);
}

std::size_t Recordset::currentIndex() {
    if (!index_) {
        members_.readAll();
        index_ = members_.indexOf(key_);
    }
    // A row that another set has deleted meanwhile has no place: what follows is the end.
    return index_.value_or(members_.size());
}

void Recordset::moveNext() {
    requireOpen();
    if (place_ == Place::Before)
        return moveFirst();
    if (place_ == Place::After)
        throw RuntimeError(ErrorCode::NoCurrentRecord,
                           QStringLiteral("No current record: past the last row of %1.").arg(description()));
    if (const auto next = members_.nextLive(currentIndex() + 1))
        return settle(*next);
    dropEdit();
    place_ = Place::After;
}

void Recordset::move(int rows) {
    requireCurrent();
    for (int i = 0; i < rows && place_ != Place::After; ++i)
        moveNext();
}

int Recordset::recordCount() const {
    if (members_.isEmpty())
        return 0;
    return static_cast<int>(reachedAll_ ? members_.totalCount() : std::min(reached_, members_.liveCount()));
}

void Recordset::findFirst(const QString& criterion) {
    requireOpen();
    const auto key = members_.find(criterion);
    noMatch_ = !key.has_value();
    if (noMatch_)
        return;
    if (const auto known = members_.indexOf(*key))
        return settle(*known);
    jump(*key);
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
        throw RuntimeError(ErrorCode::InvalidCall,
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
                            ? QStringLiteral("INSERT INTO \"%1\" DEFAULT VALUES").arg(query().table)
                            : QStringLiteral("INSERT INTO \"%1\" (%2) VALUES (%3)")
                                  .arg(query().table, columns.join(u','), marks.join(u','));
    connection_->translateErrors([&] {
        const auto statement = connection_->prepare(sql);
        int position = 0;
        for (const auto& [index, value] : pending_)
            bindValue(*statement, ++position, value);
        statement->exec();
        members_.append(connection_->sqlite().getLastInsertRowid());
    });
    if (place_ == Place::After && members_.liveCount() == 1)
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
    connection_->translateErrors([&] {
        const auto statement = connection_->prepare(QStringLiteral("UPDATE \"%1\" SET %2 WHERE _rowid_=?")
                                                        .arg(query().table, assignments.join(u',')));
        int position = 0;
        for (const auto& [index, value] : pending_)
            bindValue(*statement, ++position, value);
        statement->bind(++position, key_);
        statement->exec();
    });
}

void Recordset::remove() {
    requireCurrent();
    members_.readAll();
    const std::size_t index = currentIndex();
    dropEdit();
    connection_->translateErrors([&] {
        const auto statement =
            connection_->prepare(QStringLiteral("DELETE FROM \"%1\" WHERE _rowid_=?").arg(query().table));
        statement->bind(1, key_);
        statement->exec();
    });
    // Another set may have deleted the row before, and then it has no place here.
    if (index < members_.size())
        members_.markGone(index);
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
        throw RuntimeError(ErrorCode::ItemNotFound,
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
        throw RuntimeError(ErrorCode::ItemNotFound,
                           QStringLiteral("There is no field %1 in %2.").arg(index).arg(description()));
    if (mode_ == Mode::Edit)
        if (const auto set = pending_.find(index); set != pending_.end())
            return set->second;
    fetch();
    const Value& content = row_[static_cast<std::size_t>(index)];
    if (const auto* text = std::get_if<QString>(&content.content());
        text != nullptr && text->size() > longestText)
        throw RuntimeError(ErrorCode::DatabaseFailure,
                           QStringLiteral("A text of %1 letters is too long, %2 can be shown (%3).")
                               .arg(text->size())
                               .arg(longestText)
                               .arg(location(shape_->columns[index])));
    return content;
}

void Recordset::fetch() const {
    if (rowKey_ == key_ && rowChanges_ == connection_->totalChanges() && !row_.empty())
        return;
    connection_->translateErrors([&] {
        const auto statement = connection_->prepare(rowQuery(query().table));
        statement->bind(1, key_);
        if (!statement->executeStep())
            throw RuntimeError(
                ErrorCode::NoCurrentRecord,
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
        throw RuntimeError(error.code(), QStringLiteral("%1 (%2)").arg(error.sentence(), location(field)));
    }
}

QString Recordset::location(const QString& field) const {
    const QString row = index_ ? QStringLiteral(", row %1").arg(*index_ + 1) : QString();
    return QStringLiteral("field '%1' of %2%3").arg(field, description(), row);
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
        throw RuntimeError(ErrorCode::InvalidCall,
                           QStringLiteral("A field of %1 was set without an edit.").arg(description()));
    if (index < 0 || index >= fieldCount())
        throw RuntimeError(ErrorCode::ItemNotFound,
                           QStringLiteral("There is no field %1 in %2.").arg(index).arg(description()));
    pending_[index] = value;
}

QString Recordset::description() const {
    if (!connection_)
        return QStringLiteral("a set that is not open");
    QString text = QStringLiteral("table '%1' of '%2'").arg(query().table, connection_->shownName());
    if (!query().where.isEmpty())
        text += QStringLiteral(" where ") + query().where;
    if (const QString origin = connection_->origin(query().table); !origin.isEmpty())
        text += QStringLiteral(", filled from ") + origin;
    return text;
}

void Recordset::requireCurrent() const {
    requireOpen();
    if (place_ != Place::At)
        throw RuntimeError(ErrorCode::NoCurrentRecord,
                           QStringLiteral("No current record in %1.").arg(description()));
}

void deleteAll(Recordset& rows) {
    if (rows.isEmpty())
        return;
    for (rows.moveFirst(); !rows.eof(); rows.moveNext())
        rows.remove();
}

}  // namespace platform
