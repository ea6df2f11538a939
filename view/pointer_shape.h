#pragma once

#include "platform/form.h"
#include "view/area.h"

namespace tarnwick {

/// What the pointer looks like: an open hand over what it could take, a closed one while it holds that, and a
/// pointing one over what acts when it is clicked.
enum class PointerShape { arrow, pointing_hand, open_hand, closed_hand };

/// Knows the shape for a place of a board, in its pixels.
class PointerLook {
  public:
    explicit PointerLook(const Form& form) : form_(form) {}

    PointerShape shape() const { return shape_; }
    /// The pointer has moved there; whether its shape is another one.
    bool move(Point place);
    /// What lies there, or is held, may be something else as well.
    bool look_again(Point place);

  private:
    const Image* image_at(Point place) const;
    bool look_over(const Image* image);
    PointerShape shape_over(const Image* image) const;

    const Form& form_;
    const Image* over_ = nullptr;  ///< what lay under the pointer
    PointerShape shape_ = PointerShape::arrow;
};

}  // namespace tarnwick
