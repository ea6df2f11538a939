#pragma once

#include <optional>
#include <string>

#include "notation/record.h"
#include "notation/record_file.h"

namespace tarnwick {

/// Writes what the player does into a file as it happens, as a record that can be played again (see
/// record.h). All but a new deal is in the file before it begins, so that the last line tells what went
/// wrong.
class GameRecorder {
  public:
    /// Goes on behind what the file holds. Throws as RecordFile does.
    explicit GameRecorder(const std::string& file);
    GameRecorder(const GameRecorder&) = delete;
    GameRecorder& operator=(const GameRecorder&) = delete;

    /// Begins with the game in hand: the program has been started, and is ended before this object goes.
    void begin();

  private:
    void write(const Action& action);
    void write_new_deal();

    std::optional<RecordFile> file_;  ///< none any more when the record has ended before the game
    std::uint64_t deals_ = 0;         ///< how many have been written, or had begun before
};

}  // namespace tarnwick
