#include "platform/int16.h"

#include "platform/error.h"

#include <cmath>
#include <limits>

namespace platform {

namespace {

std::int16_t checked(double value) {
    if (!(value >= std::numeric_limits<std::int16_t>::min() &&
          value <= std::numeric_limits<std::int16_t>::max()))
        throw RuntimeError(ErrorCode::Overflow,
                           QStringLiteral("Overflow: %1 does not fit into 16 bits.").arg(value));
    return static_cast<std::int16_t>(value);
}

}  // namespace

Int16::Int16(int value) : value_(checked(value)) {}

Int16& Int16::operator+=(int step) {
    value_ = checked(static_cast<double>(value_) + step);
    return *this;
}

Int16& Int16::operator-=(int step) {
    value_ = checked(static_cast<double>(value_) - step);
    return *this;
}

Int16& Int16::operator++() {
    return *this += 1;
}

Int16 roundToInt16(double value) {
    // The default rounding mode of the processor is to nearest, ties to even.
    return {checked(std::nearbyint(value))};
}

Int16 textToInt16(const QString& text) {
    bool isNumber = false;
    const double value = text.trimmed().toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value))
        throw RuntimeError(ErrorCode::TypeMismatch,
                           QStringLiteral("Type mismatch: \"%1\" is not a number.").arg(text));
    return roundToInt16(value);
}

}  // namespace platform
