#pragma once

#include <functional>

#include "platform/graphics.h"
#include "platform/widget.h"

namespace tarnwick {

class Image;

/// What the images of one family answer to. The handlers get the index of the image in its family.
struct ImageEvents {
    std::function<void(int index)> click;
    std::function<void(int index)> double_click;
    /// A dragged image was let go over image `index`; x and y are the pointer's place in that image, in
    /// twips.
    std::function<void(int index, Image& source, float x, float y)> drop;
};

/// An image on an automatic drag is dragged from the press on, and never clicked.
enum class DragMode { manual, automatic };

/// Shows a picture. Without one it is not seen, but can still be clicked and dropped on.
class Image : public Widget {
  public:
    Image(Window& window, int index, const ImageEvents& events)
        : Widget(window, WidgetKind::image), index_(index), events_(events) {}

    int index() const { return index_; }
    const ImageEvents& events() const { return events_; }

    Picture picture() const { return picture_; }
    void set_picture(Picture picture);

    /// A stretching image draws its picture at the size of the widget, another one at its natural size.
    bool stretch() const { return stretch_; }
    void set_stretch(bool stretch);

    bool bordered() const { return bordered_; }
    void set_bordered(bool bordered);

    /// How many more of its kind lie below the picture: the pile looks thicker by so much.
    int depth() const { return depth_; }
    void set_depth(int depth);

    DragMode drag_mode() const { return drag_mode_; }
    void set_drag_mode(DragMode mode) { drag_mode_ = mode; }

    /// Where the image is seen to come from if it is shown in this event, or to go to if it is hidden.
    void pass(const Image& other) const;

    /// What a desktop calls when the user clicks the image.
    void click();

    /// Back to how an image is stored: visible, without a picture, a border or stretching, dragged by hand.
    void reset();

  private:
    int index_;
    const ImageEvents& events_;
    Picture picture_;
    int depth_ = 0;
    DragMode drag_mode_ = DragMode::manual;
    bool stretch_ = false;
    bool bordered_ = false;
};

}  // namespace tarnwick
