#pragma once

#include "platform/int16.h"

#include <QString>

#include <cstdint>
#include <variant>

namespace platform {

/// One field's content: nothing, a whole number, a floating-point number or a text.
class Value {
   public:
    Value() = default;
    Value(int number) : content_(static_cast<std::int64_t>(number)) {}
    Value(std::int64_t number) : content_(number) {}
    Value(Int16 number) : content_(static_cast<std::int64_t>(number)) {}
    Value(double number) : content_(number) {}
    Value(QString text) : content_(std::move(text)) {}
    Value(const char* text) : content_(QString::fromUtf8(text)) {}

    bool isNull() const { return std::holds_alternative<std::monostate>(content_); }
    const std::variant<std::monostate, std::int64_t, double, QString>& content() const { return content_; }

    /// The text of the field; a number in its shortest form, so that 80.0 reads "80". Throws
    /// InvalidUseOfNull where there is nothing.
    QString toText() const;
    /// The number of the field, a text being read as a number and rounded. Throws InvalidUseOfNull,
    /// TypeMismatch or Overflow.
    Int16 toInt16() const;

   private:
    std::variant<std::monostate, std::int64_t, double, QString> content_;
};

}  // namespace platform
