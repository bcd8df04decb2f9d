#pragma once

#include "platform/storage/keyset.h"
#include "platform/storage/value.h"

#include <QString>

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace SQLite {
class Statement;
}

namespace platform {

class Connection;
struct TableShape;

/// An updatable set of rows. Its members and their order are settled when it opens; their content is read
/// when asked for, so that a row written through another set is seen. Rows added through it join at the end.
class Recordset {
   public:
    /// A set that is not open.
    Recordset() = default;
    /// Opens the query, positioned at its first row. Throws SyntaxError, TableNotFound or ItemNotFound.
    Recordset(std::shared_ptr<Connection> connection, Query query);

    bool isOpen() const { return connection_ != nullptr; }
    bool bof() const { return place_ == Place::Before || members_.isEmpty(); }
    bool eof() const { return place_ == Place::After || members_.isEmpty(); }
    bool isEmpty() const { return bof() && eof(); }

    /// Throw NoCurrentRecord on a set without rows.
    void moveFirst();
    void moveLast();
    /// Throws NoCurrentRecord when the set is already past its end.
    void moveNext();
    /// Moves forward by a count of rows; past the last row it stands at the end.
    void move(int rows);

    /// How many rows have been reached: 1 right after opening a non-empty set, all of them after moveLast.
    int recordCount() const;

    /// Goes to the first member for which the criterion holds; without one the place stays. Texts compare
    /// without regard to case. Throws SyntaxError for a criterion that is not well formed.
    void findFirst(const QString& criterion);
    bool noMatch() const { return noMatch_; }

    /// Both last until update, or until a move, which drops what was set.
    void edit();
    void addNew();
    /// Stores what was set since edit or addNew. After addNew the place is that from before.
    void update();
    /// Deletes the current row; the place stands on nothing until the next move.
    void remove();

    int fieldCount() const;
    QString fieldName(int index) const;
    /// The index of a field by its name in any case, -1 without one.
    int findField(const QString& field) const;
    /// The current row's field. Throws NoCurrentRecord, ItemNotFound, and DatabaseFailure for a text that is
    /// too long for any screen.
    const Value& value(const QString& field) const;
    const Value& value(int index) const;
    /// The field as text or 16-bit number; errors name store, table, field and row.
    QString text(const QString& field) const;
    Int16 integer(const QString& field) const;
    /// The text of the field, empty where it has no value.
    QString textOrEmpty(const QString& field) const;

    void set(const QString& field, const Value& value);
    void set(int index, const Value& value);

    /// Lets the rows go; an unopened set stays as it is.
    void close() { *this = Recordset(); }

    /// "table T of 'store' where …": what this set is on, for messages.
    QString description() const;

   private:
    enum class Place { Before, At, Gone, After };
    enum class Mode { Read, Edit, Add };

    const Query& query() const { return members_.query(); }
    void settle(std::size_t index);
    /// Goes to a row whose place among the members is not known yet.
    void jump(std::int64_t key);
    void dropEdit();
    void requireOpen() const;
    std::size_t currentIndex();
    int fieldIndex(const QString& field) const;
    void fetch() const;
    void insertRow();
    void updateRow();
    void requireCurrent() const;
    /// "field F of table T of 'store' where …, row N", for messages.
    QString location(const QString& field) const;
    template <typename Read>
    auto explain(const QString& field, Read read) const;

    std::shared_ptr<Connection> connection_;
    std::shared_ptr<const TableShape> shape_;
    Keyset members_;
    Place place_ = Place::After;
    std::int64_t key_ = 0;
    std::optional<std::size_t> index_;  // unknown after a jump inside a set not yet read to its end
    std::size_t reached_ = 0;
    bool reachedAll_ = false;
    bool noMatch_ = false;

    Mode mode_ = Mode::Read;
    std::map<int, Value> pending_;
    mutable std::vector<Value> row_;
    mutable int rowChanges_ = -1;
    mutable std::int64_t rowKey_ = 0;
};

/// Deletes every row of the set.
void deleteAll(Recordset& rows);

}  // namespace platform
