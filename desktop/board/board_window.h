#pragma once

#include <QMainWindow>
#include <vector>

#include "desktop/board/board_accessible.h"
#include "desktop/board/board_widget.h"
#include "desktop/shared/window_view.h"

namespace tarnwick {

/// A window with a menu bar and a board.
class BoardWindow : public QMainWindow {
  public:
    BoardWindow(Form& form, WindowList& windows);

    BoardWidget& board() { return board_; }
    /// Takes over title, size, colour and whether the window takes input.
    void sync();
    void widget_changed(const Widget& widget, const Rect& before);
    /// Shows and hides the menus' entries as they say.
    void sync_menus();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    struct Entry {
        const MenuEntry* entry;
        QAction* action;
    };

    void make_menus();
    void sync_size();

    Form& form_;
    BoardWidget& board_;
    BoardNews news_{board_};
    std::vector<Entry> entries_;
};

class BoardView : public WindowView {
  public:
    using WindowView::WindowView;
    ~BoardView() override { windows().show_held_back(); }

    void widget_changed(const Widget& widget, const Rect& before) override;
    void menu_changed() override;
    void drag_changed() override;
    void image_passes(const Image& image, const Image& other) override;
    void dealt(const Image& from) override;
    void game_over(Form& next, const std::vector<std::vector<const Image*>>& piles) override;

  protected:
    QWidget* make_window() override;
    void show_window() override;
    void sync_window() override;

  private:
    QPointer<BoardWindow> board_window_;
};

}  // namespace tarnwick
