#pragma once

#include <QColor>
#include <QRect>
#include <QRectF>
#include <QString>

#include "platform/graphics.h"
#include "view/area.h"

namespace tarnwick {

inline QColor to_qt(Color color) { return QColor(red_of(color), green_of(color), blue_of(color)); }
/// With an opacity of 0 to 255.
inline QColor to_qt(Color color, int opacity) {
    return QColor(red_of(color), green_of(color), blue_of(color), opacity);
}
inline Color from_qt(const QColor& color) { return color_of(color.red(), color.green(), color.blue()); }

inline QRectF to_qt(const Rect& rect) {
    return QRectF(static_cast<qreal>(rect.left),
                  static_cast<qreal>(rect.top),
                  static_cast<qreal>(rect.width),
                  static_cast<qreal>(rect.height));
}

inline QRectF to_qt(const Box& box) { return QRectF(box.left, box.top, box.width, box.height); }

inline QRect to_qt(const Area& area) { return QRect(area.left, area.top, area.width, area.height); }
inline Area from_qt(const QRect& rect) { return {rect.left(), rect.top(), rect.width(), rect.height()}; }

inline QString to_qt(const std::string& text) { return QString::fromStdString(text); }

}  // namespace tarnwick
