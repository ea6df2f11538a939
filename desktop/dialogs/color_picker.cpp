#include "desktop/dialogs/color_picker.h"

#include <QColorDialog>
#include <QScreen>
#include <QWindow>

#include "view/dialog_layout.h"

namespace tarnwick {
namespace {

Area from_qt(const QRect& rect) { return {rect.left(), rect.top(), rect.width(), rect.height()}; }

}  // namespace

QColorDialog* make_color_picker(const QColor& first, const QString& title, QWidget* parent) {
    auto* picker = new QColorDialog(first, parent);
    picker->setWindowTitle(title);
    if (!parent) return picker;
    picker->adjustSize();
    // The frame that it will get is the one that its parent has.
    const QSize frame = parent->frameGeometry().size() - parent->size();
    const QSize size = picker->size() + frame;
    const Area place = place_beside(from_qt(parent->frameGeometry()),
                                    {size.width(), size.height()},
                                    from_qt(parent->screen()->availableGeometry()));
    picker->move(place.left, place.top);
    return picker;
}

}  // namespace tarnwick
