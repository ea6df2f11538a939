#include <gtest/gtest.h>

#include <QFile>
#include <QImage>

#include "desktop/shared/picture_cache.h"
#include "view/four_colors.h"
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

TEST(Pictures, OfTwoSuitsChangeWithFourColors) {
    ASSERT_FALSE(render_drawing("logo").isNull()) << "the drawings are there";
    int changed = 0;
    for (std::uint16_t number = 1; !drawing_of(Picture{number}).empty(); ++number) {
        const std::string name = drawing_of(Picture{number});
        QFile file(QString::fromStdString(":/art/" + name + ".svg"));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        const std::string text = file.readAll().toStdString();
        const bool changes =
            name.find("clubs") != std::string::npos || name.find("diamonds") != std::string::npos;
        EXPECT_EQ(in_four_colors(name, text) != text, changes) << name;
        changed += changes ? 1 : 0;
    }
    EXPECT_EQ(changed, 2 * 13);
}

}  // namespace
}  // namespace tarnwick
