// An empty window of the toolkit, of the size of the game's: the yardstick for start-up time and memory.

#include <QApplication>
#include <QScreen>
#include <QWidget>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    const QSize screen = QGuiApplication::primaryScreen()->availableGeometry().size();
    window.resize(screen.width() - 18, screen.height() - 60);
    window.setWindowTitle("empty window");
    window.show();
    return QApplication::exec();
}
