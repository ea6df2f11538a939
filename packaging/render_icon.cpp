// Draws the program's icon as a bitmap: render_icon SIZE FILE

#include <QImage>
#include <cstdlib>
#include <iostream>

#include "desktop/shared/picture_cache.h"

int main(int argc, char** argv) {
    const int size = argc == 3 ? std::atoi(argv[1]) : 0;
    if (size < 1) {
        std::cerr << "usage: render_icon SIZE FILE\n";
        return 2;
    }
    // Up to this size the drawing with fewer details is the one that can be made out.
    constexpr int small = 24;
    const QImage image = tarnwick::render_drawing(size <= small ? "icon-small" : "icon", {size, size});
    if (!image.save(QString::fromLocal8Bit(argv[2]), "PNG")) {
        std::cerr << "render_icon: " << argv[2] << " cannot be written\n";
        return 1;
    }
    return 0;
}
