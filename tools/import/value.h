#pragma once

#include "core/schema.h"
#include "tools/access/reader.h"

#include <optional>

namespace tools {

/// How a column of a store keeps its values.
enum class StoreKind { Integer, Number, Text, Blob };

/// The kind of a column: as the course counts on it, else as the source has it.
StoreKind storeKind(SourceType type, const core::FieldShape* known);
/// The declaration of a column of the kind.
QString columnDeclaration(StoreKind kind);

/// A date as the stores have it, "YYYY-MM-DD", with " HH:MM:SS" where it has a time. Nothing outside the
/// years 100 to 9999, which is what such a file can hold.
std::optional<QString> isoDate(double daysSince1899);

/// The value as text, the same for a source and for its copy: a number in its shortest form, 5.0 as "5".
/// Nothing for null.
std::optional<QByteArray> canonical(const QVariant& value);

/// The value that goes into a store: dates as text, numbers as text where the column holds texts. `problem`
/// says what has no form there; nothing is stored then.
QVariant storedValue(const QVariant& source, SourceType type, StoreKind kind, QString& problem);

/// The value of a source as its checksum counts it.
QVariant comparedValue(const QVariant& source, SourceType type);

/// Row count and checksum over all values of a table, in row order, null apart from an empty text.
class TableSum {
   public:
    void add(const QVariant& value);
    void endRow();

    qint64 rows() const { return static_cast<qint64>(rowSums_.size()); }
    /// The first sixteen digits of the checksum.
    QString text() const;
    /// The first row, counted from 1, that is another here and there; 0 where all are alike.
    qint64 firstDifference(const TableSum& other) const;

   private:
    QByteArray row_;
    std::vector<QByteArray> rowSums_;
};

}  // namespace tools
