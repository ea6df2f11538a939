#include "desktop/dialogs/dialog_window.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QScreen>

#include "desktop/shared/key_codes.h"
#include "desktop/shared/qt_convert.h"
#include "platform/key_codes.h"
#include "view/dialog_keys.h"
#include "view/dialog_layout.h"
#include "view/dialog_names.h"

namespace tarnwick {
namespace {

Qt::FocusPolicy focus_policy(KeyboardUse use) {
    switch (use) {
        case KeyboardUse::by_tab:
            return Qt::StrongFocus;
        case KeyboardUse::by_click:
            return Qt::ClickFocus;
        case KeyboardUse::none:
            break;
    }
    return Qt::NoFocus;
}

}  // namespace

DialogWindow::DialogWindow(Form& form, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                          Qt::WindowCloseButtonHint),
      form_(form),
      background_(form) {
    // Only the looks of a tool window: the toolkit hands the keys of a real one on to the menus of the main
    // window, and some desktops hide it while another program is in use.
    setAttribute(Qt::WA_X11NetWmWindowTypeUtility, form.border() == FormBorder::tool_dialog);
    setObjectName(to_qt(form.name()));
    make_controls();
    installEventFilter(this);
    const QSize room = screen()->availableSize();
    scale_ = fitting_scale(form, {room.width(), room.height()}, measure_);
    sync();
    set_tab_order();
    for (const auto& [widget, control] : controls_) sync_control(*widget);
    if (form.centered()) move(screen()->availableGeometry().center() - rect().center());
}

void DialogWindow::make_controls() {
    for (Widget* widget : making_order(form_)) {
        QWidget* parent = widget->container() ? native_of(*widget->container()) : this;
        controls_[widget] = make_control(*widget, parent);
        native_of(*widget)->installEventFilter(this);
    }
    for (const auto& [widget, control] : controls_) {
        const Label* label = naming_label(*widget);
        if (label) static_cast<QLabel*>(native_of(*label))->setBuddy(control->native());
    }
}

QWidget* DialogWindow::native_of(const Widget& widget) const {
    return controls_.find(&widget)->second->native();
}

Widget* DialogWindow::focused_widget() const {
    for (const auto& [widget, control] : controls_) {
        if (control->native() == focusWidget()) return widget;
    }
    return nullptr;
}

void DialogWindow::set_tab_order() {
    for (const auto& [widget, control] : controls_) {
        control->native()->setFocusPolicy(focus_policy(keyboard_use(*widget)));
    }
    QWidget* last = nullptr;
    for (const Widget* widget : form_.tab_order()) {
        QWidget* native = native_of(*widget);
        if (last) {
            QWidget::setTabOrder(last, native);
        } else {
            native->setFocus();
        }
        last = native;
    }
}

void DialogWindow::sync() {
    // Without any title the toolkit would put the program's name there.
    setWindowTitle(form_.caption().empty() ? QStringLiteral(" ") : to_qt(form_.caption()));
    setAccessibleName(to_qt(spoken_title(form_)));
    const PixelSize size = dialog_size(form_, scale_);
    setFixedSize(size.width, size.height);
    if (form_.has_back_color()) {
        QPalette colors = palette();
        colors.setColor(QPalette::Window, to_qt(form_.back_color()));
        setPalette(colors);
    }
    for (const auto& [widget, control] : controls_) {
        if (!widget->container()) control->native()->setEnabled(form_.enabled());
    }
}

void DialogWindow::widget_changed(const Widget& widget) {
    if (!sync_control(widget)) return;
    for (const auto& [other, control] : controls_) {
        if (keeps_to(*other, widget)) sync_control(*other);
    }
}

bool DialogWindow::sync_control(const Widget& widget) {
    DialogControl& control = *controls_.find(&widget)->second;
    QWidget& native = *control.native();
    const Area place = control_place(widget, scale_, measure_);
    native.setGeometry(place.left, place.top, place.width, place.height);
    native.setFocusPolicy(focus_policy(keyboard_use(widget)));
    const ShownText text = shown_text(widget, scale_, measure_);
    const QFont font = measure_.font(text.font);
    const bool has_other_size = native.font() != font;
    control.sync({text, font, scale_});
    native.setAccessibleName(to_qt(spoken_name(widget)));
    native.setVisible(widget.visible());
    if (form_.is_in_front(widget.stacking())) native.raise();
    return has_other_size;
}

void DialogWindow::reject() { press_escape(form_); }

bool DialogWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    return is_held_enter(key_code_of(key.key()), key.isAutoRepeat());
}

void DialogWindow::keyPressEvent(QKeyEvent* event) {
    if (key_code_of(event->key()) == enter_key && !(event->modifiers() & ~Qt::KeypadModifier)) {
        press_enter(form_, focused_widget());
    } else {
        QDialog::keyPressEvent(event);
    }
}

void DialogWindow::closeEvent(QCloseEvent* event) {
    // The form decides; when it ends, it takes its window with it.
    event->ignore();
    form_.close();
}

// What labels and frames leave alone comes here as well.
void DialogWindow::mousePressEvent(QMouseEvent* event) {
    background_.pressed(event->button() == Qt::LeftButton && is_background(event->position().toPoint()));
}

void DialogWindow::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) background_.released(is_background(event->position().toPoint()));
}

bool DialogWindow::is_background(const QPoint& at) const { return rect().contains(at) && !childAt(at); }

void DialogView::widget_changed(const Widget& widget, const Rect&) {
    if (dialog_) dialog_->widget_changed(widget);
}

QWidget* DialogView::make_window() {
    dialog_ = new DialogWindow(form(), windows().main_window());
    return dialog_;
}

void DialogView::sync_window() { dialog_->sync(); }

}  // namespace tarnwick
