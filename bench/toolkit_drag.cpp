// The other yardstick for drags: the rectangle of bare_drag.cpp in an empty window of the toolkit.
//
//     toolkit_drag CARD_WIDTH CARD_HEIGHT

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWidget>
#include <cstdlib>

namespace {

class Table : public QWidget {
  public:
    explicit Table(QSize card) : card_(QPoint(-card.width(), -card.height()), card) {
        setAttribute(Qt::WA_OpaquePaintEvent);
    }

  protected:
    void mouseMoveEvent(QMouseEvent* event) override {
        update(card_);
        card_.moveCenter(event->position().toPoint());
        update(card_);
    }

    void paintEvent(QPaintEvent* event) override {
        QPainter painter(this);
        for (const QRect& rect : event->region()) painter.fillRect(rect, Qt::darkGreen);
        painter.fillRect(card_, Qt::white);
    }

  private:
    QRect card_;
};

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 3) return EXIT_FAILURE;
    Table table(QSize(std::atoi(argv[1]), std::atoi(argv[2])));
    const QSize screen = QGuiApplication::primaryScreen()->availableGeometry().size();
    table.resize(screen.width() - 18, screen.height() - 60);
    table.show();
    return QApplication::exec();
}
