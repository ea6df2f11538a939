#include "desktop/dialogs/qt_dialog_measure.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QStyle>
#include <QStyleOptionButton>

#include "desktop/shared/qt_convert.h"
#include "desktop/shared/qt_texts.h"

namespace tarnwick {

QFont QtDialogMeasure::font(const TextFont& font) const { return qt_font(dialog_.font(), font); }

float QtDialogMeasure::desktop_size() const {
    return static_cast<float>(QFontInfo(dialog_.font()).pixelSize());
}

float QtDialogMeasure::width(const std::string& text, const TextFont& font) const {
    return static_cast<float>(QFontMetricsF(this->font(font)).horizontalAdvance(to_qt(text)));
}

float QtDialogMeasure::height(const TextFont& font) const {
    return static_cast<float>(QFontMetricsF(this->font(font)).height());
}

TextSize QtDialogMeasure::wrapped(const std::string& text, const TextFont& font, float width) const {
    return qt_wrapped(this->font(font), text, width);
}

float QtDialogMeasure::marked_width(WidgetKind kind, const std::string& text, const TextFont& font) const {
    QStyleOptionButton option;
    option.initFrom(&dialog_);
    option.fontMetrics = QFontMetrics(this->font(font));
    option.text = to_qt(text);
    const QRect beside =
        dialog_.style()->itemTextRect(option.fontMetrics, QRect(), Qt::TextShowMnemonic, false, option.text);
    const auto type = kind == WidgetKind::check_box ? QStyle::CT_CheckBox : QStyle::CT_RadioButton;
    return static_cast<float>(dialog_.style()->sizeFromContents(type, &option, beside.size()).width());
}

int QtDialogMeasure::box_height() const {
    constexpr int borders = 6;
    return QFontMetrics(dialog_.font()).height() + borders;
}

}  // namespace tarnwick
