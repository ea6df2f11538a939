#pragma once

#include <cstdint>
#include <optional>
#include <random>

namespace tarnwick {

/// The program's random generator. Its algorithm is fixed, so that a numbered deal is the same everywhere.
class Random {
  public:
    /// Seeds the generator: from the system, or with the next number where replay() has been called.
    void randomize();
    /// The number that the last randomize() has taken, and how many there have been.
    std::uint32_t seed() const { return seed_; }
    std::uint64_t seedings() const { return seedings_; }
    /// The first randomize() from now on takes this number, the one after it the next number, and so on.
    void replay(std::uint32_t first) { next_seed_ = first; }
    /// Seeds from the system again.
    void stop_replay() { next_seed_.reset(); }
    /// The next number in [0, 1), in single precision.
    float next();

  private:
    std::mt19937 engine_;
    std::uint32_t seed_ = 0;
    std::uint64_t seedings_ = 0;
    std::optional<std::uint32_t> next_seed_;
};

Random& random_generator();

}  // namespace tarnwick
