#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/controls.h"
#include "platform/graphics.h"
#include "view/area.h"

namespace tarnwick {

/// The table, in strips that are cut from one sheet: each shows what lies on it from this column and row on.
/// Device pixels.
struct PaintedGround {
    struct Sheet {
        int width = 0;
        int height = 0;
        std::vector<std::uint32_t> pixels;  ///< row by row, red above green above blue, opaque
    };
    struct Strip {
        Area place;
        int column = 0;
        int row = 0;
    };
    Sheet sheet;
    std::vector<Strip> strips;
};

/// A thin rim around what would not stand out from the table without. It reaches so far beyond it on every
/// side, and is laid below it; the opacity goes from 0 to 255.
struct PaintedRim {
    Color color = black;
    double width = 1;
    int opacity = 255;
    bool operator==(const PaintedRim&) const = default;
};

/// A sign of lines with round ends and corners, so wide. Where lines meet, they are no darker.
struct PaintedSign {
    std::vector<std::vector<Point>> lines;
    double width = 1;
    bool operator==(const PaintedSign&) const = default;
};

/// An empty place: a line and what it surrounds, and a sign, all in one colour. A rim, if there is one, runs
/// around both sides of the line and around the sign. Device pixels; the opacities go from 0 to 255.
struct PaintedOutline {
    /// Counted from the upper left corner of its place: what looks the same need be drawn only once.
    struct Look {
        PixelSize size;  ///< that of the place
        Box middle;      ///< of the line
        Color color = black;
        double line = 1;
        double radius = 0;
        int line_opacity = 255;
        int fill_opacity = 0;
        int sign_opacity = 255;
        PaintedSign sign;
        std::optional<PaintedRim> rim;
        bool operator==(const Look&) const = default;
    };
    Area place;
    Look look;
};

/// A picture, in whole device pixels. The opacity goes from 0 to 255. A card may have a shadow around it, as
/// card_shadow() tells.
struct PaintedImage {
    Picture picture;
    Area place;
    bool shadow = false;
    /// So many of its rows, from the top down, lie on a card of the same column or beside its shadow, to
    /// which this one adds nothing.
    int upon = 0;
    int opacity = 255;
};

/// What marks the receiver of a drag: a line and what it surrounds, in one colour. A rim, if there is one,
/// runs along both sides of the line. Device pixels; the opacities go from 0 to 255.
struct PaintedMark {
    Box middle;
    Color color = black;
    double line = 1;
    double radius = 0;
    int line_opacity = 255;
    int fill_opacity = 255;
    std::optional<PaintedRim> rim = std::nullopt;
};

/// The outline of a rectangle with round corners.
struct PaintedRing {
    Box middle;  ///< of the line
    Color color = black;
    double line = 1;
    double radius = 0;
};

/// The shadow of a card or a pile of them. Device pixels: it reaches `reach` beyond the pile on every side,
/// lies `drop` lower, and fades out over `blur`; where it is darkest, its black has this opacity, of 255.
struct PaintedShadow {
    Area pile;
    int reach = 0;
    double drop = 0;
    double blur = 0;
    double darkest = 0;
};

/// A piece of the table that is laid between the cards and the labels. Device pixels.
struct PaintedPlate {
    Area place;
    double radius = 0;
};

/// A text in the desktop's font, so many times as large, in the middle of the height of its place. Pixels of
/// the board; it may reach beyond its place. The text is valid until the label changes.
struct PaintedLabel {
    Box place;
    std::string_view text;
    Color color = black;
    Alignment alignment = Alignment::left;
    double font_scale = 1;
    std::optional<PaintedRim> rim;
};

/// All that is seen of an area of a board, from back to front, in the order of these members but the last.
/// What only reaches into the area is listed whole: the area clips it. All places count from the upper left
/// corner of the board, those of the labels too: a front end shifts them all up by BoardScroll::offset().
struct BoardLayers {
    Area area;  ///< pixels of the board
    const PaintedGround* ground = nullptr;
    std::vector<PaintedOutline> outlines;
    std::vector<PaintedImage> images;
    std::optional<PaintedMark> mark;
    std::optional<PaintedShadow> shadow;  ///< of what is lifted
    std::vector<PaintedImage> lifted;
    std::vector<PaintedRing> rings;  ///< of the keyboard's cursor
    std::optional<PaintedPlate> plate;
    std::vector<PaintedLabel> labels;
    std::vector<PaintedImage> celebration;
    /// Not seen yet, but soon: so that their pictures can be drawn now, and not while all moves.
    std::vector<PaintedImage> coming;
};

}  // namespace tarnwick
