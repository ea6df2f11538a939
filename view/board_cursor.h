#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "platform/form.h"
#include "view/area.h"
#include "view/board_layers.h"

namespace tarnwick {

/// The cursor of the keyboard: on which item of a board it is, and the ring around that. It keeps its place
/// among the piles, whatever happens to the cards there. Places are pixels of the board.
class BoardCursor {
  public:
    /// A pile, and how many cards lie in front of the one meant.
    struct Position {
        PilePlace pile;
        std::size_t depth = 0;
    };

    /// Whether it is seen.
    bool shown() const { return shown_; }
    void show() { shown_ = true; }
    void hide();
    /// The item that it is on; null while it is not seen, or where there is none.
    const Widget* item() const { return shown_ ? item_ : nullptr; }
    const Position& position() const { return position_; }
    void set_position(const Position& position) { position_ = position; }

    /// What an arrow key does. Left and right go to the card in front of the next pile of the row, from the
    /// last one to the first. Up and down go along the cards of a pile, and from its ends to the card in
    /// front of the nearest pile of the other row, or of the one that the cursor came from.
    /// @param over_piles  up and down leave out the cards of a pile as well
    void go(int key_code, const std::vector<BoardItem>& items, bool over_piles);
    /// The board is described like this now: finds the item in the cursor's place, or the nearest one, and
    /// puts the ring around what is seen of it.
    void follow(const std::vector<BoardItem>& items);
    /// Puts the ring around something else.
    void surround(const Box& box) { box_ = box; }

    /// Where the ring is seen; empty when it is not.
    Area area() const;
    /// Adds the ring to what is painted of a table of this colour, as far as it lies in the area of that.
    void add_to(BoardLayers& layers, Color table, double ratio) const;

  private:
    void go_sideways(const std::vector<BoardItem>& items, int step);
    void go_to_other_row(const std::vector<BoardItem>& items);

    Position position_;
    std::optional<PilePlace> came_from_;  ///< in the other row, if no pile of this row was gone to since
    const Widget* item_ = nullptr;
    Box box_;
    bool shown_ = false;
};

/// Where something is seen of an item, though of what is covered as well.
Box seen_place(const BoardItem& item);

}  // namespace tarnwick
