#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "notation/record_text.h"
#include "platform/headless.h"
#include "settings/store.h"

namespace tarnwick {

/// Plays records through a headless desktop of its own, with the same mouse events as in the real window.
/// Cards do not slide, so that every action is over when it returns.
class RecordPlayer {
  public:
    RecordPlayer();
    ~RecordPlayer();

    /// Plays one action. Throws std::invalid_argument when it cannot be done: no card to drag, or the game is
    /// over.
    void play(const Action& action);

    /// The help messages that the last action has brought up.
    std::vector<std::string> messages() const;

  private:
    void deal(std::uint32_t number);

    HeadlessDesktop desktop_;
    MemoryStore store_;
    bool started_ = false;
};

/// A number that stands for the course of a game: for every position and message on the way, in their order.
class Signature {
  public:
    void add(const std::string& text);
    /// 16 hexadecimal digits.
    std::string text() const;

  private:
    // FNV-1a, 64 bits.
    std::uint64_t hash_ = 0xcbf29ce484222325U;
};

}  // namespace tarnwick
