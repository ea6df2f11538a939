#pragma once

#include <array>
#include <cstddef>
#include <stdexcept>

#include "platform/fault_point.h"
#include "state/integer.h"

namespace tarnwick {

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
