#pragma once

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>

#include "tests/play/soundness.h"

namespace tarnwick {

/// The fuzzer's bytes as numbers, one after the other; zeros when they are used up.
class ByteSource {
  public:
    ByteSource(const std::uint8_t* data, std::size_t size) : data_(data), left_(size) {}

    bool empty() const { return left_ == 0; }
    int byte() {
        if (empty()) return 0;
        --left_;
        return *data_++;
    }
    int word() {
        const int high = byte();
        return high * 256 + byte();
    }
    std::string text(int length) {
        std::string text;
        while (length-- > 0 && !empty()) text += static_cast<char>(byte());
        return text;
    }

  private:
    const std::uint8_t* data_;
    std::size_t left_;
};

/// Ends the program, as a crash does, when the state of the game is not sound.
inline void demand_sound_state(const char* after) {
    const std::string faults = state_faults();
    if (faults.empty()) return;
    std::cerr << "after " << after << ": " << faults << '\n';
    std::abort();
}

}  // namespace tarnwick
