#include "tools/access/jet_field.h"

#include <QtEndian>

#include <algorithm>
#include <utility>

namespace tools {

namespace {

// Where the definition of a column has its number and the bits that say more of it, in files of Access 2007
// on.
constexpr int numberOffset = 5;
constexpr int furtherBitsOffset = 16;
constexpr unsigned char calculatedBits = 0xc0;
constexpr int pageHead = 8;
// A table has 255 columns at most, whose definitions and names fill no more pages than these.
constexpr int mostPages = 64;

/// The definition of a table, whose pages are a chain.
QByteArray definition(MdbHandle& handle, const MdbTableDef& table) {
    QByteArray bytes;
    auto page = static_cast<quint32>(table.entry->table_pg);
    for (int i = 0; page != 0 && i < mostPages; ++i) {
        if (mdb_read_pg(&handle, page) == 0)
            return bytes;
        const QByteArray content(reinterpret_cast<const char*>(handle.pg_buf), handle.fmt->pg_size);
        bytes += i == 0 ? content : content.mid(pageHead);
        page = qFromLittleEndian<quint32>(content.constData() + 4);
    }
    return bytes;
}

}  // namespace

std::vector<bool> calculatedColumns(MdbHandle& handle, const MdbTableDef& table) {
    std::vector<bool> calculated(table.num_cols, false);
    if (handle.f->jet_version < MDB_VER_ACCDB_2007)
        return calculated;
    const QByteArray bytes = definition(handle, table);
    const qsizetype size = handle.fmt->tab_col_entry_size;
    qsizetype place = handle.fmt->tab_cols_start_offset +
                      static_cast<qsizetype>(table.num_real_idxs) * handle.fmt->tab_ridx_entry_size;
    std::vector<std::pair<quint16, bool>> columns;
    for (unsigned i = 0; i < table.num_cols && place + size <= bytes.size(); ++i, place += size) {
        const auto bits = static_cast<unsigned char>(bytes[place + furtherBitsOffset]);
        columns.emplace_back(qFromLittleEndian<quint16>(bytes.constData() + place + numberOffset),
                             (bits & calculatedBits) != 0);
    }
    // The library gives the columns in the order of their numbers, in which deleted ones are missing.
    std::stable_sort(columns.begin(), columns.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    for (std::size_t i = 0; i < columns.size(); ++i)
        calculated[i] = columns[i].second;
    return calculated;
}

}  // namespace tools
