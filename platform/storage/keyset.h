#pragma once

#include "platform/storage/query.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace platform {

class Connection;

/// The rows that belong to a set, by key and in the order of its query. Of a long set only the first ones are
/// known until a move needs more, so that opening costs the same for any length.
class Keyset {
   public:
    Keyset() = default;
    /// Reads the first members. Throws SyntaxError, TableNotFound or ItemNotFound.
    Keyset(std::shared_ptr<Connection> connection, Query query);

    const Query& query() const { return query_; }
    bool isEmpty() const { return liveCount_ == 0; }
    /// Whether all members are known.
    bool isComplete() const { return complete_; }
    /// How many members are known, deleted ones included.
    std::size_t size() const { return members_.size(); }
    /// How many of them are left.
    std::size_t liveCount() const { return liveCount_; }
    /// How many rows belong to the set, counted in the store where not all are known.
    std::size_t totalCount() const;

    std::int64_t keyAt(std::size_t index) const { return members_[index].key; }
    /// The place of a known member that was not deleted. The engine gives the key of a deleted row to a later
    /// one, so that a key can stand in the list twice.
    std::optional<std::size_t> indexOf(std::int64_t key) const;
    /// The first member at or after a place that was not deleted; reads on where the known ones end.
    std::optional<std::size_t> nextLive(std::size_t from);
    /// The last known member that was not deleted; only for a list that has one.
    std::size_t lastLive() const;
    /// The last row's key as the store tells it now.
    std::optional<std::int64_t> lastKeyInStore() const;

    /// Learns all members.
    void readAll();
    /// Takes a row in at the end; one that is still to be read comes by itself.
    void append(std::int64_t key);
    void markGone(std::size_t index);

    /// The key of the first member for which the criterion holds. Throws SyntaxError.
    std::optional<std::int64_t> find(const QString& criterion) const;

   private:
    struct Member {
        std::int64_t key = 0;
        bool gone = false;
    };

    void read(bool all);
    std::optional<std::int64_t> probe(const QString& criterion) const;
    std::optional<std::int64_t> search(const QString& criterion) const;

    std::shared_ptr<Connection> connection_;
    Query query_;
    std::vector<Member> members_;
    std::size_t liveCount_ = 0;
    bool complete_ = true;
};

}  // namespace platform
