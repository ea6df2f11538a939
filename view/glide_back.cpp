#include "view/glide_back.h"

#include <algorithm>
#include <utility>

namespace tarnwick {
namespace {

// Long enough to be followed by the eye, too short to be waited for; in milliseconds.
constexpr double glide_time = 150;

}  // namespace

void Glide::begin(std::vector<Image*> images, Shift from, std::int64_t now) {
    images_ = std::move(images);
    from_ = offset_ = from;
    begin_ = now;
}

bool Glide::step(std::int64_t now) {
    const double left = std::clamp(1 - static_cast<double>(now - begin_) / glide_time, 0.0, 1.0);
    // Fast at first, and slow at the end.
    const double part = left * left * left;
    offset_ = {from_.x * part, from_.y * part};
    return left > 0;
}

std::vector<Image*> Glide::end() {
    offset_ = {};
    return std::exchange(images_, {});
}

bool Glide::moves(const Image& image) const {
    return std::find(images_.begin(), images_.end(), &image) != images_.end();
}

}  // namespace tarnwick
