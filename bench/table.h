#pragma once

#include <cstdint>
#include <random>
#include <vector>

#include "platform/headless.h"
#include "platform/image.h"
#include "settings/store.h"

namespace tarnwick {

/// A started program without a screen, without help messages and slides: what is left is the game itself.
class Table {
  public:
    Table();
    ~Table();
    Table(const Table&) = delete;
    Table& operator=(const Table&) = delete;

  private:
    HeadlessDesktop desktop_{PixelSize{1280, 1024}};
    MemoryStore store_;
};

/// Any face dropped on any image, a turn of the tablet now and then, a new deal at times. Always the same
/// play.
class RandomPlay {
  public:
    void drop();

    std::int64_t drops() const { return drops_; }
    /// How many of the drops have moved cards.
    std::int64_t accepted() const { return accepted_; }

  private:
    std::minstd_rand engine_{1};
    std::vector<Image*> faces_;
    std::vector<Image*> targets_;
    std::int64_t drops_ = 0;
    std::int64_t accepted_ = 0;
};

/// Turns the tablet and plays at random until the undo list is full: about two turns for a move.
void fill_undo_list();

}  // namespace tarnwick
