#pragma once

#include "tools/import_reader.h"

#include <glib.h>
// Its header counts on glib's types being there.
#include <mdbtools.h>

#include <QByteArray>

#include <memory>
#include <optional>

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
std::optional<QByteArray> longValue(MdbHandle& handle, const QByteArray& field, QString& problem);

/// One field as the reader gives it. `start` is its place on the handle's first page buffer.
class FieldDecoder {
   public:
    FieldDecoder(MdbHandle& handle, int codePage) : handle_(handle), codePage_(codePage) {}

    /// `problem` stays empty where the value is whole.
    QVariant decode(const MdbColumn& column, const QByteArray& bytes, int start, QString& problem);
    /// The undecoded bytes of a text or memo, nothing for other fields.
    std::optional<QByteArray> textBytes(const MdbColumn& column, const QByteArray& bytes);

   private:
    QVariant decodeText(const QByteArray& bytes, QString& problem) const;
    QVariant decodeNumeric(const MdbColumn& column, int start);

    MdbHandle& handle_;
    int codePage_;
};

}  // namespace tools
