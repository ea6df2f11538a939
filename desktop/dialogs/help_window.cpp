#include "desktop/dialogs/help_window.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QStandardPaths>
#include <cmath>

#include "desktop/shared/outline_pictures.h"
#include "desktop/shared/picture_cache.h"
#include "desktop/shared/qt_convert.h"
#include "desktop/shared/qt_texts.h"
#include "view/help_page.h"
#include "windows/pictures.h"

namespace tarnwick {

namespace {

// In the size of a card.
QImage sign_image(const QString& name, qreal ratio) {
    const QSize size = (QSizeF(card_width, card_height) * ratio).toSize();
    const auto picture = picture_of_place(name.toStdString(), {size.width(), size.height()}, ratio);
    if (!picture) return {};
    QImage image(size, QImage::Format_RGB32);
    image.fill(to_qt(picture->table));
    QPainter painter(&image);
    painter.drawPixmap(to_qt(picture->outline.place), OutlinePictures().pixmap(picture->outline.look));
    return image;
}

}  // namespace

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
}

bool HelpWindow::show_file(const QString& path) {
    // The table may have other colours than when the file was shown last.
    if (path != path_ || !isVisible()) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) return false;
        document()->clear();
        setHtml(QString::fromUtf8(file.readAll()));
        if (path_.isEmpty()) fit_to_screen();
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

void HelpWindow::fit_to_screen() {
    const QSize room = screen()->availableSize();
    const PixelSize size = page_size(qt_texts(), {room.width(), room.height()}, [this](int width) {
        document()->setTextWidth(width - verticalScrollBar()->sizeHint().width());
        return static_cast<int>(std::ceil(document()->size().height()));
    });
    resize(size.width, size.height);
}

QVariant HelpWindow::loadResource(int type, const QUrl& name) {
    if (type != QTextDocument::ImageResource) return QTextBrowser::loadResource(type, name);
    const qreal ratio = devicePixelRatioF();
    QImage image;
    if (name.scheme() == "art") {
        image = render_drawing(name.path(), {}, ratio);
    } else if (name.scheme() == "sign") {
        image = sign_image(name.path(), ratio);
    } else {
        return QTextBrowser::loadResource(type, name);
    }
    image.setDevicePixelRatio(ratio);
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
