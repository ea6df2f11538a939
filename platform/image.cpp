#include "platform/image.h"

#include "platform/desktop.h"
#include "platform/window.h"

namespace tarnwick {

void Image::set_picture(Picture picture) {
    if (picture == picture_) return;
    picture_ = picture;
    changed();
}

void Image::set_stretch(bool stretch) {
    if (stretch == stretch_) return;
    stretch_ = stretch;
    changed();
}

void Image::set_bordered(bool bordered) {
    if (bordered == bordered_) return;
    bordered_ = bordered;
    changed();
}

void Image::set_depth(int depth) {
    if (depth == depth_) return;
    // Told before as well: a thicker pile was seen farther out.
    changed();
    depth_ = depth;
    changed();
}

void Image::pass(const Image& other) const {
    if (FormView* view = form().view()) view->image_passes(*this, other);
}

void Image::click() {
    if (!form().accepts_input() || !events_.click) return;
    desktop().event([this] { events_.click(index_); });
}

void Image::reset() {
    set_picture({});
    set_stretch(false);
    set_bordered(false);
    set_depth(0);
    set_drag_mode(DragMode::manual);
    show();
}

}  // namespace tarnwick
