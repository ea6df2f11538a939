#pragma once

#include <chrono>
#include <thread>

namespace tarnwick {

/// Asks until the condition holds; false when it did not within the time.
template <class Condition>
bool eventually(Condition condition, std::chrono::milliseconds limit = std::chrono::seconds(10)) {
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(4));
    }
    return true;
}

}  // namespace tarnwick
