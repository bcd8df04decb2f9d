#pragma once

#include "tools/access/reader.h"

#include <glib.h>
// Its header counts on glib's types being there.
#include <mdbtools.h>

#include <QByteArray>

#include <memory>
#include <optional>
#include <vector>

namespace tools {

struct CloseHandle {
    void operator()(MdbHandle* handle) const { mdb_close(handle); }
};
struct FreeTable {
    void operator()(MdbTableDef* table) const { mdb_free_tabledef(table); }
};
using JetHandle = std::unique_ptr<MdbHandle, CloseHandle>;
using JetTable = std::unique_ptr<MdbTableDef, FreeTable>;

/// Bits beside a row's place on its page: moved elsewhere, reached from elsewhere, both for deleted.
inline constexpr int movedRow = 0x4000;
inline constexpr int targetRow = 0x8000;
inline constexpr int deletedRow = movedRow | targetRow;

SourceType sourceType(int typeCode);

/// The bytes of a long value: they lie in the row, in one row of a value page or along a chain of such rows.
/// Overwrites the handle's second page buffer. `problem` says why nothing comes back.
/// No value is longer than the file, whose bytes are counted by `fileBytes`.
std::optional<QByteArray> longValue(MdbHandle& handle, qint64 fileBytes, const QByteArray& field,
                                    QString& problem);

/// One field as the reader gives it. `start` is its place on the handle's first page buffer.
class FieldDecoder {
   public:
    FieldDecoder(MdbHandle& handle, qint64 fileBytes, int codePage)
        : handle_(handle), fileBytes_(fileBytes), codePage_(codePage) {}

    /// `problem` stays empty where the value is whole.
    QVariant decode(const MdbColumn& column, const QByteArray& bytes, int start, QString& problem);
    /// The undecoded bytes of a text or memo, nothing for other fields.
    std::optional<QByteArray> textBytes(const MdbColumn& column, const QByteArray& bytes);

   private:
    QVariant decodeText(const QByteArray& bytes, QString& problem) const;
    QVariant decodeNumeric(const MdbColumn& column, int start);

    MdbHandle& handle_;
    qint64 fileBytes_;
    int codePage_;
};

/// Which columns of a table, in its column order, hold what Access calculates out of the others. Their values
/// lie in a wrapping of their own that the library does not take off.
std::vector<bool> calculatedColumns(MdbHandle& handle, const MdbTableDef& table);

}  // namespace tools
