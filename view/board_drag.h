#pragma once

#include <cstdint>
#include <vector>

#include "platform/form.h"
#include "view/board_layers.h"
#include "view/glide_back.h"

namespace tarnwick {

/// A drag as it is seen: the images under the pointer or on their way back, and the mark on what would
/// receive them. Places are pixels of the board, times milliseconds of the desktop's clock.
class BoardDrag {
  public:
    explicit BoardDrag(const Form& form) : form_(form) {}

    /// The images that are seen elsewhere than where they lie, from the bottom one up, and how far from
    /// there.
    const std::vector<Image*>& lifted() const;
    Shift offset() const;
    /// Where they are seen, without and with their shadow; empty when there are none.
    Box place() const;
    Area area() const;
    /// Where the mark is seen; empty when there is none.
    Area mark_area() const;

    /// Adds what is seen of the drag to what is painted, as far as it lies in the area of that.
    /// @param strong  whether the mark is to be seen in high contrast
    void add_to(BoardLayers& layers, double ratio, bool strong) const;

    /// Takes note of what the mouse does now; `glides` allows a way back. The result are the images whose own
    /// places look different from now on; none when the lifted ones were only moved.
    std::vector<Image*> follow(std::int64_t now, bool glides);

    /// The glide of images that nobody received. Whatever moves one of them ends it.
    const Glide& glide() const { return glide_; }
    /// Lets the glide go on; false when it is at its end.
    bool glide_on(std::int64_t now) { return glide_.step(now); }
    /// Ends the glide where it is; the images that have glided.
    std::vector<Image*> end_glide() { return glide_.end(); }

  private:
    Box place_of(const Image& image) const;

    const Form& form_;
    Glide glide_;
    std::vector<Image*> held_;  ///< lifted when the mouse was last followed
    Shift held_offset_;
};

}  // namespace tarnwick
