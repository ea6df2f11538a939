#include "desktop/dialogs/help_window.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QStandardPaths>

#include "desktop/shared/picture_cache.h"

namespace tarnwick {

QString find_help(const QString& file_name) {
    const QString program = QCoreApplication::applicationDirPath();
    QStringList folders{program, program + "/../share/tarnwick"};
    for (const QString& folder : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)) {
        folders.append(folder + "/tarnwick");
    }
    for (const QString& folder : folders) {
        const QFileInfo file(QDir(folder), file_name);
        if (file.isFile() && file.isReadable()) return file.canonicalFilePath();
    }
    return {};
}

HelpWindow::HelpWindow() {
    setObjectName("help");
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(16);
    setOpenExternalLinks(true);
    resize(640, 560);
}

bool HelpWindow::show_file(const QString& path) {
    if (path != path_) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) return false;
        setHtml(QString::fromUtf8(file.readAll()));
        const QString title = documentTitle();
        setWindowTitle(title.isEmpty() ? QStringLiteral("Help") : title);
        path_ = path;
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    return true;
}

QVariant HelpWindow::loadResource(int type, const QUrl& name) {
    if (type != QTextDocument::ImageResource || name.scheme() != "art") {
        return QTextBrowser::loadResource(type, name);
    }
    QImage image = render_drawing(name.path(), {}, devicePixelRatioF());
    image.setDevicePixelRatio(devicePixelRatioF());
    return image;
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
    } else {
        QTextBrowser::keyPressEvent(event);
    }
}

}  // namespace tarnwick
