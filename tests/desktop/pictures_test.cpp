#include <gtest/gtest.h>

#include <QImage>

#include "desktop/shared/picture_cache.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

bool shows_something(const QImage& image) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) == 255) return true;
        }
    }
    return false;
}

TEST(Pictures, EveryOneOfTheCatalogueHasADrawing) {
    std::uint16_t number = 1;
    for (; !drawing_of(Picture{number}).empty(); ++number) {
        const QImage image = render_picture(Picture{number}, {36, 48}).toImage();
        EXPECT_TRUE(shows_something(image)) << drawing_of(Picture{number});
    }
    EXPECT_EQ(number - 1, 4 * 13 + back_count + twinkle_frame_count + 1);
}

}  // namespace
}  // namespace tarnwick
