#include "desktop/glide_back.h"

#include <algorithm>

namespace tarnwick {
namespace {

// Long enough to be followed by the eye, too short to be waited for.
constexpr int glide_time = 150;

}  // namespace

GlideBack::GlideBack(std::function<void()> on_step) : on_step_(std::move(on_step)) {
    animation_.setDuration(glide_time);
    animation_.setEasingCurve(QEasingCurve::OutCubic);
    animation_.setEndValue(QPointF(0, 0));
    QObject::connect(&animation_, &QVariantAnimation::valueChanged, &animation_, [this](const QVariant& now) {
        if (images_.empty()) return;
        offset_ = now.toPointF();
        on_step_();
    });
    QObject::connect(&animation_, &QVariantAnimation::finished, &animation_, [this] { end(); });
}

void GlideBack::start(std::vector<Image*> images, QPointF offset) {
    images_ = std::move(images);
    offset_ = offset;
    animation_.setStartValue(offset);
    animation_.start();
}

void GlideBack::end() {
    if (images_.empty()) return;
    animation_.stop();
    // Seen at home once, so that what lies there is painted again.
    offset_ = {};
    on_step_();
    images_.clear();
    on_step_();
}

bool GlideBack::moves(const Image& image) const {
    return std::find(images_.begin(), images_.end(), &image) != images_.end();
}

}  // namespace tarnwick
