#pragma once

#include <QFont>
#include <QFontInfo>

namespace tarnwick {

/// The size of a font in pixels, whichever way it was given.
inline int size_of(const QFont& font) { return QFontInfo(font).pixelSize(); }

/// The least size, in pixels, at which a text in the desktop's font can still be read.
inline int least_readable(const QFont& font) {
    constexpr qreal least_part = 0.5;
    return qRound(least_part * size_of(font));
}

/// The font, made smaller until `fits` says of it that it fits, but not below `least` pixels.
template <class Fits>
QFont shrunk(QFont font, int least, Fits fits) {
    while (!fits(font) && size_of(font) > least) font.setPixelSize(size_of(font) - 1);
    return font;
}

}  // namespace tarnwick
