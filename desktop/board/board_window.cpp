#include "desktop/board/board_window.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QMenuBar>
#include <QShortcut>
#include <cmath>

#include "desktop/shared/qt_convert.h"

namespace tarnwick {
namespace {

WindowState state_of(Qt::WindowStates states) {
    if (states & Qt::WindowMinimized) return WindowState::minimized;
    return states & (Qt::WindowMaximized | Qt::WindowFullScreen) ? WindowState::maximized
                                                                 : WindowState::normal;
}

// The height nearest to the wished one that is a whole number of device pixels, so that the board begins at
// one.
int whole_device_height(int height, qreal ratio) {
    constexpr int quarters = 4;
    for (int more = 0; more < quarters; ++more) {
        const qreal device_height = (height + more) * ratio;
        if (device_height == std::floor(device_height)) return height + more;
    }
    return height;
}

}  // namespace

BoardWindow::BoardWindow(Form& form, WindowList& windows)
    : form_(form), board_(*new BoardWidget(form, windows)) {
    setObjectName(to_qt(form.name()));
    make_menus();
    setCentralWidget(&board_);
    board_.on_cursor_moved = [this] { news_.cursor_moved(); };
    board_.setFocus();
}

void BoardWindow::make_menus() {
    for (const Menu& menu : form_.menus()) {
        QMenu* native = menuBar()->addMenu(to_qt(menu.caption));
        for (MenuEntry* entry : menu.entries) {
            QAction* action = native->addAction(to_qt(entry->caption()), [entry] { entry->choose(); });
            if (!entry->shortcut().empty()) action->setShortcut(QKeySequence(to_qt(entry->shortcut())));
            entries_.push_back({entry, action});
        }
    }
    new QShortcut(QKeySequence::Copy, this, [this] { form_.copy(); });
    menuBar()->installEventFilter(&board_);
    menuBar()->setFixedHeight(whole_device_height(menuBar()->sizeHint().height(), devicePixelRatioF()));
    sync_menus();
}

void BoardWindow::sync_menus() {
    for (const Entry& entry : entries_) entry.action->setVisible(entry.entry->visible());
}

void BoardWindow::sync() {
    setWindowTitle(to_qt(form_.caption()));
    menuBar()->setEnabled(form_.enabled());
    board_.form_changed();
    sync_size();
}

void BoardWindow::widget_changed(const Widget& widget, const Rect& before) {
    board_.widget_changed(widget, before);
    news_.board_changed();
}

void BoardWindow::sync_size() {
    const PixelSize client = form_.client_size();
    const QSize size(client.width, client.height);
    if (isMinimized() || size == board_.size()) return;
    if (isMaximized()) showNormal();
    resize(size.width(), size.height() + menuBar()->height());
}

void BoardWindow::closeEvent(QCloseEvent* event) {
    // The form decides; when it ends, it takes its window with it.
    event->ignore();
    board_.end_celebration();
    form_.close();
}

void BoardWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange) return;
    form_.user_changed_state(state_of(windowState()));
    // A minimised form does not take note of its size.
    form_.user_resized({board_.width(), board_.height()});
}

void BoardView::widget_changed(const Widget& widget, const Rect& before) {
    if (board_window_) board_window_->widget_changed(widget, before);
}

void BoardView::menu_changed() {
    if (board_window_) board_window_->sync_menus();
}

void BoardView::drag_changed() {
    if (board_window_) board_window_->board().drag_changed();
}

void BoardView::image_passes(const Image& image, const Image& other) {
    if (board_window_) board_window_->board().image_passes(image, other);
}

void BoardView::dealt(const Image& from) {
    if (board_window_) board_window_->board().dealt(from);
}

void BoardView::game_over(Form& next, const std::vector<std::vector<const Image*>>& piles) {
    if (board_window_) board_window_->board().game_over(next, piles);
}

QWidget* BoardView::make_window() {
    board_window_ = new BoardWindow(form(), windows());
    return board_window_;
}

void BoardView::show_window() {
    // A Wayland compositor does not tell how much of the screen its panels take, and lets a window hang over
    // the edge with the score: there the window gets all that is free.
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) {
        board_window_->showMaximized();
    } else {
        board_window_->show();
    }
}

void BoardView::sync_window() { board_window_->sync(); }

}  // namespace tarnwick
