#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <limits>

#include "desktop/dialogs/dialog_control.h"
#include "desktop/shared/key_codes.h"
#include "desktop/shared/qt_convert.h"

namespace tarnwick {
namespace {

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

class LabelControl : public DialogControl {
  public:
    LabelControl(const Label& label, QLabel* native)
        : DialogControl(native), label_(label), native_(*native) {
        native->setTextFormat(Qt::PlainText);
    }

    void sync(const ControlLooks& looks) override {
        const ShownText& shown = looks.text;
        native_.setFont(looks.font);
        native_.setWordWrap(shown.wraps);
        native_.setAlignment(alignment_of(label_) | (shown.wraps ? Qt::AlignTop : Qt::AlignVCenter));
        native_.setText(to_qt(shown.text));
        native_.setToolTip(shown.tip.empty() ? QString()
                                             : "<qt>" + to_qt(shown.tip).toHtmlEscaped() + "</qt>");
        show_colors();
    }

  private:
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
        setPlaceholderText(to_qt(box.hint()));
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

    void sync(const ControlLooks&) override { native_.show_box(); }

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
