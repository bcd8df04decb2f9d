#pragma once

#include <QDate>

#include <cstdint>

namespace platform {

/// Time as the program sees it; tests hold it still.
class Clock {
   public:
    virtual ~Clock() = default;
    virtual QDate today() const = 0;
    /// A running count to seed chance with; fine enough that two draws in a row differ.
    virtual std::uint64_t ticks() const = 0;
};

class SystemClock final : public Clock {
   public:
    QDate today() const override;
    std::uint64_t ticks() const override;
};

/// A generator of uniform numbers; tests choose the draws.
class RandomSource {
   public:
    virtual ~RandomSource() = default;
    virtual void reseed(std::uint64_t seed) = 0;
    /// A number in [0, 1).
    virtual float next() = 0;
};

class SystemRandom final : public RandomSource {
   public:
    void reseed(std::uint64_t seed) override;
    float next() override;

   private:
    std::uint64_t state_ = 1;
};

}  // namespace platform
