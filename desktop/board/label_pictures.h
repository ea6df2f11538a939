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
    struct Text {
        QString text;
        QFont font;
        Color color;
        std::optional<PaintedRim> rim;
        qreal ratio;
        bool operator==(const Text&) const = default;
    };
    struct Drawn {
        Text text;
        QPixmap pixmap;
    };

    static QPixmap draw(const Text& text);
    const QPixmap& pixmap(const Text& text);

    std::vector<Drawn> drawn_;
};

}  // namespace tarnwick
