// What the processor does for a new size of the window, and for a picture of the whole board; without a
// display.
//
//     paint [WIDTH HEIGHT [SCALE]]      of the screen, in device pixels; SCALE device pixels for a pixel of
//     the board

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <cstdlib>
#include <iostream>

#include "bench/screen_watch.h"
#include "desktop/board/board_painter.h"
#include "desktop/shared/qt_texts.h"
#include "tools/driver/headless_game.h"
#include "view/board_scene.h"
#include "windows/frmcards.h"

namespace {

using namespace tarnwick;
using Clock = std::chrono::steady_clock;

constexpr int rounds = 15;
constexpr int steps = 40;

template <class Action>
double milliseconds(Action action) {
    const Clock::time_point start = Clock::now();
    action();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// A board on an image of its own, as large as the window.
class Board {
  public:
    explicit Board(int scale) : scale_(scale) {}

    BoardPainter& painter() { return painter_; }

    /// One colour and nothing else: the yardstick.
    void fill() { image(frmcards.client_size()).fill(Qt::darkGreen); }

    void paint() {
        QPainter painter(&image(frmcards.client_size()));
        painter_.paint(painter, scene_.layers(scale_));
    }

  private:
    QImage& image(PixelSize size) {
        const QSize device(size.width * scale_, size.height * scale_);
        if (image_.size() != device) {
            image_ = QImage(device, QImage::Format_RGB32);
            image_.setDevicePixelRatio(scale_);
        }
        return image_;
    }

    int scale_;
    QImage image_;
    BoardScene scene_{frmcards, qt_texts()};
    BoardPainter painter_;
};

void narrow(int step) {
    const PixelSize size = frmcards.client_size();
    frmcards.user_resized({size.width - (step % 2 == 0 ? 3 : 2), size.height - 2});
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const PixelSize screen =
        argc > 2 ? PixelSize{std::atoi(argv[1]), std::atoi(argv[2])} : PixelSize{1920, 1080};
    const int scale = argc > 3 ? std::atoi(argv[3]) : 1;
    HeadlessGame game({screen.width / scale, screen.height / scale});
    game.start();
    Board board(scale);
    board.paint();

    std::vector<double> full;
    std::vector<double> fill;
    for (int round = 0; round < rounds; ++round) {
        full.push_back(milliseconds([&] { board.paint(); }));
        fill.push_back(milliseconds([&] { board.fill(); }));
    }
    std::vector<double> relayout;
    std::vector<double> hasty;
    board.painter().begin_haste();
    for (int step = 0; step < steps; ++step) {
        relayout.push_back(milliseconds([&] { narrow(step); }));
        hasty.push_back(milliseconds([&] { board.paint(); }));
    }
    std::vector<double> sharp;
    for (int round = 0; round < rounds; ++round) {
        board.painter().end_haste();
        // So far that every card gets another size.
        for (int step = 0; step < 6; ++step) narrow(step);
        sharp.push_back(milliseconds([&] { board.paint(); }));
    }
    std::cout << "relayout_ms " << median(relayout) << '\n'
              << "full_paint_ms " << median(full) << '\n'
              << "full_paint_ratio " << median(full) / median(fill) << '\n'
              << "resize_paint_ms " << median(hasty) << '\n'
              << "sharp_paint_ms " << median(sharp) << '\n';
    return EXIT_SUCCESS;
}
