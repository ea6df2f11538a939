#pragma once

#include <QPointer>
#include <QTimer>
#include <memory>
#include <string>
#include <vector>

#include "desktop/shared/window_list.h"
#include "platform/desktop.h"

class QDialog;

namespace tarnwick {

class HelpWindow;

/// Writes a message for a player who is not there to the standard error output.
void write_message(const Message& message);

/// The real desktop. Needs a QApplication, and ends its event loop when no window is left.
class QtDesktop : public Desktop {
  public:
    /// Becomes the desktop in use until it is destroyed.
    QtDesktop();
    ~QtDesktop() override;

    PixelSize screen_size() const override;
    std::int64_t now() const override;
    std::string short_date() const override;
    std::int64_t double_click_time() const override;
    std::unique_ptr<FormView> make_view(Form& form) override;
    void timers_changed() override;
    void windows_changed() override;
    void run_in_background(std::function<void()> action) override;
    bool show_help(const std::string& file_name) override;
    void copy_text(const std::string& text) override;

    /// Lets the forms go on without their windows, which stay as they are: the display is lost, and nothing
    /// of the toolkit may be called any more.
    void abandon_windows() { windows_.abandon(); }

  protected:
    void show_message(const Message& message) override;
    void show_color_picker(const std::string& title) override;
    void take_back_question() override;
    void unheard(const Message& message) override;
    void event_ended() override;

  private:
    void arm_timer();
    void tick();
    void settle_windows();
    void hand_on_keyboard();
    int run_question(QDialog& dialog);

    QTimer timer_;
    QTimer background_;
    std::function<void()> background_action_;
    WindowList windows_;
    QPointer<QDialog> question_;
    std::unique_ptr<HelpWindow> help_;
};

}  // namespace tarnwick
