#pragma once

#include "desktop/shared/window_list.h"
#include "platform/form.h"

namespace tarnwick {

/// What the views of all windows share. The native window is made when its form is first shown. It outlives
/// its view by a moment, as a view may end within an event of its own window: it is hidden at once, so that
/// it gets no more input, and deleted later.
class WindowView : public FormView {
  public:
    WindowView(WindowList& windows, Form& form);
    ~WindowView() override;

    Form& form() const { return here_.form; }

    void form_changed() override;
    void raise() override;

  protected:
    WindowList& windows() const { return windows_; }
    /// Makes and shows the native window.
    virtual QWidget* make_window() = 0;
    /// Shows the native window for the first time.
    virtual void show_window() { here_.native->show(); }
    /// Makes the native window look as the form says.
    virtual void sync_window() = 0;

  private:
    WindowList& windows_;
    OpenWindow here_;
};

}  // namespace tarnwick
