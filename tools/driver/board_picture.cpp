#include "tools/driver/board_picture.h"

#include <QPainter>
#include <cstdlib>
#include <sstream>

#include "desktop/board/board_painter.h"
#include "desktop/shared/qt_texts.h"
#include "tools/driver/eventually.h"
#include "view/board_scene.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

struct Difference {
    int pixels = 0;
    QRect place;
};

// Two roundings of one colour are the same colour.
bool same_color(QRgb a, QRgb b) {
    constexpr int tolerance = 2;
    return std::abs(qRed(a) - qRed(b)) <= tolerance && std::abs(qGreen(a) - qGreen(b)) <= tolerance &&
           std::abs(qBlue(a) - qBlue(b)) <= tolerance;
}

Difference difference(const QImage& expected, const QImage& seen) {
    if (seen.size() != expected.size()) return {expected.width() * expected.height(), expected.rect()};
    Difference result;
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            if (same_color(expected.pixel(x, y), seen.pixel(x, y))) continue;
            ++result.pixels;
            result.place |= QRect(x, y, 1, 1);
        }
    }
    return result;
}

}  // namespace

QImage expected_board(int scale) {
    const PixelSize size = frmcards.client_size();
    QImage image(size.width * scale, size.height * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    QPainter painter(&image);
    BoardScene scene(frmcards, qt_texts());
    BoardPainter().paint(painter, scene.layers(scale));
    painter.end();
    image.setDevicePixelRatio(1);
    return image;
}

QImage image_of(const XPixels& pixels) {
    QImage image(pixels.width, pixels.height, QImage::Format_RGB32);
    auto color = pixels.rgb.begin();
    for (int y = 0; y < pixels.height; ++y) {
        for (int x = 0; x < pixels.width; ++x) image.setPixel(x, y, *color++);
    }
    return image;
}

std::string board_faults(TwinGame& game) {
    const QImage expected = expected_board(game.scale());
    QImage seen;
    Difference found;
    const auto looks_right = [&] {
        seen = image_of(game.board_pixels());
        found = difference(expected, seen);
        return found.pixels == 0;
    };
    if (eventually(looks_right, std::chrono::seconds(5))) return {};
    expected.save("board-expected.png");
    seen.save("board-seen.png");
    std::ostringstream text;
    text << found.pixels << " pixels differ, at (" << found.place.x() << ", " << found.place.y() << "), "
         << found.place.width() << " x " << found.place.height()
         << "; see board-expected.png and board-seen.png in the working directory";
    return text.str();
}

}  // namespace tarnwick
