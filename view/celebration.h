#pragma once

#include <cstdint>
#include <vector>

#include "platform/graphics.h"
#include "view/area.h"
#include "view/board_layers.h"

namespace tarnwick {

/// What is seen for a moment over a table whose game is won: cards stream out of their piles into one great
/// wheel that turns around the emblem of the game, and flies apart. It moves nothing that lies on the table.
/// Times are milliseconds of the desktop's clock, places pixels of the window.
class Celebration {
  public:
    /// A pile that cards come from: where it lies, and its cards, the first to come in front.
    struct Pile {
        Box place;
        std::vector<Picture> cards;
    };

    void begin(std::vector<Pile> piles, PixelSize window, std::int64_t now);
    /// Goes on to what is seen now. False when it is over.
    bool step(std::int64_t now);
    void end() { piles_.clear(); }
    bool under_way() const { return !piles_.empty(); }

    /// Where something of it is seen, on a board that is scrolled down so far: a number of areas, the same
    /// each time, of which each has its part of the window to itself.
    std::vector<Area> areas(int scrolled) const;
    /// Adds what is seen of it to a board that is scrolled down so far.
    void add_to(BoardLayers& layers, int scrolled, double ratio) const;

  private:
    Point on_wheel(double angle) const;
    Box emblem_place() const;
    int emblem_opacity() const;
    Box place_of(std::size_t pile, std::size_t card) const;

    template <class Action>
    void for_each_seen(Action action) const;

    std::vector<Pile> piles_;
    PixelSize window_;
    Point middle_;
    Shift radius_;   ///< of the wheel, to the middles of its cards
    Shift opening_;  ///< of the room within it, from the middle
    std::int64_t begin_ = 0;
    double time_ = 0;  ///< since it began
};

}  // namespace tarnwick
