#include <QGroupBox>
#include <QMouseEvent>
#include <QPainter>
#include <cmath>

#include "desktop/dialogs/dialog_accessible.h"
#include "desktop/dialogs/dialog_control.h"
#include "desktop/shared/high_contrast.h"
#include "desktop/shared/picture_cache.h"
#include "desktop/shared/qt_convert.h"
#include "view/chosen_ring.h"
#include "view/contrast.h"
#include "view/control_presses.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

// All of the line lies inside of the place.
void draw_outline(QPainter& painter, const QRectF& place, const QColor& color, bool strong, qreal radius) {
    const qreal line = strong ? high_contrast_line : 1;
    painter.setPen(QPen(color, line));
    painter.drawRoundedRect(place.adjusted(line / 2, line / 2, -line / 2, -line / 2), radius, radius);
}

// A group box with its title on the border rather than above it: the layouts use all of the room inside.
class FrameBox : public QGroupBox {
  public:
    using QGroupBox::QGroupBox;

  protected:
    void paintEvent(QPaintEvent*) override {
        constexpr int title_left = 8;
        constexpr int gap = 3;
        constexpr int border_alpha = 70;
        constexpr qreal radius = 3;
        QPainter painter(this);
        QRect text;
        if (!title().isEmpty()) {
            text = QRect(title_left, 0, fontMetrics().horizontalAdvance(title()), fontMetrics().height());
        }
        painter.setPen(
            palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
        painter.drawText(text, Qt::AlignLeft | Qt::TextDontClip, title());
        painter.setClipRegion(QRegion(rect()) - text.adjusted(-gap, 0, gap, 0));
        painter.setRenderHint(QPainter::Antialiasing);
        QColor border = palette().color(QPalette::WindowText);
        const bool strong = has_high_contrast(palette());
        if (!strong) border.setAlpha(border_alpha);
        draw_outline(painter, QRectF(rect()).adjusted(0, text.height() / 2, 0, 0), border, strong, radius);
    }
};

class FrameControl : public DialogControl {
  public:
    explicit FrameControl(QGroupBox* native) : DialogControl(native), native_(*native) {}

    void sync(const ControlLooks& looks) override { native_.setTitle(to_qt(looks.text.text)); }

  private:
    QGroupBox& native_;
};

class PictureBox : public QWidget, public Pressable {
  public:
    PictureBox(Image& image, QWidget* parent) : QWidget(parent), image_(image) {}

    void set_scale(qreal scale) {
        scale_ = scale;
        update();
    }

    Widget& pressed() const override { return image_; }

  protected:
    void paintEvent(QPaintEvent*) override {
        if (image_.picture().none()) return;
        const qreal ratio = devicePixelRatioF();
        const QRectF place = whole_device_pixels(ratio);
        const QSize device_size = (place.size() * ratio).toSize();
        if (shown_ != image_.picture() || pixmap_.size() != device_size) {
            shown_ = image_.picture();
            pixmap_ = render_picture(shown_, device_size);
        }
        pixmap_.setDevicePixelRatio(ratio);
        QPainter painter(this);
        painter.drawPixmap(place.topLeft(), pixmap_);
    }

    // The press is taken, so that the release comes here too.
    void mousePressEvent(QMouseEvent* event) override { event->accept(); }

    void mouseReleaseEvent(QMouseEvent* event) override {
        const bool inside = rect().contains(event->position().toPoint());
        if (event->button() == Qt::LeftButton && inside) press(image_);
    }

  private:
    // Where the picture is drawn: nothing of it may lie on a device pixel that belongs to the box in part
    // only.
    QRectF whole_device_pixels(qreal ratio) const {
        const QSizeF size =
            image_.stretch() ? QSizeF(this->size()) : QSizeF(card_width, card_height) * scale_;
        const QRectF place(mapTo(window(), QPoint(0, 0)), size);
        const QPointF first(std::ceil(place.left() * ratio), std::ceil(place.top() * ratio));
        const QPointF last(std::floor(place.right() * ratio), std::floor(place.bottom() * ratio));
        return QRectF(first / ratio, last / ratio).translated(-place.topLeft());
    }

    Image& image_;
    Picture shown_;
    QPixmap pixmap_;
    qreal scale_ = 1;
};

// Lies around a picture, where clicks go to what is below.
class RingBox : public QWidget {
  public:
    explicit RingBox(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_TransparentForMouseEvents); }

    void surround(const QWidget& picture, qreal scale) {
        ring_ = chosen_ring({picture.width(), picture.height()}, scale);
        const Area place = around(ring_.middle.grown(ring_.line / 2));
        ring_.middle = ring_.middle.shifted(-place.left, -place.top);
        setGeometry(to_qt(place).translated(picture.pos()));
        update();
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        const Color color = ring_color(from_qt(palette().color(QPalette::Highlight)),
                                       from_qt(palette().color(QPalette::WindowText)),
                                       from_qt(palette().color(QPalette::Window)));
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(to_qt(color), ring_.line));
        painter.drawRoundedRect(to_qt(ring_.middle), ring_.radius, ring_.radius);
    }

  private:
    ChosenRing ring_;
};

class ImageControl : public DialogControl {
  public:
    ImageControl(const Image& image, PictureBox* native)
        : DialogControl(native),
          image_(image),
          native_(*native),
          ring_(*new RingBox(native->parentWidget())) {}

    void sync(const ControlLooks& looks) override {
        native_.set_scale(looks.scale);
        ring_.surround(native_, looks.scale);
        ring_.setVisible(image_.visible() && image_.bordered());
    }

  private:
    const Image& image_;
    PictureBox& native_;
    RingBox& ring_;
};

class OutlineBox : public QWidget {
  public:
    OutlineBox(const Outline& outline, QWidget* parent) : QWidget(parent), outline_(outline) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        constexpr qreal radius = 4;
        // Black is the colour of an outline that was never given one, and cannot be seen on a dark desktop.
        const bool plain = outline_.border_color() == black;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        draw_outline(painter,
                     QRectF(rect()),
                     plain ? palette().color(QPalette::WindowText) : to_qt(outline_.border_color()),
                     has_high_contrast(palette()),
                     radius);
    }

  private:
    const Outline& outline_;
};

class OutlineControl : public DialogControl {
  public:
    explicit OutlineControl(OutlineBox* native) : DialogControl(native) {}
    void sync(const ControlLooks&) override { native()->update(); }
};

}  // namespace

std::unique_ptr<DialogControl> make_frame_control(QWidget* parent) {
    return std::make_unique<FrameControl>(new FrameBox(parent));
}

std::unique_ptr<DialogControl> make_image_control(Image& image, QWidget* parent) {
    return std::make_unique<ImageControl>(image, new PictureBox(image, parent));
}

std::unique_ptr<DialogControl> make_outline_control(const Outline& outline, QWidget* parent) {
    return std::make_unique<OutlineControl>(new OutlineBox(outline, parent));
}

}  // namespace tarnwick
