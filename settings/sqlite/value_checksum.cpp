#include "settings/sqlite/value_checksum.h"

namespace tarnwick {

// FNV-1a over all parts of the value.
std::int64_t checksum_of(const SettingAddress& address, const std::string& text) {
    std::uint32_t hash = 0x811c9dc5U;
    for (const std::string* part : {&address.application, &address.section, &address.key, &text}) {
        for (const char letter : *part + '\n') {
            hash ^= static_cast<unsigned char>(letter);
            hash *= 0x01000193U;
        }
    }
    return hash;
}

}  // namespace tarnwick
