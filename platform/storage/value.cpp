#include "platform/storage/value.h"

#include "platform/error.h"

namespace platform {

namespace {

[[noreturn]] void throwNull() {
    throw RuntimeError(ErrorCode::InvalidUseOfNull,
                       QStringLiteral("Invalid use of Null: the field has no value."));
}

}  // namespace

QString Value::toText() const {
    if (const auto* text = std::get_if<QString>(&content_))
        return *text;
    if (const auto* whole = std::get_if<std::int64_t>(&content_))
        return QString::number(*whole);
    if (const auto* number = std::get_if<double>(&content_))
        return QString::number(*number, 'g', 15);
    throwNull();
}

Int16 Value::toInt16() const {
    if (const auto* text = std::get_if<QString>(&content_))
        return textToInt16(*text);
    if (const auto* whole = std::get_if<std::int64_t>(&content_))
        return roundToInt16(static_cast<double>(*whole));
    if (const auto* number = std::get_if<double>(&content_))
        return roundToInt16(*number);
    throwNull();
}

}  // namespace platform
