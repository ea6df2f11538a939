#include "desktop/board/board_accessible.h"

#include <utility>

#include "desktop/board/board_item_accessible.h"
#include "desktop/board/board_widget.h"
#include "view/spoken_board.h"

namespace tarnwick {
namespace {

constexpr std::chrono::milliseconds news_delay{200};

QAccessibleInterface* make_accessible(const QString&, QObject* object) {
    auto* board = dynamic_cast<BoardWidget*>(object);
    return board ? new BoardAccessible(*board) : nullptr;
}

void send(QAccessible::Event kind, QAccessibleInterface* subject) {
    if (kind == QAccessible::ValueChanged) {
        QAccessibleValueChangeEvent event(subject, subject->valueInterface()->currentValue());
        QAccessible::updateAccessibility(&event);
    } else {
        QAccessibleEvent event(subject, kind);
        QAccessible::updateAccessibility(&event);
    }
}

QAccessible::Event event_of(SpokenChange::Kind kind) {
    switch (kind) {
        case SpokenChange::Kind::gone:
            return QAccessible::ObjectDestroyed;
        case SpokenChange::Kind::came:
            return QAccessible::ObjectCreated;
        case SpokenChange::Kind::renamed:
            return QAccessible::NameChanged;
        case SpokenChange::Kind::other_value:
            return QAccessible::ValueChanged;
        case SpokenChange::Kind::reordered:
            break;
    }
    return QAccessible::ObjectReorder;
}

}  // namespace

void install_board_accessibility() { QAccessible::installFactory(make_accessible); }

BoardAccessible::BoardAccessible(BoardWidget& board)
    : QAccessibleWidget(&board, QAccessible::Grouping, QStringLiteral("Card table")), told_(items()) {}

BoardAccessible::~BoardAccessible() {
    for (const auto& [widget, id] : children_) QAccessible::deleteAccessibleInterface(id);
}

BoardWidget& BoardAccessible::board() const { return *static_cast<BoardWidget*>(widget()); }

bool BoardAccessible::isValid() const { return QAccessibleWidget::isValid() && board().form().loaded(); }

std::vector<BoardItem> BoardAccessible::items() const {
    return isValid() ? described_items(board().form()) : std::vector<BoardItem>{};
}

QAccessibleInterface* BoardAccessible::interface_of(const Widget& widget) const {
    const auto known = children_.find(&widget);
    if (known != children_.end()) return QAccessible::accessibleInterface(known->second);
    auto* made = new BoardItemAccessible(*this, widget);
    children_[&widget] = QAccessible::registerAccessibleInterface(made);
    return made;
}

int BoardAccessible::childCount() const {
    return static_cast<int>(items().size()) + QAccessibleWidget::childCount();
}

QAccessibleInterface* BoardAccessible::child(int index) const {
    const std::vector<BoardItem> shown = items();
    const int count = static_cast<int>(shown.size());
    if (index < 0) return nullptr;
    if (index >= count) return QAccessibleWidget::child(index - count);
    return interface_of(*shown[static_cast<std::size_t>(index)].widget);
}

int BoardAccessible::indexOfChild(const QAccessibleInterface* child) const {
    const std::vector<BoardItem> shown = items();
    if (const auto* item = dynamic_cast<const BoardItemAccessible*>(child)) {
        const BoardItem* found = find_item(shown, &item->widget());
        return found ? static_cast<int>(found - shown.data()) : -1;
    }
    const int index = QAccessibleWidget::indexOfChild(child);
    return index < 0 ? -1 : index + static_cast<int>(shown.size());
}

QAccessibleInterface* BoardAccessible::childAt(int x, int y) const {
    if (!isValid() || !rect().contains(x, y)) return nullptr;
    const QPoint seen = board().mapFromGlobal(QPoint(x, y));
    if (QWidget* native = board().childAt(seen)) return QAccessible::queryAccessibleInterface(native);
    const std::vector<BoardItem> shown = items();
    const QPoint place = seen + QPoint(0, board().scroll_offset());
    const Image* image =
        board().form().mouse().image_at(static_cast<float>(place.x()), static_cast<float>(place.y()));
    if (image) return find_item(shown, image) ? interface_of(*image) : nullptr;
    for (const BoardItem& item : shown) {
        if (item.widget->kind() != WidgetKind::label) continue;
        QAccessibleInterface* label = interface_of(*item.widget);
        if (label->rect().contains(x, y)) return label;
    }
    return nullptr;
}

QAccessibleInterface* BoardAccessible::focusChild() const {
    const Widget* item = isValid() && board().hasFocus() ? board().cursor_item() : nullptr;
    return item ? interface_of(*item) : QAccessibleWidget::focusChild();
}

void BoardAccessible::tell_changes() {
    const std::vector<BoardItem> before = std::exchange(told_, items());
    for (const auto& [kind, widget] : spoken_changes(before, told_)) {
        send(event_of(kind), widget ? interface_of(*widget) : this);
    }
}

BoardNews::BoardNews(BoardWidget& board) : board_(board), wanted_(QAccessible::isActive()) {
    QAccessible::installActivationObserver(this);
    timer_.setSingleShot(true);
    timer_.setInterval(news_delay);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [&board] {
        auto* accessible = dynamic_cast<BoardAccessible*>(QAccessible::queryAccessibleInterface(&board));
        if (accessible && accessible->isValid()) accessible->tell_changes();
    });
}

void BoardNews::cursor_moved() {
    QAccessibleInterface* accessible = wanted_ ? QAccessible::queryAccessibleInterface(&board_) : nullptr;
    QAccessibleInterface* item = accessible ? accessible->focusChild() : nullptr;
    if (!item) return;
    send(QAccessible::Focus, item);
    if (!board_.cursor_hint().empty()) send(QAccessible::DescriptionChanged, item);
}

BoardNews::~BoardNews() { QAccessible::removeActivationObserver(this); }

}  // namespace tarnwick
