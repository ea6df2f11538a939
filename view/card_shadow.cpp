#include "view/card_shadow.h"

#include <algorithm>
#include <cmath>

#include "windows/pictures.h"

namespace tarnwick {
namespace {

// At a card's natural size, in pixels.
constexpr double natural_reach = 2.5;
constexpr double darkest = 75;

double reach_of(double width) { return std::max(1.0, natural_reach * width / card_width); }

}  // namespace

// Hardly lower than the card: of a stack only the upper edges lie on other cards.
PaintedShadow card_shadow(const Area& card) {
    const int reach = static_cast<int>(std::floor(reach_of(card.width)));
    return {card, reach, reach * 0.1, reach * 0.75, darkest};
}

std::array<Area, 2> shadowed_parts(const PaintedImage& card) {
    const Area& place = card.place;
    const int reach = card_shadow(place).reach;
    const int upon = std::min(card.upon, place.height + reach);
    const Area upper{place.left, place.top - reach, place.width, upon > 0 ? reach + upon : 0};
    const Area whole = place.grown(reach);
    const int begin = upon > 0 ? upper.bottom() : whole.top;
    return {upper, {whole.left, begin, whole.width, whole.bottom() - begin}};
}

void lay_in_columns(std::vector<PaintedImage>& cards) {
    for (auto card = cards.begin(); card != cards.end(); ++card) {
        const Area& place = card->place;
        for (auto lower = cards.begin(); lower != card; ++lower) {
            const Area& other = lower->place;
            if (other.left != place.left || other.width != place.width || other.top >= place.top) continue;
            // To where the shadow of that one begins to fade.
            const int shaded = other.bottom() + (card_shadow(other).reach + 1) / 4;
            card->upon = std::max(card->upon, shaded - place.top);
        }
    }
}

bool throws_shadow(const std::vector<PaintedImage>& below, const Area& place) {
    return std::none_of(
        below.begin(), below.end(), [&place](const PaintedImage& image) { return image.place == place; });
}

Box with_card_shadow(const Box& place, double width) { return place.grown(reach_of(width)); }

}  // namespace tarnwick
