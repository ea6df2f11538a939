#pragma once

#include <QFont>
#include <QWidget>

#include "view/dialog_texts.h"

namespace tarnwick {

/// The room that texts take in the font of a dialog.
class QtDialogMeasure : public DialogMeasure {
  public:
    explicit QtDialogMeasure(const QWidget& dialog) : dialog_(dialog) {}

    QFont font(const TextFont& font) const;

    float desktop_size() const override;
    float width(const std::string& text, const TextFont& font) const override;
    float height(const TextFont& font) const override;
    TextSize wrapped(const std::string& text, const TextFont& font, float width) const override;
    float marked_width(WidgetKind kind, const std::string& text, const TextFont& font) const override;
    int box_height() const override;

  private:
    const QWidget& dialog_;
};

}  // namespace tarnwick
