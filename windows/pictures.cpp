#include "windows/pictures.h"

#include <array>

namespace tarnwick {
namespace {

// The catalogue's numbers, in this order without a gap.
constexpr int first_face = 1;
constexpr int ranks = 13;
constexpr int first_back = first_face + 4 * ranks;
constexpr int first_twinkle = first_back + back_count;
constexpr int logo = first_twinkle + twinkle_frame_count;

constexpr std::array suit_names{"hearts", "spades", "diamonds", "clubs"};
constexpr std::array rank_names{"ace", "2", "3", "4", "5", "6", "7", "8", "9", "10", "jack", "queen", "king"};

struct Back {
    const char* name;
    const char* file;
};
constexpr std::array<Back, back_count> backs{{{"Misty", "misty"},
                                              {"Rose", "rose"},
                                              {"Mid-Earth", "mid-earth"},
                                              {"Roman", "roman"},
                                              {"Pedal", "pedal"},
                                              {"Stained", "stained"}}};
static_assert(backs.back().name, "back_count tells how many backs there are");

const Back& back_at(int index) { return backs.at(static_cast<std::size_t>(index)); }

Picture picture(int number) { return Picture{static_cast<std::uint16_t>(number)}; }

}  // namespace

Picture face_picture(int suit, int rank) { return picture(first_face + suit * ranks + rank); }
Picture back_picture(int back) { return picture(first_back + back); }
Picture twinkle_picture(int frame) { return picture(first_twinkle + frame); }
Picture plain_ace_picture() { return face_picture(1, 0); }
Picture logo_picture() { return picture(logo); }
bool is_card(Picture picture) { return !picture.none() && picture.number < logo; }

std::string drawing_of(Picture picture) {
    const int number = picture.number;
    const auto name = [](const auto& names, int index) {
        return std::string(names.at(static_cast<std::size_t>(index)));
    };
    if (number < first_face || number > logo) return {};
    if (number < first_back) {
        const int face = number - first_face;
        return "faces/" + name(suit_names, face / ranks) + '-' + name(rank_names, face % ranks);
    }
    if (number < first_twinkle) return std::string("backs/") + back_at(number - first_back).file;
    if (number < logo) return "twinkle/frame-" + std::to_string(number - first_twinkle);
    return "logo";
}

const char* back_name(int back) { return back_at(back).name; }

}  // namespace tarnwick
