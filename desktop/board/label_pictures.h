#pragma once

#include <QFont>
#include <QPixmap>
#include <QString>
#include <optional>
#include <vector>

#include "view/board_layers.h"

namespace tarnwick {

/// Paints labels, and keeps what their texts look like: cards that are dragged past them have them painted
/// again and again.
class LabelPictures {
  public:
    /// @param ratio  device pixels to a pixel of the painter
    void paint(QPainter& painter, const PaintedLabel& label, qreal ratio);

  private:
    struct Look {
        QString text;
        QFont font;
        double scale = 1;
        Color color = black;
        std::optional<PaintedRim> rim;
        qreal ratio = 1;
        bool operator==(const Look&) const = default;
    };
    struct Picture {
        QPixmap pixmap;
        qreal margin = 0;  ///< around the text, in pixels of the painter like the text's own size
        QSizeF text;
    };

    static Picture draw(const Look& look);
    const Picture& picture(const Look& look);

    std::vector<std::pair<Look, Picture>> pictures_;
};

}  // namespace tarnwick
