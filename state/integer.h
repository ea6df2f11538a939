#pragma once

#include <cstdint>
#include <limits>
#include <stdexcept>

#include "platform/fault_point.h"

namespace tarnwick {

/// A number that does not fit into 16 bits.
class IntegerOverflow : public std::overflow_error {
  public:
    IntegerOverflow() : std::overflow_error("a number does not fit into 16 bits") {}
};

/// A whole number of 16 bits with a sign. It reads as a plain int; storing a wider result throws.
class Integer {
  public:
    constexpr Integer() = default;
    // Implicit, so that plain numbers can be passed and stored. NOLINTNEXTLINE(google-explicit-constructor)
    constexpr Integer(int wide) : value_(narrowed(wide)) {}
    // NOLINTNEXTLINE(google-explicit-constructor)
    constexpr operator int() const {
        note_use();
        return value_;
    }

    constexpr Integer& operator+=(int amount) { return *this = Integer(value_ + amount); }
    constexpr Integer& operator-=(int amount) { return *this = Integer(value_ - amount); }

  private:
    static constexpr std::int16_t narrowed(int wide) {
        note_use();
        if (wide < std::numeric_limits<std::int16_t>::min() ||
            wide > std::numeric_limits<std::int16_t>::max()) {
            throw IntegerOverflow();
        }
        return static_cast<std::int16_t>(wide);
    }

    std::int16_t value_ = 0;
};

/// Flags are integers too: -1 for true, 0 for false.
inline constexpr int flag_true = -1;
inline constexpr int flag_false = 0;

}  // namespace tarnwick
