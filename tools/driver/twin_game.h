#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "board/display.h"
#include "tools/driver/child_process.h"
#include "tools/driver/headless_game.h"
#include "tools/driver/x_driver.h"

namespace tarnwick {

/// The title of the main window.
inline constexpr const char* main_title = "Tarnwick at " TARNWICK_ADDRESS;
/// The title of the dialog that asks for a name: an empty one.
inline constexpr const char* win_title = " ";

/// A folder that goes with this object.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& path() const { return path_; }

  private:
    std::string path_;
};

/// How a game is started.
struct Start {
    std::string program;
    std::uint32_t deal = 1;
    /// What the store holds before.
    std::map<std::string, std::string> settings = {};
    Environment environment = {};
    /// Device pixels for a pixel of the board.
    int scale = 1;
    /// Arguments besides those for the deal and the store.
    std::vector<std::string> arguments = {};
};

/// A place on the board, in its pixels.
struct Spot {
    int x = 0;
    int y = 0;
};

/// One game played twice with the same events: in the real window with real events, and headless. What the
/// headless game shows is what the window must show.
class TwinGame {
  public:
    /// Starts both and waits until the real window is painted and has the keyboard. Throws std::runtime_error
    /// when that fails.
    explicit TwinGame(Start start);

    XDriver& screen() { return screen_; }
    ChildProcess& program() { return *program_; }
    XWindow window() const { return window_; }
    HeadlessGame& headless() { return *headless_; }

    /// Where the board lies within the pixels of the window.
    XPlace board() const;
    /// The board's pixels as they are seen now.
    XPixels board_pixels() const;
    int scale() const { return start_.scale; }

    /// Where a spot is on the screen, in its pixels.
    Spot on_screen(Spot spot) const;

    /// Gives the window this size without its frame, in device pixels, as a user who draws at its edges.
    void resize(int width, int height);

    /// A spot of an image: the part of a card that others lying on it leave free.
    static Spot spot_on(const Image& image);

    void press(Spot spot, XButton button = XButton::left);
    void move(Spot spot);
    void release(Spot spot, XButton button = XButton::left);
    void click(Spot spot);
    void drag(Spot from, Spot to);
    /// Piles have their numbers: 0 to 9 the columns, 12 to 15 the ace piles, 16 the turned card.
    void drag(int from, int to) { drag(spot_on(top_image(from)), spot_on(top_image(to))); }
    void click(int pile) { click(spot_on(top_image(pile))); }
    void click_stock();
    void space();

    /// The stored text of a key, in the file of the real program; "-" when there is none.
    std::string stored(const std::string& key) const;
    /// Saves a text there, as another program would.
    void store(const std::string& key, const std::string& text) const;

    /// The file that the real program keeps its settings and scores in.
    const std::string& store_file() const { return store_file_; }

    /// Waits for a window of the real program. Throws std::runtime_error when none appears.
    XWindow wait_for(const std::string& title);
    /// Whether the window with this title goes away in time.
    bool goes(const std::string& title);
    bool has(const std::string& title) const { return screen_.find(program_->pid(), title) != 0; }
    /// Waits until the window has the keyboard; false when it does not get it.
    bool gets_keyboard(XWindow window) const;
    /// Brings the window to the front, as often as it takes while others still open; false when it does not
    /// get the keyboard.
    bool bring_to_front(XWindow window);

    /// Starts the real program once more with the same store, and the headless game afresh with `settings`.
    void restart(const std::map<std::string, std::string>& settings);

  private:
    void begin();
    bool is_painted() const;

    Start start_;
    TemporaryFolder folder_;
    std::string store_file_ = folder_.path() + "/settings.sqlite";
    XDriver screen_;
    std::unique_ptr<HeadlessGame> headless_;
    std::unique_ptr<ChildProcess> program_;
    XWindow window_ = 0;
};

}  // namespace tarnwick
