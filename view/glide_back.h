#pragma once

#include <cstdint>
#include <vector>

#include "platform/image.h"
#include "view/area.h"

namespace tarnwick {

/// The way back of images that nobody received, in a moment. It is only seen: the images themselves have
/// never left their places. Times are milliseconds of the desktop's clock.
class Glide {
  public:
    /// Begins `from` so far from the images' own places.
    void begin(std::vector<Image*> images, Shift from, std::int64_t now);
    /// Goes on to where the images are seen now. False when they are back.
    bool step(std::int64_t now);
    /// Ends the glide where it is; the images that are back at once.
    std::vector<Image*> end();

    /// What glides, from the bottom one up; empty when nothing does.
    const std::vector<Image*>& images() const { return images_; }
    /// How far from their own places the images were seen at the last step.
    Shift offset() const { return offset_; }
    bool moves(const Image& image) const;

  private:
    std::vector<Image*> images_;
    Shift from_;
    Shift offset_;
    std::int64_t begin_ = 0;
};

}  // namespace tarnwick
