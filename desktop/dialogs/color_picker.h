#pragma once

#include <QColor>
#include <QString>

class QColorDialog;
class QWidget;

namespace tarnwick {

/// A colour picker with this title that is yet to be shown. It comes beside its parent, as far as the screen
/// has room there, so that the colour shown there can still be seen.
QColorDialog* make_color_picker(const QColor& first, const QString& title, QWidget* parent);

}  // namespace tarnwick
