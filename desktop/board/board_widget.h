#pragma once

#include <QBasicTimer>
#include <QWidget>
#include <functional>

#include "desktop/board/board_painter.h"
#include "desktop/board/slim_scroll_bar.h"
#include "desktop/shared/window_list.h"
#include "view/board_fingers.h"
#include "view/board_stage.h"

class QHelpEvent;
class QTouchEvent;

namespace tarnwick {

/// Shows a window's board, and hands the mouse, the keys and the user's resizing on to its stage.
class BoardWidget : public QWidget, private BoardFront {
  public:
    BoardWidget(Form& form, WindowList& windows);

    // What the view of the window is told.
    void widget_changed(const Widget& widget, const Rect& before) { stage_.widget_changed(widget, before); }
    void drag_changed();
    void image_passes(const Image& image, const Image& other) { stage_.image_passes(image, other); }
    void dealt(const Image& from) { stage_.dealt(from); }
    void game_over(Form& next, const std::vector<std::vector<const Image*>>& won_piles);
    void form_changed() { stage_.form_changed(); }

    void end_celebration() { stage_.end_celebration(); }

    Form& form() const { return form_; }
    /// Does what a screen reader's press on an item does, unless the toolkit waits for the player.
    void press_item(const Widget& item, int clicks, const std::function<bool()>& waits_for_player) {
        stage_.press_item(item, clicks, waits_for_player);
    }
    /// How far the board is scrolled down, in pixels.
    int scroll_offset() const { return stage_.scroll().offset(); }
    /// Where one of the board's widgets is seen, in pixels of the board.
    QRect area_of(const Widget& widget) const;
    /// The widget that the keyboard's cursor is on, or null, and what there is to tell of it besides.
    const Widget* cursor_item() const { return stage_.scene().cursor().item(); }
    std::string_view cursor_hint() const { return stage_.cursor_hint(); }
    /// Told when that has changed, or has got the keyboard.
    std::function<void()> on_cursor_moved;

  protected:
    bool event(QEvent* event) override;
    /// Of what lies beside the board: a press there ends a celebration, too.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void tabletEvent(QTabletEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    // What the stage asks for.
    void repaint(const Area& area) override;
    void repaint_all() override { update(); }
    void scroll_changed() override;
    void settle_later() override;
    void steps_changed() override;
    bool allows_motion() const override;
    void cursor_moved() override;
    void pointer_shape_changed() override;
    bool full_screen() const override { return window()->isFullScreen(); }
    void set_full_screen(bool on) override;
    bool wants_high_contrast() const override;
    void hold_back(Form& next) override;
    void show_held_back() override { windows_.show_held_back(); }

    void show_tip(const QHelpEvent& event);
    bool touch_event(QTouchEvent& event);
    bool is_over_other_window(QPointF global) const;
    bool is_for_scroll_bar(QPointF place) const;

    Form& form_;
    WindowList& windows_;
    BoardPainter painter_;
    SlimScrollBar scroll_bar_{this};
    BoardStage stage_;
    BoardFingers fingers_{stage_};
    bool scrolls_by_pen_ = false;
    QBasicTimer steps_;     ///< runs until the stage's next step
    QBasicTimer settling_;  ///< runs while the size changes, and a moment after
};

}  // namespace tarnwick
