#include "desktop/dialog_window.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QScreen>
#include <algorithm>

#include "desktop/qt_convert.h"
#include "desktop/qt_desktop.h"

namespace tarnwick {
namespace {

constexpr qreal scale_step = 0.02;

// How much larger the font is than the one that the layouts are made for, at the least 1.
qreal font_scale(const QFont& font) {
    constexpr qreal usual_height = 15;
    return std::max(1.0, QFontMetricsF(font).height() / usual_height);
}

QRect scaled(const Rect& place, qreal scale) {
    const QRectF rect = to_qt(place);
    // Edges are rounded, not sizes: what touches in the layout still does.
    return QRect(QPoint(qRound(rect.left() * scale), qRound(rect.top() * scale)),
                 QPoint(qRound(rect.right() * scale) - 1, qRound(rect.bottom() * scale) - 1));
}

}  // namespace

DialogWindow::DialogWindow(Form& form, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                          Qt::WindowCloseButtonHint),
      form_(form) {
    // Only the looks of a tool window: the toolkit hands the keys of a real one on to the menus of the main
    // window, and some desktops hide it while another program is in use.
    setAttribute(Qt::WA_X11NetWmWindowTypeUtility, form.border() == FormBorder::tool_dialog);
    setObjectName(to_qt(form.name()));
    make_controls();
    choose_scale();
    sync();
    set_tab_order();
    for (const auto& [widget, control] : controls_) widget_changed(*widget);
    name_controls();
    if (form.centered()) move(screen()->availableGeometry().center() - rect().center());
}

void DialogWindow::make_controls() {
    std::vector<Widget*> widgets = form_.widgets();
    // Frames come before what they hold; apart from that, who comes later lies above.
    std::sort(widgets.begin(), widgets.end(), [](const Widget* a, const Widget* b) {
        const bool a_inside = a->container() != nullptr;
        const bool b_inside = b->container() != nullptr;
        return a_inside != b_inside ? b_inside : a->stacking() < b->stacking();
    });
    for (Widget* widget : widgets) {
        QWidget* parent = widget->container() ? native_of(*widget->container()) : this;
        controls_[widget] = make_control(*widget, parent);
        native_of(*widget)->setFocusPolicy(Qt::NoFocus);
    }
}

void DialogWindow::name_controls() {
    for (const auto& [widget, control] : controls_) {
        if (!widget->spoken_name().empty())
            control->native()->setAccessibleName(to_qt(widget->spoken_name()));
        const Label* label = widget->label();
        // Labels name themselves.
        if (!label || widget->kind() == WidgetKind::label) continue;
        static_cast<QLabel*>(native_of(*label))->setBuddy(control->native());
        control->native()->setAccessibleName(to_qt(label->caption()));
    }
}

QWidget* DialogWindow::native_of(const Widget& widget) const { return controls_.at(&widget)->native(); }

void DialogWindow::choose_scale() {
    // A name of unusual length does not blow the dialog up, and no dialog outgrows the screen.
    constexpr qreal most_for_text = 1.4;
    const QSize screen_size = screen()->availableSize();
    const PixelSize client = form_.client_size();
    const qreal most = std::min({font_scale(font()) * most_for_text, 1.0 * screen_size.width() / client.width,
                                 1.0 * screen_size.height() / client.height});
    while (scale_ + scale_step <= most && !all_fit(scale_, most)) scale_ += scale_step;
}

bool DialogWindow::all_fit(qreal scale, qreal most) const {
    return std::all_of(controls_.begin(), controls_.end(), [=](const auto& entry) {
        const auto fits_at = [&](qreal at) {
            return entry.second->fits(scaled(entry.first->place(), at).size());
        };
        // What would not fit in the largest layout either is no reason to enlarge it.
        return fits_at(scale) || !fits_at(most);
    });
}

void DialogWindow::set_tab_order() {
    QWidget* last = nullptr;
    for (const Widget* widget : form_.tab_order()) {
        QWidget* native = native_of(*widget);
        native->setFocusPolicy(Qt::StrongFocus);
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
    if (form_.caption().empty()) setAccessibleName(QGuiApplication::applicationDisplayName());
    const PixelSize client = form_.client_size();
    setFixedSize(qRound(client.width * scale_), qRound(client.height * scale_));
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
    DialogControl& control = *controls_.at(&widget);
    place(widget, control);
    control.sync(scale_);
    control.native()->setVisible(widget.visible());
    if (form_.is_in_front(widget.stacking())) control.native()->raise();
}

void DialogWindow::place(const Widget& widget, const DialogControl& control) {
    QRect rect = scaled(widget.place(), scale_);
    const int missing = std::max(0, control.least_height() - rect.height());
    rect.adjust(0, -missing / 2, 0, missing - missing / 2);
    control.native()->setGeometry(rect);
}

void DialogWindow::reject() {
    for (Widget* widget : form_.widgets()) {
        if (widget->kind() != WidgetKind::button || !static_cast<Button*>(widget)->is_cancel()) continue;
        static_cast<Button*>(widget)->click();
        return;
    }
    // Without a button that cancels there is nothing for Escape to do: it must not enter half a name.
}

void DialogWindow::closeEvent(QCloseEvent* event) {
    // The form decides; when it ends, it takes its window with it.
    event->ignore();
    form_.close();
}

void DialogWindow::mousePressEvent(QMouseEvent* event) {
    // What labels and frames leave alone comes here as well.
    pressed_ = event->button() == Qt::LeftButton && !childAt(event->position().toPoint());
}

void DialogWindow::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !pressed_) return;
    pressed_ = false;
    const QPoint at = event->position().toPoint();
    if (rect().contains(at) && !childAt(at)) form_.click_background();
}

void DialogView::widget_changed(const Widget& widget, const Rect&) {
    if (dialog_) dialog_->widget_changed(widget);
}

QWidget* DialogView::make_window() {
    dialog_ = new DialogWindow(form(), desktop().main_window());
    return dialog_;
}

void DialogView::sync_window() { dialog_->sync(); }

}  // namespace tarnwick
