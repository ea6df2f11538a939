#include "state/checked_numbers.h"

#include <cmath>

namespace tarnwick {

Integer whole(float value) {
    // Also refuses what is not a number, which a window without any width leads to.
    if (!(std::abs(value) < 1e6F)) throw IntegerOverflow();
    return static_cast<int>(std::nearbyint(value));
}

}  // namespace tarnwick
