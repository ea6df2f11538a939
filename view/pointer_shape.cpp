#include "view/pointer_shape.h"

#include <utility>

#include "platform/image.h"
#include "view/spoken_board.h"

namespace tarnwick {

// Most moves stay over the same thing, and are to cost nothing.
bool PointerLook::move(Point place) {
    const Image* image = image_at(place);
    return image != over_ && look_over(image);
}

bool PointerLook::look_again(Point place) { return look_over(image_at(place)); }

const Image* PointerLook::image_at(Point place) const {
    return form_.mouse().image_at(static_cast<float>(place.x), static_cast<float>(place.y));
}

bool PointerLook::look_over(const Image* image) {
    over_ = image;
    const PointerShape shape = shape_over(image);
    return shape != std::exchange(shape_, shape);
}

PointerShape PointerLook::shape_over(const Image* image) const {
    const Mouse& mouse = form_.mouse();
    const bool holds =
        mouse.dragged() && (mouse.pointer() == Pointer::mouse || mouse.pointer() == Pointer::pen);
    if (holds) return PointerShape::closed_hand;
    if (!image || !form_.accepts_input()) return PointerShape::arrow;
    if (image->drag_mode() == DragMode::automatic) return PointerShape::open_hand;
    const std::vector<BoardItem> items = described_items(form_);
    const BoardItem* item = find_item(items, image);
    return item && item->clicks == 1 ? PointerShape::pointing_hand : PointerShape::arrow;
}

}  // namespace tarnwick
