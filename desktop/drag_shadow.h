#pragma once

#include <QImage>
#include <QPoint>
#include <QSize>

namespace tarnwick {

/// How far the shadow of lifted cards reaches beyond them, in pixels on every side.
inline constexpr int shadow_reach = 12;

/// The soft shadow of a pile of lifted cards. It is drawn once for a size and kept for the drag.
class DragShadow {
  public:
    /// The shadow of a pile of this size (device pixels), to be drawn `reach` to the left of and above it.
    const QImage& image(QSize pile, int reach);

  private:
    QImage image_;
    QSize pile_;
};

}  // namespace tarnwick
