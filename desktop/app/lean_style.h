#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QProxyStyle>

#include "desktop/shared/high_contrast.h"

namespace tarnwick {

/// The desktop's style without the one icon that every menu bar loads, and that only a window too narrow for
/// its three menus would show. It would cost the loading of all image plugins at the start.
class LeanStyle : public QProxyStyle {
  public:
    using QProxyStyle::polish;
    void polish(QWidget* widget) override {
        QProxyStyle::polish(widget);
        const bool has_outline = qobject_cast<QAbstractButton*>(widget) || qobject_cast<QLineEdit*>(widget);
        if (has_outline && has_high_contrast(QApplication::palette())) {
            widget->setPalette(outlined(widget->palette()));
        }
    }
    /// The buttons of messages look like those of the other dialogs, which have no icons.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override {
        if (icon == SP_ToolBarHorizontalExtensionButton) return {};
        return QProxyStyle::standardIcon(icon, option, widget);
    }
};

}  // namespace tarnwick
