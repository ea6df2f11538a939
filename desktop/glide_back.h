#pragma once

#include <QPointF>
#include <QVariantAnimation>
#include <functional>
#include <vector>

#include "platform/image.h"

namespace tarnwick {

/// The way back of images that nobody received, in a moment. It is only seen: the images themselves have
/// never left their places.
class GlideBack {
  public:
    /// @param on_step  runs whenever the images are seen elsewhere
    explicit GlideBack(std::function<void()> on_step);

    /// Begins at `offset` pixels from the images' own places.
    void start(std::vector<Image*> images, QPointF offset);
    /// Ends a glide where it is: the images are back.
    void end();

    /// What glides; empty when nothing does.
    const std::vector<Image*>& images() const { return images_; }
    bool moves(const Image& image) const;
    /// How far from their own places the images are seen, in pixels.
    QPointF offset() const { return offset_; }

  private:
    std::function<void()> on_step_;
    QVariantAnimation animation_;
    std::vector<Image*> images_;
    QPointF offset_;
};

}  // namespace tarnwick
