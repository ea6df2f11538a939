#include "desktop/board/card_pictures.h"

#include "desktop/shared/picture_cache.h"
#include "view/card_shadow.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

PaintedShadow shadow_of(QSize size) { return card_shadow({0, 0, size.width(), size.height()}); }

}  // namespace

QPixmap CardPictures::operator()(Picture picture, QSize size) {
    if (!is_card(picture)) return render_picture(picture, size);
    const PaintedShadow shadow = shadow_of(size);
    QImage image = shadow_.image(shadow);
    draw_picture(image, picture, QRect(QPoint(shadow.reach, shadow.reach), size));
    return QPixmap::fromImage(std::move(image));
}

int CardPictures::reach(Picture picture, QSize size) { return is_card(picture) ? shadow_of(size).reach : 0; }

}  // namespace tarnwick
