// A Wayland compositor whose screen is a window, so that the game on it can be played with real events.

#include <signal.h>

#include <QLibraryInfo>
#include <filesystem>
#include <set>

#include "settings/sqlite/sqlite_store.h"
#include "tests/desktop/reach.h"
#include "tests/play/play.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr const char* weston = "/usr/bin/weston";
constexpr int width = 1000;
constexpr int height = 700;
// What the menu bar takes, within the half of a card.
constexpr int menu_bar = 25;

// The middle of the ace in a window of that size.
Spot place_of_ace() {
    Play play;
    play.start(26);
    frmcards.user_resized({width, height - menu_bar});
    const Image& ace = top_image(column_of_ace);
    return {static_cast<int>(std::lround(ace.left() + ace.width() / 2)),
            static_cast<int>(std::lround(ace.top() + ace.height() / 2)) + menu_bar};
}

TEST(Wayland, ACompositorThatGoesEndsTheGameInOrder) {
    const QString plugin =
        QLibraryInfo::path(QLibraryInfo::PluginsPath) + "/platforms/libqwayland-generic.so";
    if (!fs::exists(weston) || !fs::exists(plugin.toStdString())) GTEST_SKIP() << "no weston or qt6-wayland";
    const TemporaryFolder folder;
    const std::string store = folder.path() + "/settings.sqlite";
    SqliteStore(store).save("Tarnwick", "setting", "anamate", "False");
    ChildProcess compositor(weston,
                            {"--backend=x11-backend.so",
                             "--shell=kiosk-shell.so",
                             "--socket=game",
                             "--no-config",
                             "--idle-time=0",
                             "--use-pixman",
                             "--width=" + std::to_string(width),
                             "--height=" + std::to_string(height)},
                            {{"XDG_RUNTIME_DIR", folder.path()}, {"WAYLAND_DISPLAY", ""}});
    XDriver screen;
    XWindow window = 0;
    // The compositor does not say whose its window is.
    const auto is_there = [&] {
        const std::vector<XWindow> windows = screen.stacking();
        window = windows.empty() ? 0 : windows.back();
        return window != 0 && screen.title(window).starts_with("Weston");
    };
    ASSERT_TRUE(eventually(is_there)) << compositor.errors();
    const auto colors = [&] {
        const XPixels seen = screen.pixels(window);
        return std::set(seen.rgb.begin(), seen.rgb.end()).size();
    };
    ASSERT_TRUE(eventually([&] { return fs::exists(folder.path() + "/game"); }));
    ChildProcess program(
        tested_program(),
        {"--deal", "26", "--store", store},
        {{"XDG_RUNTIME_DIR", folder.path()}, {"WAYLAND_DISPLAY", "game"}, {"QT_QPA_PLATFORM", "wayland"}});
    constexpr std::size_t of_a_painted_board = 30;
    ASSERT_TRUE(eventually([&] {
        const XPixels seen = screen.pixels(window);
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        return colors() > of_a_painted_board && seen == screen.pixels(window);
    })) << program.errors();
    const Spot ace = place_of_ace();
    const XPlace place = screen.place(window);
    const XPixels before = screen.pixels(window);
    const auto changed = [&] {
        const XPixels now = screen.pixels(window);
        int count = 0;
        for (std::size_t i = 0; i < before.rgb.size(); ++i) count += now.rgb[i] != before.rgb[i] ? 1 : 0;
        return count;
    };
    // More than the pointer: the ace has moved.
    constexpr int of_a_card = 3000;
    // The compositor adds up how the pointer moves, within its screen: it knows where it is once it has been
    // to the corners.
    for (const Spot& spot : {Spot{width - 1, height - 1}, Spot{0, 0}, ace}) {
        screen.move_pointer(place.x + spot.x, place.y + spot.y);
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    screen.click(place.x + ace.x, place.y + ace.y);
    ASSERT_TRUE(eventually([&] { return changed() > of_a_card; }));
    kill(compositor.pid(), SIGKILL);
    EXPECT_EQ(program.exit_code(), 1);
    SqliteStore left(store);
    for (const auto& [key, text] :
         {std::pair{"games played", "1"}, {"average score", "2"}, {"high score 1", "2"}}) {
        EXPECT_EQ(left.read("Tarnwick", "setting", key), text) << key << program.errors();
    }
}

}  // namespace
}  // namespace tarnwick
