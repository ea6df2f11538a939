#include "view/pointer_shape.h"

#include <utility>

#include "platform/image.h"
#include "view/spoken_board.h"

namespace tarnwick {

// Most moves stay over the same thing, and are to cost nothing.
bool PointerLook::move(float x, float y) {
    const Image* image = form_.mouse().image_at(x, y);
    return image != over_ && look_over(image);
}

bool PointerLook::look_again(float x, float y) { return look_over(form_.mouse().image_at(x, y)); }

bool PointerLook::look_over(const Image* image) {
    over_ = image;
    const PointerShape shape = shape_over(image);
    return shape != std::exchange(shape_, shape);
}

PointerShape PointerLook::shape_over(const Image* image) const {
    const Mouse& mouse = form_.mouse();
    if (mouse.dragged() && mouse.pointer() != Pointer::keys) return PointerShape::closed_hand;
    if (!image || !form_.accepts_input()) return PointerShape::arrow;
    if (image->drag_mode() == DragMode::automatic) return PointerShape::open_hand;
    const std::vector<BoardItem> items = described_items(form_);
    const BoardItem* item = find_item(items, image);
    return item && item->clicks == 1 ? PointerShape::pointing_hand : PointerShape::arrow;
}

}  // namespace tarnwick
