#include "desktop/shared/qt_texts.h"

#include <QApplication>
#include <QFontInfo>
#include <QFontMetricsF>

#include "desktop/shared/qt_convert.h"

namespace tarnwick {
namespace {

QFont qt_font(const TextFont& font) {
    QFont native = QApplication::font();
    if (!font.family.empty()) native.setFamily(to_qt(font.family));
    if (font.pixels > 0) native.setPixelSize(qRound(font.pixels));
    if (font.bold) native.setBold(true);
    return native;
}

class QtTexts : public TextMeasure {
  public:
    float desktop_size() const override {
        return static_cast<float>(QFontInfo(QApplication::font()).pixelSize());
    }
    float width(const std::string& text, const TextFont& font) const override {
        return static_cast<float>(QFontMetricsF(qt_font(font)).horizontalAdvance(to_qt(text)));
    }
    float height(const TextFont& font) const override {
        return static_cast<float>(QFontMetricsF(qt_font(font)).height());
    }
    TextSize wrapped(const std::string& text, const TextFont& font, float width) const override {
        constexpr qreal any_height = 1e6;
        const QRectF column(0, 0, static_cast<qreal>(width), any_height);
        const QSizeF size =
            QFontMetricsF(qt_font(font)).boundingRect(column, Qt::TextWordWrap, to_qt(text)).size();
        return {static_cast<float>(size.width()), static_cast<float>(size.height())};
    }
};

}  // namespace

const TextMeasure& qt_texts() {
    static const QtTexts texts;
    return texts;
}

}  // namespace tarnwick
