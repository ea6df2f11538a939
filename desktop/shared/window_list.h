#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <vector>

#include "platform/form.h"

namespace tarnwick {

/// A loaded window and its native one, which is null before it is first shown.
struct OpenWindow {
    Form& form;
    QPointer<QWidget> native = nullptr;
};

/// The windows that are loaded, in the order in which they were.
class WindowList {
  public:
    /// Called by the views, which keep the entries.
    void add(OpenWindow& window) { windows_.push_back(&window); }
    void remove(OpenWindow& window);

    /// The window that new dialogs belong to (not one that is about to go), and the front one of all; null
    /// when there is none.
    QWidget* main_window() const;
    QWidget* front_window() const;
    /// Whether the native window is that of a form which takes no input.
    bool is_disabled(const QWidget& native) const;
    /// The window of this form, which is about to be shown, is not seen before show_held_back(). One is held
    /// back at a time.
    /// @param shown  called when that is called, by whomever
    void hold_back(const Form& form, std::function<void()> shown);
    bool holds_back(const Form& form) const { return held_back_ == &form; }
    /// Shows it with the keyboard, or without where the player is in another program.
    void show_held_back();

    /// Lets the dialogs of a window that is about to go stay on the screen without it.
    void detach_dialogs_of(const QWidget& window) const;

    /// Takes the views off all forms, and their native windows off the screen.
    void close();
    /// Lets the forms go on without their views and native windows, which stay as they are.
    void abandon();

  private:
    std::vector<OpenWindow*> windows_;
    const Form* held_back_ = nullptr;
    std::function<void()> shown_;
};

}  // namespace tarnwick
