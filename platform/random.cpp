#include "platform/random.h"

namespace tarnwick {

void Random::randomize() {
    seed_ = next_seed_ ? (*next_seed_)++ : std::random_device{}();
    ++seedings_;
    engine_.seed(seed_);
}

float Random::next() {
    // 24 bits fill the significand of a float exactly: no rounding can reach 1.
    return static_cast<float>(engine_() >> 8) * 0x1p-24F;
}

Random& random_generator() {
    static Random generator;
    return generator;
}

}  // namespace tarnwick
