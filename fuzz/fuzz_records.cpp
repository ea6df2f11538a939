// Any text as the record of a game: it is refused in one line, or played with a sound state after every
// action.

#include <cstdint>
#include <stdexcept>
#include <string_view>

#include "fuzz/byte_source.h"
#include "notation/position.h"
#include "notation/record_player.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tarnwick;
    constexpr std::size_t longest = 4096;
    const std::string_view text(reinterpret_cast<const char*>(data), std::min(size, longest));
    try {
        RecordPlayer player;
        for (const Action& action : parse_record(text)) {
            player.play(action);
            demand_sound_state("an action");
            // What is written of a position can be read again.
            parse_position(position_text());
        }
    } catch (const std::invalid_argument&) {
        // The record is refused.
    }
    return 0;
}
