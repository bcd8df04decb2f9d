#include "tools/import/value.h"

#include <QCryptographicHash>
#include <QDate>
#include <QTime>
#include <QtEndian>

#include <algorithm>
#include <cmath>

namespace tools {

namespace {

constexpr double firstDay = -657434;
constexpr double dayAfterLast = 2958466;
constexpr int secondsOfDay = 86400;
constexpr double wholeNumbersEnd = 9007199254740992.0;
constexpr qsizetype shownDigits = 16;

bool isNumber(const QVariant& value) {
    return value.typeId() == QMetaType::Double;
}

}  // namespace

StoreKind storeKind(SourceType type, const core::FieldShape* known) {
    if (known) {
        switch (known->kind) {
            case core::FieldKind::Integer: return StoreKind::Integer;
            case core::FieldKind::Number: return StoreKind::Number;
            case core::FieldKind::Text:
            case core::FieldKind::Date: return StoreKind::Text;
        }
    }
    switch (type) {
        case SourceType::Boolean:
        case SourceType::Integer: return StoreKind::Integer;
        case SourceType::Number: return StoreKind::Number;
        case SourceType::Binary: return StoreKind::Blob;
        // A decimal as text keeps every digit, which a floating-point number would not.
        case SourceType::Decimal:
        case SourceType::Date:
        case SourceType::Text:
        case SourceType::Identifier:
        case SourceType::Calculated:
        case SourceType::Unknown: break;
    }
    return StoreKind::Text;
}

QString columnDeclaration(StoreKind kind) {
    switch (kind) {
        case StoreKind::Integer: return QStringLiteral("INTEGER");
        case StoreKind::Number: return QStringLiteral("REAL");
        case StoreKind::Blob: return QStringLiteral("BLOB");
        case StoreKind::Text: break;
    }
    return QStringLiteral("TEXT COLLATE NOCASE");
}

std::optional<QString> isoDate(double daysSince1899) {
    if (!(daysSince1899 >= firstDay && daysSince1899 < dayAfterLast))
        return std::nullopt;
    // Before the first day the time still counts forwards: -1.25 is six in the morning of the day before.
    auto day = static_cast<qint64>(std::trunc(daysSince1899));
    auto second =
        static_cast<int>(std::lround(std::fabs(daysSince1899 - std::trunc(daysSince1899)) * secondsOfDay));
    if (second == secondsOfDay) {
        second = 0;
        ++day;
    }
    const QString date = QDate(1899, 12, 30).addDays(day).toString(Qt::ISODate);
    if (second == 0)
        return date;
    return date + u' ' + QTime::fromMSecsSinceStartOfDay(second * 1000).toString(Qt::ISODate);
}

std::optional<QByteArray> canonical(const QVariant& value) {
    if (!value.isValid())
        return std::nullopt;
    if (value.typeId() == QMetaType::QByteArray)
        return value.toByteArray();
    if (!isNumber(value))
        return value.toString().toUtf8();
    const double number = value.toDouble();
    if (number == std::trunc(number) && std::fabs(number) < wholeNumbersEnd)
        return QByteArray::number(static_cast<qint64>(number));
    return QByteArray::number(number, 'g', QLocale::FloatingPointShortest);
}

QVariant storedValue(const QVariant& source, SourceType type, StoreKind kind, QString& problem) {
    if (!source.isValid())
        return {};
    if (isNumber(source) && std::isnan(source.toDouble())) {
        problem = QStringLiteral("the value is no number");
        return {};
    }
    if (type == SourceType::Date) {
        const auto date = isoDate(source.toDouble());
        if (!date)
            problem = QStringLiteral("the value is no date");
        return date ? QVariant(*date) : QVariant();
    }
    if (kind == StoreKind::Text && source.typeId() != QMetaType::QByteArray)
        return QString::fromUtf8(*canonical(source));
    return source;
}

QVariant comparedValue(const QVariant& source, SourceType type) {
    if (type != SourceType::Date || !source.isValid())
        return source;
    const auto date = isoDate(source.toDouble());
    return date ? QVariant(*date) : QVariant();
}

void TableSum::add(const QVariant& value) {
    const auto bytes = canonical(value);
    // The length in front keeps apart what lies on both sides of a field's border.
    const qint64 length = qToLittleEndian<qint64>(bytes ? bytes->size() : -1);
    row_.append(reinterpret_cast<const char*>(&length), sizeof length);
    if (bytes)
        row_.append(*bytes);
}

void TableSum::endRow() {
    rowSums_.push_back(QCryptographicHash::hash(row_, QCryptographicHash::Sha256));
    row_.clear();
}

QString TableSum::text() const {
    QCryptographicHash all(QCryptographicHash::Sha256);
    for (const QByteArray& sum : rowSums_)
        all.addData(sum);
    return QString::fromLatin1(all.result().toHex().left(shownDigits));
}

qint64 TableSum::firstDifference(const TableSum& other) const {
    const auto [here, there] =
        std::mismatch(rowSums_.begin(), rowSums_.end(), other.rowSums_.begin(), other.rowSums_.end());
    if (here == rowSums_.end() && there == other.rowSums_.end())
        return 0;
    return here - rowSums_.begin() + 1;
}

}  // namespace tools
