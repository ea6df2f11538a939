#pragma once

#include <cstdint>

namespace tarnwick {

/// Names one drawing of the program's catalogue; 0 is "no picture". Copying a picture from one widget to
/// another copies this name: what it looks like is the desktop's business.
struct Picture {
    std::uint16_t number = 0;

    bool none() const { return number == 0; }
    bool operator==(const Picture&) const = default;
};

}  // namespace tarnwick
