#pragma once

#include <QString>

#include <span>
#include <string_view>

namespace core {

enum class FieldKind { Text, Integer, Number, Date };

/// One field of a table, as "name" or "name kind" would be written down.
struct FieldShape {
    std::string_view name;
    FieldKind kind = FieldKind::Text;
};

/// One table of a store, its fields in stored order. `indexes` holds the field lists that the program looks
/// rows up by, separated by semicolons, so that a lookup costs the same in a large course as in a small one.
struct TableDefinition {
    std::string_view store;
    std::string_view table;
    std::span<const FieldShape> fields;
    std::string_view indexes;
};

/// Every table of every store. A store is named as in an install; the learner's own is "DbScore".
std::span<const TableDefinition> tableDefinitions();

/// The definition of a table, names compared without regard to case, or null.
const TableDefinition* findTable(std::string_view store, std::string_view table);

/// How many leading fields the by-position copies between master and working tables take.
inline constexpr int quizCopyFields = 17;
inline constexpr int basicCopyFields = 8;
inline constexpr int tipCopyFields = 3;
inline constexpr int stepCopyFields = 12;

/// The statement that makes the table in a store, and those that make its indexes.
QStringList createStatements(const TableDefinition& definition);

}  // namespace core
