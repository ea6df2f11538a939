#include "tools/driver/twin_game.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <stdexcept>

#include "settings/sqlite/sqlite_store.h"
#include "state/variables.h"
#include "tools/driver/eventually.h"
#include "windows/frmcards.h"

namespace tarnwick {

TemporaryFolder::TemporaryFolder()
    : path_((std::filesystem::temp_directory_path() / "tarnwick-XXXXXX").string()) {
    if (!mkdtemp(path_.data())) throw std::runtime_error("no temporary folder can be made");
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

TwinGame::TwinGame(Start start) : start_(std::move(start)) {
    SqliteStore store(store_file_);
    for (const auto& [key, text] : start_.settings) store.save("Tarnwick", "setting", key, text);
    begin();
}

void TwinGame::begin() {
    // On the middle of nothing, so that the last game's pointer presses no button and lights none up.
    screen_.move_pointer(screen_.screen().width - 1, screen_.screen().height - 1);
    headless_.reset();
    headless_ = std::make_unique<HeadlessGame>(
        PixelSize{screen_.screen().width / start_.scale, screen_.screen().height / start_.scale});
    for (const auto& [key, text] : start_.settings) headless_->save(key, text);
    headless_->start(start_.deal);

    Environment environment = start_.environment;
    environment.insert(environment.end(), {{"QT_QPA_PLATFORM", "xcb"}, {"WAYLAND_DISPLAY", ""}});
    if (start_.scale != 1) environment.emplace_back("QT_SCALE_FACTOR", std::to_string(start_.scale));
    std::vector<std::string> arguments{"--deal", std::to_string(start_.deal), "--store", store_file_};
    arguments.insert(arguments.end(), start_.arguments.begin(), start_.arguments.end());
    program_ = std::make_unique<ChildProcess>(start_.program, arguments, environment);
    window_ = wait_for(main_title);
    // A program that has something to say at its start gives the keyboard to its message.
    const auto has_keyboard = [this] {
        const std::vector<XWindow> windows = screen_.windows_of(program_->pid());
        return std::find(windows.begin(), windows.end(), screen_.active()) != windows.end();
    };
    if (!eventually(has_keyboard)) throw std::runtime_error("the program does not get the keyboard");
    if (!eventually([this] { return is_painted(); })) throw std::runtime_error("the window stays empty");
}

bool TwinGame::is_painted() const {
    const XPixels seen = screen_.pixels(window_);
    return std::adjacent_find(seen.rgb.begin(), seen.rgb.end(), std::not_equal_to<>()) != seen.rgb.end();
}

void TwinGame::restart(const std::map<std::string, std::string>& settings) {
    start_.settings = settings;
    begin();
}

XWindow TwinGame::wait_for(const std::string& title) {
    XWindow found = 0;
    eventually([&] { return (found = screen_.find(program_->pid(), title)) != 0 || !program_->running(); });
    if (found == 0) throw std::runtime_error("no window appears that is called \"" + title + '"');
    return found;
}

bool TwinGame::goes(const std::string& title) {
    return eventually([&] { return !has(title); });
}

bool TwinGame::gets_keyboard(XWindow window) const {
    return eventually([&] { return screen_.active() == window; });
}

bool TwinGame::bring_to_front(XWindow window) {
    constexpr std::chrono::seconds patience{2};
    for (int attempt = 0; attempt < 5; ++attempt) {
        screen_.restore(window);
        if (eventually([&] { return screen_.active() == window; }, patience)) return true;
    }
    return false;
}

XPlace TwinGame::board() const {
    const PixelSize size = frmcards.client_size();
    const XPlace window = screen_.place(window_);
    return {
        0, window.height - size.height * start_.scale, size.width * start_.scale, size.height * start_.scale};
}

void TwinGame::resize(int width, int height) {
    const int menu_bar = board().y;
    screen_.resize(window_, width, height);
    eventually(
        [&] { return screen_.place(window_).width == width && screen_.place(window_).height == height; });
    frmcards.user_resized({width / start_.scale, (height - menu_bar) / start_.scale});
}

XPixels TwinGame::board_pixels() const {
    const XPixels all = screen_.pixels(window_);
    const XPlace place = board();
    if (all.width != place.width || all.height != place.y + place.height) return {};
    const auto first = all.rgb.begin() + static_cast<std::ptrdiff_t>(place.y) * all.width;
    return {place.width, place.height, {first, all.rgb.end()}};
}

Spot TwinGame::spot_on(const Image& image) {
    return {static_cast<int>(std::lround(image.left() + 30)), static_cast<int>(std::lround(image.top() + 8))};
}

Spot TwinGame::on_screen(Spot spot) const {
    const XPlace window = screen_.place(window_);
    return {window.x + spot.x * start_.scale, window.y + board().y + spot.y * start_.scale};
}

namespace {

MouseButton headless_button(XButton button) {
    return button == XButton::left ? MouseButton::left : MouseButton::other;
}

Mouse& mouse() { return frmcards.mouse(); }

}  // namespace

void TwinGame::press(Spot spot, XButton button) {
    move(spot);
    screen_.press(button);
    mouse().press(static_cast<float>(spot.x), static_cast<float>(spot.y), headless_button(button));
}

void TwinGame::move(Spot spot) {
    const Spot at = on_screen(spot);
    screen_.move_pointer(at.x, at.y);
    mouse().move(static_cast<float>(spot.x), static_cast<float>(spot.y));
}

void TwinGame::release(Spot spot, XButton button) {
    move(spot);
    screen_.release(button);
    mouse().release(static_cast<float>(spot.x), static_cast<float>(spot.y), headless_button(button));
}

void TwinGame::click(Spot spot) {
    press(spot);
    release(spot);
}

void TwinGame::drag(Spot from, Spot to) {
    press(from);
    move({(from.x + to.x) / 2, (from.y + to.y) / 2});
    move(to);
    release(to);
}

void TwinGame::click_stock() { click(spot_on(frmcards.Image1(stock_image))); }

void TwinGame::space() {
    screen_.key("space");
    frmcards.key_down(' ');
}

void TwinGame::store(const std::string& key, const std::string& text) const {
    SqliteStore(store_file_).save("Tarnwick", "setting", key, text);
}

std::string TwinGame::stored(const std::string& key) const {
    SqliteStore store(store_file_);
    return store.read("Tarnwick", "setting", key).value_or("-");
}

}  // namespace tarnwick
