#include "desktop/board_geometry.h"

#include <algorithm>

#include "desktop/qt_convert.h"
#include "windows/pictures.h"

namespace tarnwick {

QRect snapped(const QRectF& rect, qreal ratio) {
    return QRect(qRound(rect.left() * ratio), qRound(rect.top() * ratio),
                 std::max(1, qRound(rect.width() * ratio)), std::max(1, qRound(rect.height() * ratio)));
}

QRect touched(const QRectF& rect) { return rect.toAlignedRect().adjusted(-1, -1, 1, 1); }

QRectF picture_place(const Image& image, const Rect& place) {
    const QRectF rect = to_qt(place);
    return image.stretch() ? rect : QRectF(rect.topLeft(), QSizeF(card_width, card_height));
}

bool is_seen(const Image& image) { return image.visible() && !image.picture().none(); }

}  // namespace tarnwick
