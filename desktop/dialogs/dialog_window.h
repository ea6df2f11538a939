#pragma once

#include <QDialog>
#include <memory>
#include <unordered_map>
#include <vector>

#include "desktop/dialogs/dialog_control.h"
#include "desktop/shared/window_view.h"

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
    void closeEvent(QCloseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void make_controls();
    /// Ties labels to what they stand beside, for players who cannot see it.
    void name_controls();
    void choose_scale();
    bool all_fit(qreal scale, qreal most) const;
    void set_tab_order();
    void place(const Widget& widget, const DialogControl& control);
    QWidget* native_of(const Widget& widget) const;

    Form& form_;
    std::unordered_map<const Widget*, std::unique_ptr<DialogControl>> controls_;
    qreal scale_ = 1;
    bool pressed_ = false;  ///< on the dialog's own background
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
