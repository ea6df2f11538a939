#pragma once

#include "view/area.h"
#include "view/board_front.h"
#include "view/board_scroll.h"

namespace tarnwick {

/// Tells a front end what is to be painted anew. Areas are pixels of the board.
class Repaints {
  public:
    /// @param scroll  how far the board is scrolled; outlives this object
    Repaints(BoardFront& front, const BoardScroll& scroll) : front_(front), scroll_(scroll) {}

    void add(const Area& area);
    void add_all();
    /// What was seen at `place` is seen elsewhere now, or no more.
    void move(Area& place, const Area& now);
    /// All that was told so far is painted now. Until then, what is all to be painted is told no further
    /// areas.
    void begin_painting() { told_ = 0; }

  private:
    BoardFront& front_;
    const BoardScroll& scroll_;
    int told_ = 0;  ///< areas since the board was last painted
};

}  // namespace tarnwick
