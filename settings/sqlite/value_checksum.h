#pragma once

#include <compare>
#include <cstdint>
#include <string>

namespace tarnwick {

/// The name of one stored value.
struct SettingAddress {
    std::string application;
    std::string section;
    std::string key;
    // NOLINTNEXTLINE(modernize-use-nullptr): what the compiler makes of it
    auto operator<=>(const SettingAddress&) const = default;
};

/// The checksum that is stored with a value: the structure of a file survives many a flipped bit in its
/// texts.
std::int64_t checksum_of(const SettingAddress& address, const std::string& text);

}  // namespace tarnwick
