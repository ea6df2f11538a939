#include "view/table_light.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace tarnwick {
namespace {

// How much lighter than its middle the table is at the middle of its upper and of its left edge, and how much
// darker at that of the opposite one.
constexpr double fall = 0.03;
constexpr double fall_to_right = 0.02;

constexpr int pattern = 8;

// The strips are as high as the sheet, a multiple of the pattern: low enough that the step from one to the
// next, the thirtieth part of the fall, is not seen, and few, for each costs time by itself.
int strip_height(PixelSize window) { return std::max(window.height / 30 / pattern, 1) * pattern; }

// In which order the pixels of a square turn to the next shade, 0 to 63: an even mix of two shades looks like
// one between, so that no edges of shades are seen.
constexpr std::uint32_t turn_of(int x, int y) {
    int turn = 0;
    for (int bit = 0; bit < 3; ++bit) {
        const int from_right = (x >> bit) & 1;
        const int from_bottom = (y >> bit) & 1;
        turn = turn << 2 | (from_right ^ from_bottom) << 1 | from_bottom;
    }
    return static_cast<std::uint32_t>(turn);
}

// The parts of a colour in so much light, in the 64th of a shade.
struct Parts {
    Parts(Color color, double light)
        : red(lit(red_of(color), light)),
          green(lit(green_of(color), light)),
          blue(lit(blue_of(color), light)) {}
    static std::uint32_t lit(int part, double light) {
        return static_cast<std::uint32_t>(rounded(std::min(255.0, part * (1 + light)) * 64));
    }
    // That of a pixel: on the average of a square, exactly so bright.
    std::uint32_t shade(std::uint32_t turn) const {
        return 0xFF000000U | (red + turn) / 64 << 16 | (green + turn) / 64 << 8 | (blue + turn) / 64;
    }
    std::uint32_t red, green, blue;
};

// The column of the sheet where a strip begins, which is the farther right the lower it lies: what is to the
// right is darker. The pattern must fit that of the strip above.
int first_column(int strip, PixelSize window) {
    const double down = (strip + 0.5) * strip_height(window) / window.height;
    return rounded(fall / fall_to_right * down * window.width / pattern) * pattern;
}

}  // namespace

void TableLight::draw(PixelSize window, Color table) {
    window_ = window;
    table_ = table;
    PaintedGround::Sheet& sheet = ground_.sheet;
    sheet.height = strip_height(window);
    sheet.width = window.width + first_column(window.height / sheet.height, window);
    const auto width = static_cast<std::size_t>(sheet.width);
    sheet.pixels.resize(width * static_cast<std::size_t>(sheet.height));
    std::vector<Parts> columns;
    columns.reserve(width);
    for (int x = 0; x < sheet.width; ++x) {
        columns.emplace_back(table, fall + fall_to_right * (1 - 2 * (x + 0.5) / window.width));
    }
    for (int y = 0; y < pattern; ++y) {
        std::array<std::uint32_t, pattern> turns{};
        for (int x = 0; x < pattern; ++x) turns[static_cast<std::size_t>(x)] = turn_of(x, y);
        std::uint32_t* const row = &sheet.pixels[width * static_cast<std::size_t>(y)];
        for (std::size_t x = 0; x < width; ++x) row[x] = columns[x].shade(turns[x % pattern]);
    }
    const auto pattern_end = sheet.pixels.begin() + static_cast<std::ptrdiff_t>(width * pattern);
    for (auto row = pattern_end; row != sheet.pixels.end(); row += pattern_end - sheet.pixels.begin()) {
        std::copy(sheet.pixels.begin(), pattern_end, row);
    }
}

const PaintedGround& TableLight::ground(const Area& area, PixelSize window, int scrolled, Color table) {
    if (ground_.sheet.pixels.empty() || window != window_ || table != table_) draw(window, table);
    ground_.strips.clear();
    const int left = std::max(area.left, 0);
    const int width = std::min(area.right(), window.width) - left;
    const int end = std::min(area.bottom(), window.height);
    for (int top = std::max(area.top, 0); top < end && width > 0;) {
        const int strip = top / ground_.sheet.height;
        const int bottom = std::min((strip + 1) * ground_.sheet.height, end);
        ground_.strips.push_back({{left, top + scrolled, width, bottom - top},
                                  first_column(strip, window) + left,
                                  top % ground_.sheet.height});
        top = bottom;
    }
    return ground_;
}

}  // namespace tarnwick
