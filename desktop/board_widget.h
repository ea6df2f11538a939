#pragma once

#include <QBasicTimer>
#include <QWidget>

#include "desktop/board_accessible.h"
#include "desktop/board_painter.h"
#include "desktop/glide_back.h"
#include "desktop/slim_scroll_bar.h"

namespace tarnwick {

/// Shows a window's board and hands the mouse, the keys and the user's resizing on to the window.
/// When cards lie below its lower edge, the board can be scrolled down to them.
class BoardWidget : public QWidget {
  public:
    explicit BoardWidget(Form& form);

    /// Repaints a widget that was seen at `before`.
    void widget_changed(const Widget& widget, const Rect& before);
    /// Repaints what a step of a drag has changed.
    void drag_changed();
    /// Repaints all of the board.
    void repaint_all();

    /// Scrolls the board as far as it takes to see this spot of it, in its pixels.
    void reveal(QPointF spot);

    Form& form() const { return form_; }
    /// How far the board is scrolled down, in pixels.
    int scroll_offset() const { return offset_; }

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    void repaint_area(const QRect& area);
    void repaint_lifted();
    void repaint_mark();
    void take_up_or_put_down();
    void move_pointer(QPointF place);
    /// Tells the window which part of the board is seen.
    void show_part(int offset);
    void scroll_with(int key);
    void scroll_at_edge();
    /// Which way a drag scrolls the board now: -1 up, 1 down, 0 not at all.
    int edge_ahead() const;
    void update_label_scale();
    void update_scrolling_later();
    void update_scrolling();
    QPointF on_board(const QMouseEvent& event) const;

    Form& form_;
    GlideBack glide_;
    BoardPainter painter_;
    SlimScrollBar scroll_bar_{this};
    QRect lifted_area_;
    std::vector<Image*> lifted_;  ///< the images of the drag
    QRect mark_area_;
    QPointF drag_offset_;  ///< how far the pointer has moved since the drag's press
    QPointF pointer_;      ///< where the pointer was last seen, in the widget
    BoardNews news_{*this};
    QBasicTimer edge_scroll_;  ///< runs while a drag is held at an edge beyond which there is more
    QBasicTimer settling_;     ///< runs while the size changes, and a moment after
    qreal label_scale_ = 1;
    QRect plate_;       ///< what is painted anew when anything below the labels changes
    int offset_ = 0;    ///< how far the board is scrolled down, in pixels
    int repaints_ = 0;  ///< rectangles since the board was last painted
    bool scrolling_is_stale_ = false;
};

}  // namespace tarnwick
