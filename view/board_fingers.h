#pragma once

#include <optional>

#include "view/board_stage.h"

namespace tarnwick {

/// The fingers on a board: the first one plays, and those that come while it does are nothing to it. Fingers
/// have numbers; places are pixels of the board's window.
class BoardFingers {
  public:
    explicit BoardFingers(BoardStage& stage) : stage_(stage) {}

    // Whether it plays.
    bool down(int finger, Point place);
    /// @param elsewhere  whether the place lies over another window of the program
    bool up(int finger, Point place, bool elsewhere);
    void move(int finger, Point place);
    /// The touch counts for nothing after all: what the finger held is put back.
    void cancel();

  private:
    BoardStage& stage_;
    std::optional<int> playing_;  ///< the last one that pressed
};

}  // namespace tarnwick
