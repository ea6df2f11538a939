#include "desktop/picture_cache.h"

#include <QPainter>
#include <QSvgRenderer>

#include "windows/pictures.h"

// The macro must stand outside of any namespace.
static void register_art() { Q_INIT_RESOURCE(art); }

namespace tarnwick {

QImage render_drawing(const QString& name, QSize size, qreal scale) {
    // A static library's resources are linked in only where something names them.
    static const bool registered = (register_art(), true);
    Q_UNUSED(registered)
    QSvgRenderer renderer(":/art/" + name + ".svg");
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
    if (const QPixmap* kept = find(picture, wanted)) return *kept;
    if (in_haste_) {
        for (const auto& [other, sheet] : sheets_) {
            const QPixmap* kept = find(picture, other);
            if (!kept) continue;
            handed_out_another_size_ = true;
            return *kept;
        }
    }
    return sheets_[wanted].pixmaps.emplace(picture.number, render_picture(picture, size)).first->second;
}

const QPixmap* PictureCache::find(Picture picture, Size size) {
    const auto sheet = sheets_.find(size);
    if (sheet == sheets_.end()) return nullptr;
    const auto found = sheet->second.pixmaps.find(picture.number);
    if (found == sheet->second.pixmaps.end()) return nullptr;
    sheet->second.used = true;
    return &found->second;
}

bool PictureCache::end_haste() {
    std::erase_if(sheets_, [](const auto& entry) { return !entry.second.used; });
    for (auto& [size, sheet] : sheets_) sheet.used = false;
    in_haste_ = false;
    return std::exchange(handed_out_another_size_, false);
}

}  // namespace tarnwick
