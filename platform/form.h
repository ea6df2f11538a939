#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/graphics.h"
#include "platform/mouse.h"
#include "platform/widget.h"
#include "platform/window.h"

namespace tarnwick {

/// One entry of a menu. The ampersand in its caption marks its access key.
class MenuEntry {
  public:
    /// `shortcut` is written as on the menu ("Ctrl+Q", "F2"), or empty.
    MenuEntry(Window& window, std::string caption, std::string shortcut = {})
        : window_(window), caption_(std::move(caption)), shortcut_(std::move(shortcut)) {}
    MenuEntry(const MenuEntry&) = delete;
    MenuEntry& operator=(const MenuEntry&) = delete;

    const std::string& caption() const { return caption_; }
    const std::string& shortcut() const { return shortcut_; }

    bool visible() const { return visible_; }
    void set_visible(bool visible);

    std::function<void()> on_click;
    /// What a desktop calls when the user chooses the entry; a hidden one and one of a disabled window do
    /// nothing.
    void choose();

  private:
    Window& window_;
    std::string caption_;
    std::string shortcut_;
    bool visible_ = true;
};

/// A menu of the menu bar with its entries from top to bottom.
struct Menu {
    std::string caption;
    std::vector<MenuEntry*> entries;
};

/// Where the arrow keys find something: which pile of its row it belongs to, both counted from 0.
struct PilePlace {
    int row = 0;
    int pile = 0;
    bool operator==(const PilePlace&) const = default;
};

/// What one widget of a board means, for players who have the board read to them.
struct BoardItem {
    const Widget* widget = nullptr;
    std::string name;
    /// How many clicks make the widget act: 2 for a two-click event, 0 when none does.
    int clicks = 0;
    /// The number that the widget shows, if it shows one, and the largest it can become.
    std::optional<int> value = std::nullopt;
    int most = 0;
    /// What the arrow keys find, piles in order and each from what lies in front on; nothing for the rest.
    std::optional<PilePlace> place = std::nullopt;
    /// What is seen of a widget that is not seen itself.
    const Widget* outline = nullptr;
    /// What a pointer that rests on the widget is told.
    std::string tip = {};
};

enum class WindowState { normal, minimized, maximized };

/// How the user may handle the window from outside.
enum class FormBorder { sizable, fixed_dialog, tool_dialog };

/// A window: first only a name, then loaded (its widgets as stored, then on_load), shown, and unloaded.
/// What a window consists of is told by a subclass, what it does by the handlers attached to it.
class Form : public Window {
  public:
    explicit Form(std::string name);
    ~Form() override;

    const std::string& name() const { return name_; }

    std::function<void()> on_load;
    std::function<void()> on_resize;
    std::function<void()> on_unload;
    /// The user clicked the window's own background.
    std::function<void()> on_click;
    std::function<void(int key_code)> on_key_down;
    /// Tells what the widgets of a board mean, in the order in which they are read out. Nobody is told that
    /// it has changed: it may after every event, and what is new is found by view/spoken_board.h.
    std::function<std::vector<BoardItem>()> on_describe;
    /// Tells what the player's command to copy puts on the clipboard.
    std::function<std::string()> on_copy;
    /// Tells whether images are to be seen on their way to where they lie, asked after an event has moved
    /// some; without it, none are. Must not throw.
    std::function<bool()> on_motion;
    /// Tells how many milliseconds it takes until an image is moved again that is moved in even steps; 0 for
    /// any other image. Must not throw.
    std::function<int(const Image& image)> on_step;

    /// Creates the window as stored and runs on_load; nothing when it is loaded already.
    void load();
    /// Shows the window without waiting for it, loading it first. The first display runs on_resize.
    void show();
    /// Runs on_unload, then forgets the window; nothing when it is not loaded.
    void unload();
    /// Whether unload() is under way: on_unload runs, and the window is about to go.
    bool unloading() const { return unloading_; }
    /// The close box: unloads the window unless it is disabled.
    void close();

    /// A disabled window is drawn but takes no input at all. Does nothing to a window that is not loaded.
    void set_enabled(bool enabled);
    /// Brings the window to the front of the screen and gives it the keyboard.
    void raise();

    const std::string& caption() const { return caption_; }
    void set_caption(const std::string& caption);
    FormBorder border() const { return border_; }
    void set_border(FormBorder border) { border_ = border; }
    Color back_color() const { return back_color_; }
    bool has_back_color() const { return has_back_color_; }
    void set_back_color(Color color);
    /// Whether the window wants to be centred on the screen (else the platform chooses its place).
    bool centered() const { return centered_; }
    void set_centered(bool centered) { centered_ = centered; }

    /// Size of the window with its frame, in twips.
    int width() const { return outer_.width * twips_per_pixel; }
    int height() const { return outer_.height * twips_per_pixel; }
    PixelSize outer_size() const { return outer_; }
    PixelSize client_size() const override;
    /// Resizes the window with its frame; pixels. A loaded window runs on_resize when the size changes.
    void resize(PixelSize outer);
    /// Resizes the window so that its client area gets this size in pixels.
    void resize_client(PixelSize client);
    WindowState state() const { return state_; }

    /// What a desktop calls when the user has resized the window (client area, pixels) or changed its state.
    void user_resized(PixelSize client);
    void user_changed_state(WindowState state);
    /// What a desktop calls for a key that no control has dealt with. True when the window has a handler for
    /// keys and took it.
    bool key_down(int key_code);
    void click_background();
    /// What a desktop calls for the command to copy.
    void copy() const;
    Mouse& mouse() override { return mouse_; }
    const Mouse& mouse() const { return mouse_; }

    const std::vector<Menu>& menus() const { return menus_; }
    /// Whether the window is the table: a menu bar, and one painted board below it. Any other window is a
    /// dialog, made of controls.
    bool is_board() const { return !menus_.empty(); }

  protected:
    /// Puts the window and its widgets into their stored state.
    virtual void design() = 0;
    void set_menus(std::vector<Menu> menus) { menus_ = std::move(menus); }

  private:
    void changed();
    void run(const std::function<void()>& handler) const;

    std::string name_;
    std::string caption_;
    std::vector<Menu> menus_;
    Mouse mouse_;
    PixelSize outer_{320, 240};
    Color back_color_ = black;
    WindowState state_ = WindowState::normal;
    FormBorder border_ = FormBorder::sizable;
    bool has_back_color_ = false;
    bool centered_ = false;
    bool loading_ = false;
    bool unloading_ = false;
};

/// What a window's frame and menu bar take off its size, in pixels. The figures are fixed, so that a window
/// of a given size has the same client area under every window manager; the height leaves the score labels
/// (their lower edge lies 53 pixels above the frame's) three pixels of air, and the width leaves a margin
/// beside the last column of cards that a bar of eight pixels fits into.
PixelSize frame_of(const Form& form);

}  // namespace tarnwick
