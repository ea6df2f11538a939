#pragma once

#include <QAccessible>
#include <QAccessibleWidget>

#include "desktop/board/board_widget.h"

namespace tarnwick {

/// One card, pile or number of a board, as a screen reader sees it. One that the board does not show at the
/// moment is invisible and has no name.
class BoardItemAccessible : public QAccessibleInterface,
                            public QAccessibleActionInterface,
                            public QAccessibleValueInterface {
  public:
    /// @param group  the board as a screen reader sees it
    BoardItemAccessible(const QAccessibleWidget& group, const Widget& widget)
        : group_(group), widget_(widget) {}

    const Widget& widget() const { return widget_; }

    bool isValid() const override { return group_.isValid(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return group_.window(); }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QString text(QAccessible::Text text) const override;
    void setText(QAccessible::Text, const QString&) override {}
    /// On the screen, in pixels; the place of what is scrolled out of the board lies beyond it.
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    /// Does what the mouse does with the item, once it is free to.
    void doAction(const QString& action) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant&) override {}
    QVariant maximumValue() const override;
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

  private:
    /// What is told of the widget now; without a name when nothing is.
    BoardItem item() const;
    bool is_under_cursor() const;

    BoardWidget& board() const { return *static_cast<BoardWidget*>(group_.object()); }

    const QAccessibleWidget& group_;
    const Widget& widget_;
};

}  // namespace tarnwick
