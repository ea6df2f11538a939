#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <stdexcept>

#include "platform/fault_point.h"

// Numbers and arrays that fail rather than being wrong.

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
    constexpr operator int() const { return value_; }

    constexpr Integer& operator+=(int amount) { return *this = Integer(value_ + amount); }
    constexpr Integer& operator-=(int amount) { return *this = Integer(value_ - amount); }

  private:
    static constexpr std::int16_t narrowed(int wide) {
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

/// The nearest whole number, a half going to the even one. Throws IntegerOverflow outside 16 bits.
Integer whole(float value);

/// An index outside an array.
class SubscriptOutOfRange : public std::out_of_range {
  public:
    SubscriptOutOfRange() : std::out_of_range("an index is outside its array") {}
};

/// A fixed array of Integers with inclusive upper bounds, indexed by call: a BoundedArray<9, 22, 3> goes from
/// (0, 0, 0) to (9, 22, 3). An index out of bounds throws SubscriptOutOfRange.
template <int... Last>
class BoundedArray {
  public:
    template <class... Indices>
    Integer& operator()(Indices... indices) {
        return elements_[place(static_cast<int>(indices)...)];
    }
    template <class... Indices>
    const Integer& operator()(Indices... indices) const {
        return elements_[place(static_cast<int>(indices)...)];
    }

  private:
    template <class... Indices>
    static std::size_t place(Indices... indices) {
        static_assert(sizeof...(Indices) == sizeof...(Last), "one index for each dimension");
        fault_point();
        std::size_t place = 0;
        bool inside = true;
        // The unsigned comparison covers a negative index as well.
        ((inside = inside && static_cast<unsigned>(indices) <= static_cast<unsigned>(Last),
          place = place * (Last + 1) + static_cast<std::size_t>(static_cast<unsigned>(indices))),
         ...);
        if (!inside) throw SubscriptOutOfRange();
        return place;
    }

    std::array<Integer, (static_cast<std::size_t>(Last + 1) * ...)> elements_{};
};

}  // namespace tarnwick
