#pragma once

namespace tarnwick {

/// How far a board is scrolled when cards lie below the lower edge of its window. All lengths are pixels.
class BoardScroll {
  public:
    /// What a notch of a wheel, or a click on an arrow of a scroll bar, scrolls by.
    static constexpr int step = 48;

    /// The height of what is seen of the board.
    void set_page(int height) { page_ = height; }
    int page() const { return page_; }
    /// The lower edge of the lowest card, which can be scrolled to, with some air under it.
    void set_lower_edge(int edge);

    /// What can be scrolled to: 0 to this; 0 when the whole board is seen.
    int range() const { return range_; }
    /// Where it was scrolled to, and how far the board is moved up for it: a whole number of device pixels at
    /// every scale in quarters.
    int value() const { return value_; }
    int offset() const;

    /// Scrolls to a value, or the nearest one there is.
    void go_to(int value);
    /// Scrolls by half a page for Page Up and Page Down, to the ends for Home and End; nothing for other
    /// keys.
    void press(int key_code);
    /// Scrolls as far as it takes to see this row of the board.
    void reveal(int y);

    /// So near an edge of the window, a card that is held scrolls the board.
    static constexpr double edge_reach = 24;
    /// Milliseconds from one step of that to the next.
    static constexpr int edge_step_time = 25;
    /// Which way a card held at this height of the window scrolls: -1 up, 1 down, 0 not at all.
    int ahead(double y) const;
    /// Scrolls that way by one step.
    void step_ahead(double y);

  private:
    int page_ = 0;
    int range_ = 0;
    int value_ = 0;
};

}  // namespace tarnwick
