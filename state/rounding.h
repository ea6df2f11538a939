#pragma once

#include "state/integer.h"

namespace tarnwick {

/// The nearest whole number, a half going to the even one. Throws IntegerOverflow outside 16 bits.
Integer whole(float value);

}  // namespace tarnwick
