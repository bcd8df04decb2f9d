#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <memory>
#include <stdexcept>
#include <vector>

namespace tools {

/// What a field of an Access table holds, as far as a copy has to tell kinds apart.
enum class SourceType {
    Boolean,
    Integer,
    Number,
    Decimal,
    Date,
    Text,
    Binary,
    Identifier,
    Calculated,
    Unknown
};

struct SourceColumn {
    QString name;
    SourceType type = SourceType::Unknown;
    int typeCode = 0;  // as the file has it
};

struct SourceTable {
    QString name;
    std::vector<SourceColumn> columns;
    qint64 declaredRows = 0;  // what the table's header counts; 0 where it was never brought up to date
};

/// Something that could not be read. Without a column it concerns the whole row, or the table as a whole.
struct ReadProblem {
    QString column;
    QString sentence;
    bool ofTable = false;
};

/// One row in column order. Null is an invalid QVariant, an empty text a valid one. Integers come as
/// qlonglong, numbers and dates (days since 1899-12-30) as double, decimals and identifiers as text.
struct SourceRow {
    std::vector<QVariant> values;
    std::vector<ReadProblem> problems;

    /// False where nothing could be read of it.
    bool readable() const { return !values.empty(); }
};

/// A file or table that cannot be read at all; the sentence names neither, since the caller knows them.
class ReadError : public std::runtime_error {
   public:
    explicit ReadError(const QString& sentence) : std::runtime_error(sentence.toStdString()) {}
    QString sentence() const { return QString::fromUtf8(what()); }
};

/// A database file, read from front to back, one table at a time.
class AccessReader {
   public:
    AccessReader() = default;
    virtual ~AccessReader() = default;
    AccessReader(const AccessReader&) = delete;
    AccessReader& operator=(const AccessReader&) = delete;

    /// The file's own tables in the order of its catalogue. Throws ReadError.
    virtual QStringList tables() = 0;
    /// Makes a table the current one and goes before its first row. Throws ReadError.
    virtual SourceTable openTable(const QString& name) = 0;
    /// The next row of the current table, false after the last. Throws ReadError where reading cannot go on.
    virtual bool nextRow(SourceRow& row) = 0;
    /// The code page of the file's texts; `unicodePage` for UTF-16.
    virtual int codePage() const = 0;
};

inline constexpr int unicodePage = 1200;
/// Asks a reader to find the code page out by itself.
inline constexpr int unknownPage = 0;

/// Opens a file, its texts being in the code page given. Throws ReadError.
using ReaderMaker = std::function<std::unique_ptr<AccessReader>(const QString& file, int codePage)>;

}  // namespace tools
