#pragma once

#include <vector>

#include "platform/form.h"
#include "platform/image.h"
#include "view/board_cursor.h"
#include "view/board_drag.h"
#include "view/board_layers.h"
#include "view/celebration.h"
#include "view/label_row.h"
#include "view/motion.h"
#include "view/table_light.h"
#include "view/text_measure.h"

namespace tarnwick {

/// What a window's board looks like: its outlines, images and labels, and what is seen of a drag, of
/// images on their way and of the keyboard's cursor. It depends on nothing but the window's widgets, the size
/// of texts, and how far the board is scrolled.
class BoardScene {
  public:
    /// @param texts  measures the desktop's font; outlives the scene
    BoardScene(const Form& form, const TextMeasure& texts)
        : form_(form), texts_(texts), drag_(form), motion_(form) {}

    /// How far the board is scrolled down, in pixels: the labels keep their places in the window.
    void set_scrolled(int offset) { scrolled_ = offset; }
    int scrolled() const { return scrolled_; }

    /// Whether lines and signs are to be seen in high contrast (see view/contrast.h).
    void set_high_contrast(bool strong) { strong_ = strong; }

    /// What is to be painted of an area (pixels of the board), so many device pixels to a pixel. Valid until
    /// the next call.
    const BoardLayers& layers(const Area& area, double ratio);
    /// The same of all that is seen in the window's client area.
    const BoardLayers& layers(double ratio);

    /// Where a widget that lies at `place` is seen, in pixels of the board.
    Area area_of(const Widget& widget, const Rect& place) const;
    Area area_of(const Widget& widget) const { return area_of(widget, widget.place()); }
    /// The lower edge of the lowest picture, in pixels of the board.
    int lower_edge() const;
    /// Where a plate is laid below the labels, in pixels of the board, and whether there is anything under it
    /// to keep from them.
    Area plate() const { return plate(LabelRow(form_, texts_)); }
    bool lays_plate() const { return is_seen_within(plate()); }
    /// How much larger than given the labels are seen; 1 or more.
    double label_scale() const { return LabelRow(form_, texts_).place_scale(); }

    BoardDrag& drag() { return drag_; }
    const BoardDrag& drag() const { return drag_; }
    BoardCursor& cursor() { return cursor_; }
    const BoardCursor& cursor() const { return cursor_; }
    Celebration& celebration() { return celebration_; }
    const Celebration& celebration() const { return celebration_; }
    Motion& motion() { return motion_; }
    const Motion& motion() const { return motion_; }

  private:
    Area plate(const LabelRow& row) const;
    const PaintedGround& ground(const Area& area, double ratio);
    void add_outlines(double ratio);
    void add_images(double ratio);
    void add_labels(double ratio);
    bool is_seen_within(const Area& place) const;
    void sort_images();

    const Form& form_;
    const TextMeasure& texts_;
    BoardDrag drag_;
    BoardCursor cursor_;
    TableLight light_;
    Motion motion_;
    Celebration celebration_;
    int scrolled_ = 0;
    bool strong_ = false;
    std::vector<const Image*> images_;  ///< from the lowest one up
    BoardLayers layers_;
};

}  // namespace tarnwick
