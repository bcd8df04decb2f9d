#include "tools/access/jet.h"

#include "tools/access/header.h"
#include "tools/access/jet_field.h"
#include "tools/access/text.h"

#include <QFile>

#include <algorithm>
#include <array>

namespace tools {

namespace {

// Enough to tell a Korean file from a western one.
constexpr qsizetype sampleBytes = 65536;
constexpr int longestMove = 8;
// The bits of a row's entry that are its place on the page.
constexpr int placeMask = 0x1fff;
constexpr qsizetype namedSuspicions = 5;

class JetReader final : public AccessReader {
   public:
    JetReader(const QString& file, int codePage);

    QStringList tables() override;
    SourceTable openTable(const QString& name) override;
    bool nextRow(SourceRow& row) override;
    int codePage() const override { return codePage_; }

   private:
    void open(const QString& file, int codePage);
    int findCodePage(const AccessHeader& header);
    void readCatalog();
    template <typename Wanted>
    MdbCatalogEntry* findEntry(Wanted wanted) const;
    void loadTable(MdbCatalogEntry& entry);
    bool nextPage();
    bool loadPage(int page);
    /// True where the entry of the page in hand gave a row or a problem.
    bool readEntry(int index, SourceRow& row);
    bool followMove(int index, int& start, std::size_t& length);
    void readFields(int start, std::size_t length, SourceRow& row);
    bool endOfTable(SourceRow& row);
    void suspect(const QString& what) { suspicions_.append(what); }
    MdbColumn& column(unsigned index) const {
        return *static_cast<MdbColumn*>(g_ptr_array_index(table_->columns, index));
    }

    JetHandle handle_;
    JetTable table_;
    std::vector<bool> calculated_;
    int codePage_ = unicodePage;
    qint64 pages_ = 0;
    int page_ = 0;
    int entry_ = 0;
    int entries_ = 0;
    qint64 rowsRead_ = 0;
    bool ended_ = false;
    QStringList suspicions_;
    QList<QByteArray>* samples_ = nullptr;
    std::array<unsigned char, MDB_PGSIZE> pageCopy_{};
};

AccessHeader readHeader(const QString& file) {
    QFile opened(file);
    if (!opened.open(QIODevice::ReadOnly))
        throw ReadError(QStringLiteral("the file cannot be opened: %1").arg(opened.errorString()));
    const auto header = parseAccessHeader(opened.read(MDB_PGSIZE));
    if (!header)
        throw ReadError(QStringLiteral("the file does not begin like an Access file"));
    if (header->sealed() || header->password)
        throw ReadError(
            QStringLiteral("the file is protected with a password; take the password off in Access first"));
    return *header;
}

JetReader::JetReader(const QString& file, int codePage) {
    const AccessHeader header = readHeader(file);
    pages_ = QFile(file).size();
    open(file, codePage == unknownPage ? header.codePage : codePage);
    if (!header.codePageTexts() || codePage != unknownPage) {
        codePage_ = header.codePageTexts() ? codePage : unicodePage;
        return;
    }
    codePage_ = findCodePage(header);
    open(file, codePage_);
}

/// Names of tables and fields are converted by the library, which takes the code page from the environment.
void JetReader::open(const QString& file, int codePage) {
    table_.reset();
    if (knownCodePage(codePage))
        qputenv("MDB_JET3_CHARSET", QByteArrayLiteral("CP") + QByteArray::number(codePage));
    handle_.reset(mdb_open(QFile::encodeName(file).constData(), MDB_NOFLAGS));
    if (!handle_)
        throw ReadError(QStringLiteral("the file's first page is damaged"));
    pages_ = std::max<qint64>(1, QFile(file).size() / handle_->fmt->pg_size);
}

int JetReader::findCodePage(const AccessHeader& header) {
    QList<QByteArray> samples;
    samples_ = &samples;
    for (const QString& name : tables()) {
        try {
            openTable(name);
            SourceRow row;
            while (nextRow(row))
                if (samples.size() * 16 > sampleBytes)
                    break;
        } catch (const ReadError&) {
            // Told when the table itself is read.
            continue;
        }
    }
    samples_ = nullptr;
    return chooseCodePage(header.codePage, header.language, samples);
}

/// Throws where the list of objects holds fewer than it counts, since a table that is not listed would be
/// lost in silence.
void JetReader::readCatalog() {
    if (!mdb_read_catalog(handle_.get(), MDB_ANY))
        throw ReadError(QStringLiteral("the list of tables is damaged"));
    MdbCatalogEntry* list =
        findEntry([](const MdbCatalogEntry& e) { return qstrcmp(e.object_name, "MSysObjects") == 0; });
    const JetTable counted(list ? mdb_read_table(list) : nullptr);
    if (!counted || handle_->num_catalog < counted->num_rows)
        throw ReadError(QStringLiteral("the list of tables is damaged: %1 of its %2 entries were found")
                            .arg(handle_->num_catalog)
                            .arg(counted ? counted->num_rows : 0));
}

template <typename Wanted>
MdbCatalogEntry* JetReader::findEntry(Wanted wanted) const {
    for (unsigned i = 0; i < handle_->num_catalog; ++i) {
        auto* entry = static_cast<MdbCatalogEntry*>(g_ptr_array_index(handle_->catalog, i));
        if (wanted(*entry))
            return entry;
    }
    return nullptr;
}

QStringList JetReader::tables() {
    readCatalog();
    QStringList names;
    findEntry([&](MdbCatalogEntry& entry) {
        if (mdb_is_user_table(&entry))
            names.append(QString::fromUtf8(entry.object_name));
        return false;
    });
    return names;
}

SourceTable JetReader::openTable(const QString& name) {
    table_.reset();
    readCatalog();
    const QByteArray wanted = name.toUtf8();
    MdbCatalogEntry* entry =
        findEntry([&](MdbCatalogEntry& e) { return mdb_is_user_table(&e) && wanted == e.object_name; });
    if (!entry)
        throw ReadError(QStringLiteral("the table is not in the file"));
    loadTable(*entry);
    SourceTable table{name, {}, table_->num_rows};
    for (unsigned i = 0; i < table_->num_cols; ++i) {
        const MdbColumn& field = column(i);
        const SourceType type = calculated_[i] ? SourceType::Calculated : sourceType(field.col_type);
        table.columns.push_back({QString::fromUtf8(field.name), type, field.col_type});
    }
    return table;
}

void JetReader::loadTable(MdbCatalogEntry& entry) {
    table_.reset(mdb_read_table(&entry));
    if (!table_ || !mdb_read_columns(table_.get()) || table_->columns->len != table_->num_cols ||
        table_->num_cols == 0)
        throw ReadError(QStringLiteral("the table's definition on page %1 is damaged").arg(entry.table_pg));
    calculated_ = calculatedColumns(*handle_, *table_);
    page_ = 0;
    entry_ = 0;
    entries_ = 0;
    rowsRead_ = 0;
    ended_ = false;
    suspicions_.clear();
}

bool JetReader::nextRow(SourceRow& row) {
    row = {};
    for (;;) {
        while (entry_ < entries_)
            if (readEntry(entry_++, row)) {
                rowsRead_ += row.readable() ? 1 : 0;
                return true;
            }
        if (!nextPage())
            return endOfTable(row);
    }
}

bool JetReader::nextPage() {
    while (!ended_) {
        const int next =
            mdb_map_find_next(handle_.get(), table_->usage_map, static_cast<unsigned>(table_->map_sz),
                              static_cast<guint32>(page_));
        if (next < 0)
            suspect(QStringLiteral("the list of its pages is damaged"));
        ended_ = next <= page_;
        if (!ended_) {
            page_ = next;
            if (loadPage(next))
                return true;
        }
    }
    return false;
}

bool JetReader::loadPage(int page) {
    MdbHandle& handle = *handle_;
    const auto owner = static_cast<long>(table_->entry->table_pg);
    const bool there = page < pages_ && mdb_read_pg(&handle, static_cast<unsigned long>(page)) != 0;
    if (!there || handle.pg_buf[0] != MDB_PAGE_DATA || mdb_get_int32(handle.pg_buf, 4) != owner) {
        suspect(QStringLiteral("page %1 is damaged").arg(page));
        return false;
    }
    const int first = handle.fmt->row_count_offset;
    entry_ = 0;
    entries_ = mdb_get_int16(handle.pg_buf, first);
    const int room = static_cast<int>(handle.fmt->pg_size - first - 2) / 2;
    if (entries_ > room) {
        suspect(QStringLiteral("page %1 is damaged").arg(page));
        entries_ = 0;
    }
    std::copy_n(handle.pg_buf, pageCopy_.size(), pageCopy_.begin());
    return true;
}

bool JetReader::readEntry(int index, SourceRow& row) {
    MdbHandle& handle = *handle_;
    std::copy(pageCopy_.begin(), pageCopy_.end(), handle.pg_buf);
    const int flags = mdb_get_int16(handle.pg_buf, handle.fmt->row_count_offset + 2 + index * 2) & deletedRow;
    // A row that was moved here is read where it is pointed to from, which keeps the table's order.
    if (flags == deletedRow || flags == targetRow)
        return false;
    int start = 0;
    std::size_t length = 0;
    if (flags == movedRow) {
        if (!followMove(index, start, length)) {
            row.problems.push_back(
                {{}, QStringLiteral("the row was moved and its new place is damaged"), false});
            return true;
        }
    } else if (mdb_find_row(&handle, index, &start, &length) != 0 || length == 0) {
        suspect(QStringLiteral("the list of rows on page %1 is damaged").arg(page_));
        return false;
    }
    readFields(start, length, row);
    return true;
}

bool JetReader::followMove(int index, int& start, std::size_t& length) {
    MdbHandle& handle = *handle_;
    if (mdb_find_row(&handle, index, &start, &length) != 0)
        return false;
    const int rows = handle.fmt->row_count_offset + 2;
    for (int hop = 0; hop < longestMove; ++hop) {
        start &= placeMask;
        if (length < 4 || start + 4 > handle.fmt->pg_size)
            return false;
        const auto place = static_cast<quint32>(mdb_get_int32(handle.pg_buf, start));
        void* page = nullptr;
        if (static_cast<qint64>(place >> 8) >= pages_ ||
            mdb_find_pg_row(&handle, static_cast<int>(place), &page, &start, &length) != 0 ||
            handle.alt_pg_buf[0] != MDB_PAGE_DATA)
            return false;
        std::copy_n(handle.alt_pg_buf, pageCopy_.size(), handle.pg_buf);
        const int flags =
            mdb_get_int16(handle.pg_buf, rows + static_cast<int>(place & 0xff) * 2) & deletedRow;
        if (flags != movedRow)
            return flags != deletedRow && length > 0;
    }
    return false;
}

void JetReader::readFields(int start, std::size_t length, SourceRow& row) {
    MdbHandle& handle = *handle_;
    std::vector<MdbField> fields(table_->num_cols);
    if (mdb_crack_row(table_.get(), start & placeMask, length, fields.data()) < 0) {
        row.problems.push_back({{}, QStringLiteral("the row on page %1 is damaged").arg(page_), false});
        return;
    }
    FieldDecoder decoder(handle, pages_ * handle.fmt->pg_size, codePage_);
    row.values.resize(fields.size());
    for (const MdbField& field : fields) {
        const auto index = static_cast<unsigned>(field.colnum);
        const MdbColumn& source = column(index);
        QVariant& value = row.values[index];
        if (calculated_[index])
            continue;
        if (source.col_type == MDB_BOOL) {
            value = qlonglong{field.is_null ? 0 : -1};
            continue;
        }
        if (field.is_null)
            continue;
        QString problem;
        if (field.start < 0 || field.siz < 0 || field.start + field.siz > handle.fmt->pg_size)
            problem = QStringLiteral("the value lies outside its row");
        else {
            const QByteArray bytes(reinterpret_cast<const char*>(handle.pg_buf) + field.start, field.siz);
            if (samples_) {
                const auto text = decoder.textBytes(source, bytes);
                if (text && std::any_of(text->begin(), text->end(), [](char c) { return (c & 0x80) != 0; }))
                    samples_->append(*text);
                continue;
            }
            value = decoder.decode(source, bytes, field.start, problem);
        }
        if (!problem.isEmpty())
            row.problems.push_back({QString::fromUtf8(source.name), problem, false});
    }
}

/// What looks like damage counts only where rows are missing: maps of whole files hold stale pages too.
bool JetReader::endOfTable(SourceRow& row) {
    const auto declared = static_cast<qint64>(table_->num_rows);
    const bool missing = rowsRead_ < declared || (declared == 0 && !suspicions_.isEmpty());
    if (!missing || (suspicions_.isEmpty() && rowsRead_ >= declared))
        return false;
    suspicions_.removeDuplicates();
    const QString reasons = suspicions_.mid(0, namedSuspicions).join(QStringLiteral(", "));
    QString sentence =
        QStringLiteral("%1 of the %2 rows that the table counts were found").arg(rowsRead_).arg(declared);
    if (!reasons.isEmpty())
        sentence += QStringLiteral("; %1").arg(reasons);
    row.problems.push_back({{}, sentence, true});
    table_->num_rows = 0;
    suspicions_.clear();
    return true;
}

}  // namespace

std::unique_ptr<AccessReader> openJetFile(const QString& file, int codePage) {
    return std::make_unique<JetReader>(file, codePage);
}

}  // namespace tools
