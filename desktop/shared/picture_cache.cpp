#include "desktop/shared/picture_cache.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdlib>

#include "view/four_colors.h"
#include "windows/pictures.h"

// The macro must stand outside of any namespace.
static void register_art() { Q_INIT_RESOURCE(art); }

namespace tarnwick {
namespace {

bool four_colors = false;

QByteArray text_of(const QString& name) {
    // A static library's resources are linked in only where something names them.
    static const bool registered = (register_art(), true);
    Q_UNUSED(registered)
    QFile file(":/art/" + name + ".svg");
    if (!file.open(QIODevice::ReadOnly)) return {};
    QByteArray text = file.readAll();
    if (!four_colors) return text;
    return QByteArray::fromStdString(in_four_colors(name.toStdString(), text.toStdString()));
}

}  // namespace

void use_four_colors() { four_colors = true; }

void draw_picture(QImage& image, Picture picture, QRect place) {
    QSvgRenderer renderer(text_of(QString::fromStdString(drawing_of(picture))));
    QPainter painter(&image);
    renderer.render(&painter, QRectF(place));
}

QImage render_drawing(const QString& name, QSize size, qreal scale) {
    QSvgRenderer renderer(text_of(name));
    if (!renderer.isValid()) return {};
    if (!size.isValid()) size = (QSizeF(renderer.defaultSize()) * scale).toSize();
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(size)));
    return image;
}

QPixmap render_picture(Picture picture, QSize size) {
    if (picture.none() || size.isEmpty()) return {};
    return QPixmap::fromImage(render_drawing(QString::fromStdString(drawing_of(picture)), size));
}

const QPixmap& PictureCache::pixmap(Picture picture, QSize size) {
    const Size wanted(size.width(), size.height());
    const auto exact = sheets_.find(wanted);
    if (exact != sheets_.end()) {
        exact->second.used = true;
        const auto found = exact->second.pixmaps.find(picture.number);
        if (found != exact->second.pixmaps.end()) return found->second;
    }
    if (in_haste_) {
        if (const QPixmap* other = nearest(picture, wanted)) {
            handed_out_another_size_ = true;
            return *other;
        }
    }
    return sheets_[wanted].pixmaps.emplace(picture.number, draw_(picture, size)).first->second;
}

const QPixmap* PictureCache::nearest(Picture picture, Size wanted) const {
    const QPixmap* best = nullptr;
    int best_distance = 0;
    for (const auto& [size, sheet] : sheets_) {
        const auto found = sheet.pixmaps.find(picture.number);
        const int distance = std::abs(size.first - wanted.first);
        if (found == sheet.pixmaps.end() || (best && best_distance <= distance)) continue;
        best = &found->second;
        best_distance = distance;
    }
    return best;
}

bool PictureCache::end_haste() {
    std::erase_if(sheets_, [](const auto& entry) { return !entry.second.used; });
    for (auto& [size, sheet] : sheets_) sheet.used = false;
    in_haste_ = false;
    return std::exchange(handed_out_another_size_, false);
}

}  // namespace tarnwick
