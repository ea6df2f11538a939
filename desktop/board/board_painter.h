#pragma once

#include <QPainter>
#include <vector>

#include "desktop/board/card_pictures.h"
#include "desktop/board/label_pictures.h"
#include "desktop/board/soft_shadow.h"
#include "desktop/shared/outline_pictures.h"
#include "desktop/shared/picture_cache.h"
#include "view/board_layers.h"

namespace tarnwick {

/// Paints a board onto anything that can be painted on.
class BoardPainter {
  public:
    /// Paints with the board's pixels as the painter's units. What reaches beyond the layers' area is clipped
    /// by the painter, if it is to be. The layers are meant for the device's pixel ratio.
    void paint(QPainter& painter, const BoardLayers& layers);
    /// Draws the pictures that a painting of these images will want.
    void prepare(const std::vector<PaintedImage>& images);

    /// From now on sizes change often: what was drawn before is scaled.
    void begin_haste();
    /// The sizes have settled. True when something was painted scaled.
    bool end_haste();

  private:
    void paint_image(QPainter& painter, const PaintedImage& image);

    PictureCache pictures_{CardPictures()};
    OutlinePictures outlines_;
    LabelPictures labels_;
    SoftShadow shadow_;
};

}  // namespace tarnwick
