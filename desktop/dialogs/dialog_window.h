#pragma once

#include <QDialog>
#include <functional>
#include <map>
#include <memory>

#include "desktop/dialogs/dialog_control.h"
#include "desktop/dialogs/qt_dialog_measure.h"
#include "desktop/shared/window_view.h"
#include "view/control_presses.h"

namespace tarnwick {

/// A dialog made of the toolkit's own widgets. Its layout is as given, or evenly enlarged where the system's
/// font needs more room.
class DialogWindow : public QDialog {
  public:
    DialogWindow(Form& form, QWidget* parent);

    /// Takes over title, size, colour and whether the dialog takes input.
    void sync();
    void widget_changed(const Widget& widget);

    /// What Escape does.
    void reject() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    /// Makes a control show what its widget says; true when its text has another size now.
    bool sync_control(const Widget& widget);
    void make_controls();
    void set_tab_order();
    QWidget* native_of(const Widget& widget) const;
    Widget* focused_widget() const;
    bool is_background(const QPoint& at) const;

    Form& form_;
    QtDialogMeasure measure_{*this};
    BackgroundPress background_;
    std::map<Widget*, std::unique_ptr<DialogControl>, std::less<>> controls_;
    qreal scale_ = 1;
};

class DialogView : public WindowView {
  public:
    using WindowView::WindowView;

    void widget_changed(const Widget& widget, const Rect& before) override;
    void menu_changed() override {}
    void drag_changed() override {}

  protected:
    QWidget* make_window() override;
    void sync_window() override;

  private:
    QPointer<DialogWindow> dialog_;
};

}  // namespace tarnwick
