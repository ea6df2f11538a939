#include "desktop/shared/qt_texts.h"

#include <QApplication>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QWidget>

#include "desktop/shared/qt_convert.h"

namespace tarnwick {
QFont qt_font(const QFont& own, const TextFont& font) {
    QFont native = own;
    if (!font.family.empty()) native.setFamily(to_qt(font.family));
    if (font.pixels > 0) native.setPixelSize(qRound(font.pixels));
    if (font.bold) native.setBold(*font.bold);
    return native;
}

TextSize qt_wrapped(const QFont& font, const std::string& text, float width) {
    const QRectF column(0, 0, static_cast<qreal>(width), QWIDGETSIZE_MAX);
    const QRectF needed = QFontMetricsF(font).boundingRect(column, Qt::TextWordWrap, to_qt(text));
    return {static_cast<float>(needed.width()), static_cast<float>(needed.height())};
}

namespace {

class QtTexts : public TextMeasure {
  public:
    float desktop_size() const override { return static_cast<float>(QFontInfo(own()).pixelSize()); }
    float width(const std::string& text, const TextFont& font) const override {
        const Question question{text, font, own()};
        for (const auto& [known, width] : widths_) {
            if (known == question) return width;
        }
        if (widths_.size() == most_widths) widths_.erase(widths_.begin());
        const QFontMetricsF metrics(qt_font(question.own, font));
        return widths_.emplace_back(question, static_cast<float>(metrics.horizontalAdvance(to_qt(text))))
            .second;
    }
    float height(const TextFont& font) const override {
        return static_cast<float>(QFontMetricsF(qt_font(own(), font)).height());
    }
    TextSize wrapped(const std::string& text, const TextFont& font, float width) const override {
        return qt_wrapped(qt_font(own(), font), text, width);
    }

  private:
    struct Question {
        std::string text;
        TextFont font;
        QFont own;
        bool operator==(const Question&) const = default;
    };
    // The labels of the board, and the last few scores.
    static constexpr std::size_t most_widths = 16;

    static QFont own() { return QApplication::font(); }

    // Of the labels a drag asks at every move of the pointer, and to lay out a text takes long.
    mutable std::vector<std::pair<Question, float>> widths_;
};

}  // namespace

const TextMeasure& qt_texts() {
    static const QtTexts texts;
    return texts;
}

}  // namespace tarnwick
