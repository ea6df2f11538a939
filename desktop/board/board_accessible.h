#pragma once

#include <QAccessibleWidget>
#include <QTimer>
#include <map>
#include <vector>

#include "platform/form.h"

namespace tarnwick {

class BoardWidget;

/// Makes boards known to screen readers and their like. Called once for the program; more often does no harm.
void install_board_accessibility();

/// The board as a screen reader sees it: a group of the widgets that its window describes, in their order,
/// and the scroll bar. Its children are told apart by their widgets and live as long as the board.
class BoardAccessible : public QAccessibleWidget {
  public:
    explicit BoardAccessible(BoardWidget& board);

    bool isValid() const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

    BoardWidget& board() const;

    /// Tells screen readers what has changed since the last call, or since the board was first looked at.
    /// What comes into sight is told as created, what goes as destroyed.
    void tell_changes();

  protected:
    ~BoardAccessible() override;

  private:
    std::vector<BoardItem> items() const;
    QAccessibleInterface* interface_of(const Widget& widget) const;

    mutable std::map<const Widget*, QAccessible::Id> children_;  ///< made when they are first asked for
    std::vector<BoardItem> told_;
};

/// Tells screen readers that a board has changed: a moment later, as a game changes it in many small steps.
/// Costs nothing while there is no screen reader.
class BoardNews : private QAccessible::ActivationObserver {
  public:
    explicit BoardNews(BoardWidget& board);
    ~BoardNews() override;
    BoardNews(const BoardNews&) = delete;
    BoardNews& operator=(const BoardNews&) = delete;

    void board_changed() {
        if (wanted_ && !timer_.isActive()) timer_.start();
    }
    /// Tells at once what the keyboard's cursor is on, or what is new of that.
    void cursor_moved();

  private:
    void accessibilityActiveChanged(bool active) override { wanted_ = active; }

    BoardWidget& board_;
    QTimer timer_;
    bool wanted_;
};

}  // namespace tarnwick
