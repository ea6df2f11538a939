#include "view/help_page.h"

#include <algorithm>
#include <map>

#include "platform/form.h"
#include "view/empty_place.h"
#include "view/picture_place.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// An outline that lies on no table.
struct LooseOutline : Form {
    LooseOutline() : Form("outline") {}
    Outline outline{*this};

  protected:
    void design() override {}
};

}  // namespace

PixelSize page_size(const TextMeasure& measure, PixelSize screen,
                    const std::function<int(int width)>& height_at) {
    constexpr int letters_in_line = 90;
    // What is left goes to the window's frame, and to the table behind it.
    constexpr double part_of_screen = 0.88;
    const PixelSize room{rounded(screen.width * part_of_screen), rounded(screen.height * part_of_screen)};
    const int wanted = rounded(static_cast<double>(measure.width(std::string(letters_in_line, 'n'), {})));
    const int width = std::min(wanted, room.width);
    return {width, std::min(height_at(width), room.height)};
}

std::optional<PictureOfPlace> picture_of_place(const std::string& sign, PixelSize size, double ratio) {
    static const std::map<std::string, Sign> signs{
        {"ace", Sign::ace}, {"king", Sign::king}, {"turn", Sign::turn}};
    const auto known = signs.find(sign);
    if (known == signs.end()) return std::nullopt;
    LooseOutline loose;
    loose.outline.set_sign(known->second);
    loose.outline.set_border_color(frmcards.Shape1(0).border_color());
    const Color table = frmcards.back_color();
    const Area place = Area{0, 0, size.width, size.height}.grown(-rounded(3 * ratio));
    const double radius = corner_radius(place.width / ratio, ratio);
    return PictureOfPlace{table, empty_place(place, radius, loose.outline, table, ratio)};
}

}  // namespace tarnwick
