// An empty window of the toolkit, of the size of the game's: the yardstick for start-up time and memory.
//
//     empty_window [--menus]      with the names of the game's menus, for which the toolkit loads a font

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    QMainWindow window;
    if (argc > 1) {
        for (const char* name : {"&File", "&Settings", "&Help"}) window.menuBar()->addMenu(name);
    }
    const QSize screen = QGuiApplication::primaryScreen()->availableGeometry().size();
    window.resize(screen.width() - 18, screen.height() - 60);
    window.setWindowTitle("empty window");
    window.show();
    return QApplication::exec();
}
