#pragma once

#include <cstdint>
#include <string>

#include "board/display.h"
#include "notation/play_action.h"
#include "platform/image.h"
#include "state/cards.h"
#include "tests/play/display_check.h"
#include "tools/driver/headless_game.h"

namespace tarnwick {

/// Pile numbers as the player sees them: columns are 0 to 9.
constexpr int ace_pile(int p) { return 12 + p; }

/// A drop this far into an image is never tried on a neighbouring column.
inline constexpr float middle = plain_click_offset;

/// A running game on the headless desktop, played with mouse and keys at pixel positions.
class Play : public HeadlessGame {
  public:
    using HeadlessGame::HeadlessGame;

    using HeadlessGame::start;
    /// Starts, without sliding cards, in a position.
    void start(const std::string& position);

    /// Plays lines of a record (see notation/record_text.h), with commas between them.
    void act(const std::string& record);

    /// Presses the mouse on the card that a pile would move, and lets go over what lies on top of the target,
    /// `offset` pixels from its left edge.
    void drag(int from, int to, float offset = middle);
    /// A drag that takes hold of slot `slot` of column `from`.
    void drag_slot(int from, int slot, int to);
    /// Press and release at one place of a pile's top card: the way to send it to its ace pile.
    void click(int pile, float offset = middle);
    void click_stock(int times = 1);
    void double_click(const Image& image);
    void space(int times = 1);
    void undo();

    /// The text of the last message box, which is then forgotten; empty when there was none.
    std::string message();

    /// The stored text of a key, "-" when there is none.
    std::string stored(const std::string& key);
};

/// The undo list, newest record first, as "(25 25 -1) (3 12 1)".
std::string undo_records();

/// Whether each line of `lines` is one of the lines that position_text() writes.
bool shows(const std::string& lines);

}  // namespace tarnwick
