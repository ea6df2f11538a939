#pragma once

#include <cstdint>
#include <ostream>

#include "notation/record_text.h"

namespace tarnwick {

/// Writes what the player does into a stream as it happens, as a record that can be played again (see
/// record.h). All but a new deal is written, and the stream flushed, before it begins, so that the last line
/// tells what went wrong.
class GameRecorder {
  public:
    /// The stream outlives the recorder. One whose failures throw tells in the exception, as the beginning of
    /// a sentence, what happened to the record.
    explicit GameRecorder(std::ostream& stream) : stream_(&stream) {}
    GameRecorder(const GameRecorder&) = delete;
    GameRecorder& operator=(const GameRecorder&) = delete;

    /// Begins with the game in hand: the program has been started, and is ended before this object goes.
    void begin();

  private:
    void write(const Action& action);
    void write_new_deal();

    std::ostream* stream_;     ///< null when the record has ended before the game
    std::uint64_t deals_ = 0;  ///< how many have been written, or had begun before
};

}  // namespace tarnwick
