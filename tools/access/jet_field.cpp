#include "tools/access/jet_field.h"
#include "tools/access/text.h"

#include <QUuid>
#include <QtEndian>

namespace tools {

namespace {

constexpr int longValueHeader = 12;
constexpr quint32 inRow = 0x80000000;
constexpr quint32 onePage = 0x40000000;
constexpr quint32 lengthMask = 0x3fffffff;
constexpr unsigned char dataPage = 0x01;

template <typename Number>
Number numberAt(const QByteArray& bytes, qsizetype offset = 0) {
    return qFromLittleEndian<Number>(bytes.constData() + offset);
}

/// The bytes of one row of a value page.
std::optional<QByteArray> valueRow(MdbHandle& handle, quint32 place) {
    void* page = nullptr;
    int offset = 0;
    std::size_t length = 0;
    if (mdb_find_pg_row(&handle, static_cast<int>(place), &page, &offset, &length) != 0)
        return std::nullopt;
    const auto* bytes = static_cast<const char*>(page);
    const bool whole = offset >= 0 && static_cast<std::size_t>(offset) + length <=
                                          static_cast<std::size_t>(handle.fmt->pg_size);
    if (!whole || bytes[0] != static_cast<char>(dataPage) || QByteArrayView(bytes + 4, 4) != "LVAL")
        return std::nullopt;
    return QByteArray(bytes + offset, static_cast<qsizetype>(length));
}

QString pageProblem(quint32 place) {
    return QStringLiteral("page %1, which holds part of it, is damaged").arg(place >> 8);
}

std::optional<QByteArray> chainedValue(MdbHandle& handle, quint32 place, qsizetype length, QString& problem) {
    QByteArray value;
    while (value.size() < length) {
        const auto row = place == 0 ? std::nullopt : valueRow(handle, place);
        // A piece without content could close the chain to a circle.
        if (!row || row->size() <= 4) {
            problem =
                place == 0
                    ? QStringLiteral("%1 of its %2 bytes are missing").arg(length - value.size()).arg(length)
                    : pageProblem(place);
            return std::nullopt;
        }
        value.append(row->mid(4));
        place = numberAt<quint32>(*row);
    }
    value.truncate(length);
    return value;
}

int neededBytes(int typeCode) {
    switch (typeCode) {
        case MDB_BYTE: return 1;
        case MDB_INT: return 2;
        case MDB_LONGINT:
        case MDB_FLOAT: return 4;
        case MDB_MONEY:
        case MDB_DOUBLE:
        case MDB_DATETIME: return 8;
        case MDB_REPID: return 16;
        case MDB_NUMERIC: return 17;
        default: return 0;
    }
}

/// Currency counts ten-thousandths.
QString moneyText(qint64 units) {
    const bool negative = units < 0;
    const quint64 size = negative ? 0 - static_cast<quint64>(units) : static_cast<quint64>(units);
    return QStringLiteral("%1%2.%3")
        .arg(negative ? QStringLiteral("-") : QString())
        .arg(size / 10000)
        .arg(size % 10000, 4, 10, QLatin1Char('0'));
}

QString identifierText(const QByteArray& bytes) {
    const auto* tail = reinterpret_cast<const uchar*>(bytes.constData()) + 8;
    return QUuid(numberAt<quint32>(bytes), numberAt<quint16>(bytes, 4), numberAt<quint16>(bytes, 6), tail[0],
                 tail[1], tail[2], tail[3], tail[4], tail[5], tail[6], tail[7])
        .toString()
        .toUpper();
}

}  // namespace

SourceType sourceType(int typeCode) {
    switch (typeCode) {
        case MDB_BOOL: return SourceType::Boolean;
        case MDB_BYTE:
        case MDB_INT:
        case MDB_LONGINT: return SourceType::Integer;
        case MDB_MONEY:
        case MDB_NUMERIC: return SourceType::Decimal;
        case MDB_FLOAT:
        case MDB_DOUBLE: return SourceType::Number;
        case MDB_DATETIME: return SourceType::Date;
        case MDB_BINARY:
        case MDB_OLE: return SourceType::Binary;
        case MDB_TEXT:
        case MDB_MEMO: return SourceType::Text;
        case MDB_REPID: return SourceType::Identifier;
        default: return SourceType::Unknown;
    }
}

std::optional<QByteArray> longValue(MdbHandle& handle, qint64 fileBytes, const QByteArray& field,
                                    QString& problem) {
    if (field.isEmpty())
        return QByteArray();
    if (field.size() < longValueHeader) {
        problem = QStringLiteral("its length is cut off");
        return std::nullopt;
    }
    const auto head = numberAt<quint32>(field);
    const auto length = static_cast<qsizetype>(head & lengthMask);
    const auto place = numberAt<quint32>(field, 4);
    if (length > fileBytes) {
        problem = QStringLiteral("it would have %1 bytes, more than the file").arg(length);
        return std::nullopt;
    }
    std::optional<QByteArray> value;
    if (head & inRow)
        value = field.mid(longValueHeader);
    else if (head & onePage)
        value = valueRow(handle, place);
    else
        return chainedValue(handle, place, length, problem);
    if (!value || value->size() < length) {
        problem =
            value ? QStringLiteral("%1 of its %2 bytes are missing").arg(length - value->size()).arg(length)
                  : pageProblem(place);
        return std::nullopt;
    }
    value->truncate(length);
    return value;
}

std::optional<QByteArray> FieldDecoder::textBytes(const MdbColumn& column, const QByteArray& bytes) {
    QString ignored;
    if (column.col_type == MDB_MEMO)
        return longValue(handle_, fileBytes_, bytes, ignored);
    return column.col_type == MDB_TEXT ? std::optional(bytes) : std::nullopt;
}

QVariant FieldDecoder::decode(const MdbColumn& column, const QByteArray& bytes, int start, QString& problem) {
    if (bytes.size() < neededBytes(column.col_type)) {
        problem = QStringLiteral("the value is cut short");
        return {};
    }
    switch (column.col_type) {
        case MDB_BYTE: return qlonglong{static_cast<unsigned char>(bytes[0])};
        case MDB_INT: return qlonglong{numberAt<qint16>(bytes)};
        case MDB_LONGINT: return qlonglong{numberAt<qint32>(bytes)};
        case MDB_FLOAT: return static_cast<double>(numberAt<float>(bytes));
        case MDB_DOUBLE:
        case MDB_DATETIME: return numberAt<double>(bytes);
        case MDB_MONEY: return moneyText(numberAt<qint64>(bytes));
        case MDB_NUMERIC: return decodeNumeric(column, start);
        case MDB_REPID: return identifierText(bytes);
        case MDB_BINARY: return bytes;
        case MDB_TEXT: return decodeText(bytes, problem);
        case MDB_OLE:
        case MDB_MEMO: break;
        default: return {};
    }
    QString reason;
    const auto value = longValue(handle_, fileBytes_, bytes, reason);
    if (!value) {
        problem = QStringLiteral("the long value cannot be read: %1").arg(reason);
        return {};
    }
    return column.col_type == MDB_OLE ? QVariant(*value) : decodeText(*value, problem);
}

QVariant FieldDecoder::decodeText(const QByteArray& bytes, QString& problem) const {
    const auto text = codePage_ == unicodePage ? decodeUnicode(bytes) : decodeCodePage(bytes, codePage_);
    if (text)
        return text->isNull() ? QStringLiteral("") : *text;
    problem = codePage_ == unicodePage
                  ? QStringLiteral("the text is not valid Unicode")
                  : QStringLiteral("the text is not valid in code page %1").arg(codePage_);
    return decodeLeniently(bytes, codePage_);
}

QVariant FieldDecoder::decodeNumeric(const MdbColumn& column, int start) {
    const std::unique_ptr<char, decltype(&g_free)> text(
        mdb_numeric_to_string(&handle_, start, column.col_scale, column.col_prec), &g_free);
    return QString::fromLatin1(text.get());
}

}  // namespace tools
