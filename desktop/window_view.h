#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/form.h"

namespace tarnwick {

class QtDesktop;

/// What the views of all windows share. The native window is made when its form is first shown. It outlives
/// its view by a moment, as a view may end within an event of its own window: it is hidden at once, so that
/// it gets no more input, and deleted later.
class WindowView : public FormView {
  public:
    WindowView(QtDesktop& desktop, Form& form);
    ~WindowView() override;

    Form& form() const { return form_; }
    /// The native window; null before it is first shown.
    QWidget* window() const { return window_; }

    void form_changed() override;
    void raise() override;

  protected:
    QtDesktop& desktop() const { return desktop_; }
    /// Makes and shows the native window.
    virtual QWidget* make_window() = 0;
    /// Shows the native window for the first time.
    virtual void show_window() { window_->show(); }
    /// Makes the native window look as the form says.
    virtual void sync_window() = 0;

  private:
    QtDesktop& desktop_;
    Form& form_;
    QPointer<QWidget> window_;
};

}  // namespace tarnwick
