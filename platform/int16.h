#pragma once

#include <QString>

#include <cstdint>

namespace platform {

/// A 16-bit whole number that refuses to wrap: a value outside its range is an error, not a surprise.
class Int16 {
   public:
    constexpr Int16() = default;
    /// Throws Overflow when the value needs more than 16 bits.
    Int16(int value);

    constexpr operator int() const { return value_; }
    Int16& operator+=(int step);
    Int16& operator-=(int step);
    Int16& operator++();

   private:
    std::int16_t value_ = 0;
};

/// Rounds to the nearest whole number, halves to the even one. Throws Overflow beyond 16 bits.
Int16 roundToInt16(double value);

/// Reads a text as a number and rounds it. Throws TypeMismatch for a text that is no number.
Int16 textToInt16(const QString& text);

}  // namespace platform
