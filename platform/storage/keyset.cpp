#include "platform/storage/keyset.h"

#include "platform/storage/connection.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QStringList>

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

QString selection(const QString& what, const Query& query) {
    QString sql = QStringLiteral("SELECT %1 FROM \"%2\"").arg(what, query.table);
    if (!query.where.isEmpty())
        sql += QStringLiteral(" WHERE (%1)").arg(query.where);
    return sql;
}

QString keyQuery(const Query& query, bool reversed = false) {
    const QString sql = selection(QStringLiteral("_rowid_"), query);
    const QString last = reversed ? QStringLiteral("_rowid_ DESC") : QStringLiteral("_rowid_");
    if (query.orderBy.isEmpty())
        return sql + QStringLiteral(" ORDER BY ") + last;
    return sql + QStringLiteral(" ORDER BY %1, %2")
                     .arg(reversed ? reversedOrder(query.orderBy) : query.orderBy, last);
}

}  // namespace

Keyset::Keyset(std::shared_ptr<Connection> connection, Query query)
    : connection_(std::move(connection)), query_(std::move(query)), complete_(false) {
    read(false);
}

void Keyset::read(bool all) {
    connection_->translateErrors(
        [&] {
            const auto statement = connection_->prepare(keyQuery(query_) + QStringLiteral(" LIMIT ?"));
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
        },
        query_.table);
}

void Keyset::readAll() {
    if (!complete_)
        read(true);
}

std::size_t Keyset::totalCount() const {
    if (complete_)
        return liveCount_;
    return connection_->translateErrors([&] {
        const auto statement = connection_->prepare(selection(QStringLiteral("COUNT(*)"), query_));
        statement->executeStep();
        const auto count = static_cast<std::size_t>(statement->getColumn(0).getInt64());
        statement->reset();
        return count;
    });
}

std::optional<std::size_t> Keyset::indexOf(std::int64_t key) const {
    const auto found = std::find_if(members_.begin(), members_.end(),
                                    [&](const Member& member) { return member.key == key && !member.gone; });
    if (found == members_.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - members_.begin());
}

std::optional<std::size_t> Keyset::nextLive(std::size_t from) {
    if (from >= members_.size())
        readAll();
    for (std::size_t i = from; i < members_.size(); ++i)
        if (!members_[i].gone)
            return i;
    return std::nullopt;
}

std::size_t Keyset::lastLive() const {
    std::size_t last = members_.size() - 1;
    while (members_[last].gone)
        --last;
    return last;
}

std::optional<std::int64_t> Keyset::lastKeyInStore() const {
    return connection_->translateErrors([&] {
        std::optional<std::int64_t> key;
        const auto statement = connection_->prepare(keyQuery(query_, true) + QStringLiteral(" LIMIT 1"));
        if (statement->executeStep())
            key = statement->getColumn(0).getInt64();
        statement->reset();
        return key;
    });
}

void Keyset::append(std::int64_t key) {
    if (!complete_)
        return;
    members_.push_back({key, false});
    ++liveCount_;
}

void Keyset::markGone(std::size_t index) {
    members_[index].gone = true;
    --liveCount_;
}

std::optional<std::int64_t> Keyset::find(const QString& criterion) const {
    return complete_ && members_.size() <= probeLimit ? probe(criterion) : search(criterion);
}

std::optional<std::int64_t> Keyset::probe(const QString& criterion) const {
    return connection_->translateErrors(
        [&]() -> std::optional<std::int64_t> {
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
        },
        query_.table);
}

std::optional<std::int64_t> Keyset::search(const QString& criterion) const {
    return connection_->translateErrors(
        [&]() -> std::optional<std::int64_t> {
            Query narrowed = query_;
            narrowed.where = query_.where.isEmpty()
                                 ? criterion
                                 : QStringLiteral("(%1) AND (%2)").arg(query_.where, criterion);
            SQLite::Statement statement(connection_->sqlite(), keyQuery(narrowed).toStdString());
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
        },
        query_.table);
}

}  // namespace platform
