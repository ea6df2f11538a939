#include "platform/form.h"

#include <exception>
#include <utility>

#include "platform/desktop.h"
#include "platform/timer.h"

namespace tarnwick {
namespace {

// Runs an action at the end of a block, whichever way it is left.
template <class Action>
class Finally {
  public:
    explicit Finally(Action action) : action_(std::move(action)) {}
    ~Finally() { action_(); }
    Finally(const Finally&) = delete;
    Finally& operator=(const Finally&) = delete;

  private:
    Action action_;
};

}  // namespace

void MenuEntry::set_visible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    if (FormView* view = window_.view()) view->menu_changed();
}

void MenuEntry::choose() {
    if (!visible_ || !window_.accepts_input() || !on_click) return;
    // What an entry does may change what lies under the pointer: a drag ends with it.
    window_.mouse().cancel();
    desktop().event(on_click);
}

PixelSize frame_of(const Form& form) {
    constexpr PixelSize sizable_with_menu{2, 50};
    constexpr PixelSize dialog{6, 28};
    return form.border() == FormBorder::sizable ? sizable_with_menu : dialog;
}

Form::Form(std::string name) : name_(std::move(name)), mouse_(*this) {}

// The windows are static and go when no desktop is left to close them: a view that nobody has taken by then,
// because the process was ended from within the toolkit, must not be called any more.
Form::~Form() { static_cast<void>(view_.release()); }

void Form::run(const std::function<void()>& handler) const {
    if (handler) handler();
}

void Form::changed() {
    if (view_) view_->form_changed();
}

void Form::load() {
    if (loaded_) return;
    loaded_ = true;
    enabled_ = true;
    state_ = WindowState::normal;
    design();
    mouse_.set_seen_area(std::nullopt);
    view_ = desktop().make_view(*this);
    timer_queue().start(*this);
    loading_ = true;
    const Finally loaded([this] { loading_ = false; });
    run(on_load);
}

void Form::show() {
    // A window that could not fill itself is shown as far as it came: it must be there to be closed again.
    std::exception_ptr failure;
    try {
        load();
    } catch (...) {
        failure = std::current_exception();
    }
    if (visible_) {
        raise();
    } else {
        visible_ = true;
        changed();
        desktop().windows_changed();
        run(on_resize);
    }
    if (failure) std::rethrow_exception(failure);
}

void Form::unload() {
    if (!loaded_ || unloading_) return;
    unloading_ = true;
    const Finally forget([this] {
        mouse_.cancel();
        loaded_ = false;
        visible_ = false;
        unloading_ = false;
        view_.reset();
        desktop().windows_changed();
    });
    run(on_unload);
}

void Form::close() {
    if (accepts_input()) desktop().event([this] { unload(); });
}

void Form::set_enabled(bool enabled) {
    if (!loaded_ || enabled == enabled_) return;
    enabled_ = enabled;
    if (!enabled) mouse_.cancel();
    changed();
}

void Form::raise() {
    if (view_ && visible_) view_->raise();
}

void Form::set_caption(const std::string& caption) {
    caption_ = caption;
    changed();
}

void Form::set_back_color(Color color) {
    has_back_color_ = true;
    back_color_ = color;
    changed();
}

PixelSize Form::client_size() const {
    const PixelSize frame = frame_of(*this);
    return {outer_.width - frame.width, outer_.height - frame.height};
}

void Form::resize(PixelSize outer) {
    if (outer == outer_) return;
    outer_ = outer;
    changed();
    if (loaded_ && (visible_ || loading_)) run(on_resize);
    mouse_.follow_layout();
}

void Form::resize_client(PixelSize client) {
    const PixelSize frame = frame_of(*this);
    resize({client.width + frame.width, client.height + frame.height});
}

void Form::user_resized(PixelSize client) {
    if (!loaded_ || state_ == WindowState::minimized || client == client_size()) return;
    const PixelSize frame = frame_of(*this);
    outer_ = {client.width + frame.width, client.height + frame.height};
    if (visible_ && on_resize) desktop().event(on_resize);
    mouse_.follow_layout();
}

void Form::user_changed_state(WindowState state) {
    if (!loaded_ || state == state_) return;
    state_ = state;
    if (state == WindowState::minimized) mouse_.cancel();
    if (visible_ && on_resize) desktop().event(on_resize);
    mouse_.follow_layout();
}

bool Form::key_down(int key_code) {
    // A drag is one action of the player's: no key comes between its press and its release.
    if (!accepts_input() || !on_key_down || mouse_.dragged()) return false;
    desktop().event([&] { on_key_down(key_code); });
    return true;
}

void Form::copy() const {
    if (accepts_input() && on_copy) desktop().copy_text(on_copy());
}

void Form::click_background() {
    if (accepts_input() && on_click) desktop().event(on_click);
}

}  // namespace tarnwick
