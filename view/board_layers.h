#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "platform/controls.h"
#include "platform/graphics.h"
#include "view/area.h"

namespace tarnwick {

/// The outline of an empty pile. Device pixels; `middle` is the middle of the line.
struct PaintedOutline {
    Box middle;
    Color color = black;
    double line = 1;
    double radius = 0;
};

/// A picture, in whole device pixels. A border is a black line of one device pixel, inside of the place.
struct PaintedImage {
    Picture picture;
    Area place;
    bool bordered = false;
};

/// What marks the receiver of a drag: a line and what it surrounds, in one colour. Device pixels; the
/// opacities go from 0 to 255.
struct PaintedMark {
    Box middle;
    Color color = black;
    double line = 1;
    double radius = 0;
    int line_opacity = 255;
    int fill_opacity = 255;
};

/// The shadow of a pile of lifted cards. Device pixels: it reaches `reach` beyond the pile on every side,
/// lies `drop` lower, and fades out over `blur`; where it is darkest, its black has this opacity, of 255.
struct PaintedShadow {
    Area pile;
    int reach = 0;
    double drop = 0;
    double blur = 0;
    double darkest = 0;
};

/// What is laid between the cards and the labels. Pixels of the board.
struct PaintedPlate {
    Area place;
    Color color = black;
    double radius = 0;
};

/// A text in the desktop's font, in the middle of the height of its place. Pixels of the board; it may reach
/// beyond its place. The text is valid until the label changes.
struct PaintedLabel {
    Box place;
    std::string_view text;
    Color color = black;
    Alignment alignment = Alignment::left;
};

/// All that is seen of an area of a board, from back to front, in the order of these members but the
/// last. What only
/// reaches into the area is listed whole: the area clips it. All places count from the upper left corner of
/// the board, those of the labels too: a front end shifts them all up by BoardScroll::offset().
struct BoardLayers {
    Area area;  ///< pixels of the board
    Color background = black;
    std::vector<PaintedOutline> outlines;
    std::vector<PaintedImage> images;
    std::optional<PaintedMark> mark;
    std::optional<PaintedShadow> shadow;
    std::vector<PaintedImage> lifted;
    std::optional<PaintedPlate> plate;
    std::vector<PaintedLabel> labels;
    /// Not seen yet, but soon: so that their pictures can be drawn now, and not while all moves.
    std::vector<PaintedImage> coming;
};

}  // namespace tarnwick
