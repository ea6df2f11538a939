#pragma once

#include <QScrollBar>

namespace tarnwick {

/// A scroll bar that at rest fits into the margin beside the cards, and grows under the pointer while that
/// holds none.
class SlimScrollBar : public QScrollBar {
  public:
    explicit SlimScrollBar(QWidget* parent);

    /// Lays the bar along the right edge of its parent.
    void settle();
    /// Whether a card is held, so that the bar keeps out of its way.
    void set_out_of_the_way(bool out);

  protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void set_grown(bool grown);
    QRectF handle() const;

    bool grown_ = false;
    bool out_of_the_way_ = false;
};

}  // namespace tarnwick
