#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <algorithm>
#include <limits>

#include "desktop/dialogs/dialog_control.h"
#include "desktop/dialogs/fitting_font.h"
#include "desktop/shared/key_codes.h"
#include "desktop/shared/qt_convert.h"
#include "platform/form.h"

namespace tarnwick {
namespace {

constexpr qreal pixels_per_point = 96.0 / 72.0;

// Room between a label's text and what comes after it, in pixels.
constexpr qreal air = 2;

Qt::Alignment alignment_of(const Label& label) {
    switch (label.alignment()) {
        case Alignment::right:
            return Qt::AlignRight;
        case Alignment::center:
            return Qt::AlignHCenter;
        case Alignment::left:
            break;
    }
    return Qt::AlignLeft;
}

bool takes_two_lines(const QFont& font, const QSizeF& place) {
    return place.height() >= 2 * QFontMetricsF(font).height();
}

bool text_fits(const QString& text, const QFont& font, const QSizeF& place) {
    const QFontMetricsF metrics(font);
    if (!takes_two_lines(font, place)) {
        return metrics.horizontalAdvance(text) + air <= place.width() && metrics.height() <= place.height();
    }
    const QRectF room(0, 0, place.width(), 10 * place.height());
    const QRectF needed = metrics.boundingRect(room, Qt::TextWordWrap, text);
    return needed.width() <= place.width() && needed.height() <= place.height();
}

// A tip that has lines of a readable length, even for a text without a space.
QString tip_of(const QString& text) {
    constexpr int longest_word = 30;
    const QChar may_break(0x200b);
    QString tip;
    int word = 0;
    for (const QChar letter : text) {
        word = letter.isSpace() ? 0 : word + 1;
        if (word > longest_word && !letter.isLowSurrogate()) {
            tip += may_break;
            word = 1;
        }
        tip += letter;
    }
    return "<qt>" + tip.toHtmlEscaped() + "</qt>";
}

class LabelControl : public DialogControl {
  public:
    LabelControl(const Label& label, QLabel* native)
        : DialogControl(native), label_(label), native_(*native) {
        native->setTextFormat(Qt::PlainText);
    }

    void sync(qreal scale) override {
        const QSizeF place = native_.size();
        const QString text = to_qt(label_.caption());
        const QFont font = fitting_font(text, font_at(scale), place);
        const bool wraps = takes_two_lines(font, place);
        native_.setFont(font);
        native_.setWordWrap(wraps);
        native_.setAlignment(alignment_of(label_) | (wraps ? Qt::AlignTop : Qt::AlignVCenter));
        show_text(text, font, place);
        show_colors();
    }

    bool fits(const QSizeF& place) const override {
        return has_own_size() || text_fits(to_qt(label_.caption()), font_at(1), place);
    }

  private:
    bool has_own_size() const { return label_.font().points > 0; }

    QFont font_at(qreal scale) const {
        QFont font = native_.parentWidget()->font();
        const auto points = static_cast<qreal>(label_.font().points);
        if (!label_.font().family.empty()) font.setFamily(to_qt(label_.font().family));
        if (has_own_size()) font.setPixelSize(qRound(points * pixels_per_point * scale));
        font.setBold(label_.font().bold);
        return font;
    }

    // A font with a size of its own belongs to the layout, and gives way where it is too wide. So does the
    // desktop's where the screen has no room for a larger dialog, but only as far as it can be read, a value
    // not far, and only where this saves the text from being cut.
    QFont fitting_font(const QString& text, const QFont& font, const QSizeF& place) const {
        constexpr qreal least_of_value = 0.75;
        const int least_of_text =
            label_.label() ? qRound(least_of_value * size_of(font)) : least_readable(font);
        const int least = has_own_size() ? 1 : least_of_text;
        const auto fits = [&](const QFont& smaller) { return text_fits(text, smaller, place); };
        const QFont smaller = shrunk(font, least, fits);
        if (fits(smaller) || takes_two_lines(smaller, place)) return smaller;
        return shrunk(font, least,
                      [&](const QFont& lower) { return QFontMetricsF(lower).height() <= place.height(); });
    }

    // Names can be of any length: what does not fit ends in an ellipsis and can be read in full in a tip.
    void show_text(const QString& text, const QFont& font, const QSizeF& place) {
        const bool elided = !native_.wordWrap() && !text_fits(text, font, place);
        native_.setText(elided ? QFontMetricsF(font).elidedText(text, Qt::ElideRight, place.width() - air)
                               : text);
        native_.setToolTip(elided ? tip_of(text) : QString());
        const Label* title = label_.label();
        // Read out, a value comes after what it is, and nothing is left out.
        native_.setAccessibleName(title ? to_qt(title->caption()) + ' ' + text : text);
    }

    void show_colors() {
        native_.setAutoFillBackground(label_.has_colors());
        if (!label_.has_colors()) return;
        QPalette palette = native_.palette();
        palette.setColor(QPalette::WindowText, to_qt(label_.text_color()));
        palette.setColor(QPalette::Window, to_qt(label_.back_color()));
        native_.setPalette(palette);
    }

    const Label& label_;
    QLabel& native_;
};

class LineEdit : public QLineEdit {
  public:
    LineEdit(TextBox& box, QWidget* parent) : QLineEdit(parent), box_(box) {
        setMaxLength(std::numeric_limits<int>::max());
        // Not only what is edited: screen readers and their like set the text.
        connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
            box_.type(text.toStdString());
            show_box();
        });
    }

    void show_box() {
        const QString text = to_qt(box_.text());
        if (text != this->text()) setText(text);
    }

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override {
        QLineEdit::mouseReleaseEvent(event);
        if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) box_.click();
    }

    void keyPressEvent(QKeyEvent* event) override {
        const int code = key_code_of(event->key());
        if (code != 0 && box_.key_down(code)) return;
        QLineEdit::keyPressEvent(event);
    }

  private:
    TextBox& box_;
};

class TextBoxControl : public DialogControl {
  public:
    explicit TextBoxControl(LineEdit* native) : DialogControl(native), native_(*native) {}

    void sync(qreal) override { native_.show_box(); }

    bool fits(const QSizeF& place) const override {
        return QFontMetricsF(native_.font()).height() <= place.height();
    }

    int least_height() const override {
        constexpr int borders = 6;
        return native_.fontMetrics().height() + borders;
    }

  private:
    LineEdit& native_;
};

}  // namespace

std::unique_ptr<DialogControl> make_label_control(const Label& label, QWidget* parent) {
    return std::make_unique<LabelControl>(label, new QLabel(parent));
}

std::unique_ptr<DialogControl> make_text_box_control(TextBox& box, QWidget* parent) {
    return std::make_unique<TextBoxControl>(new LineEdit(box, parent));
}

}  // namespace tarnwick
