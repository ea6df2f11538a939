#include "desktop/board/board_accessible.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "desktop/board/board_item_accessible.h"
#include "desktop/board/board_widget.h"

namespace tarnwick {
namespace {

constexpr std::chrono::milliseconds news_delay{200};

QAccessibleInterface* make_accessible(const QString&, QObject* object) {
    auto* board = dynamic_cast<BoardWidget*>(object);
    return board ? new BoardAccessible(*board) : nullptr;
}

const BoardItem* find(const std::vector<BoardItem>& items, const Widget* widget) {
    const auto item = std::find_if(items.begin(), items.end(),
                                   [widget](const BoardItem& each) { return each.widget == widget; });
    return item == items.end() ? nullptr : &*item;
}

// The widgets of `items` that are among `others` as well.
std::vector<const Widget*> shared_widgets(const std::vector<BoardItem>& items,
                                          const std::vector<BoardItem>& others) {
    std::vector<const Widget*> widgets;
    for (const BoardItem& item : items) {
        if (find(others, item.widget)) widgets.push_back(item.widget);
    }
    return widgets;
}

void send(const BoardAccessible::Change& change) {
    if (change.event == QAccessible::ValueChanged) {
        QAccessibleValueChangeEvent event(change.subject, change.subject->valueInterface()->currentValue());
        QAccessible::updateAccessibility(&event);
    } else {
        QAccessibleEvent event(change.subject, change.event);
        QAccessible::updateAccessibility(&event);
    }
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
    if (!isValid() || !board().form().on_describe) return {};
    try {
        return board().form().on_describe();
    } catch (const std::exception&) {
        // A move that waits for the answer to a message may have left a pile half changed.
        return {};
    }
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
        const BoardItem* found = find(shown, &item->widget());
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
    if (image) return find(shown, image) ? interface_of(*image) : nullptr;
    for (const BoardItem& item : shown) {
        if (item.widget->kind() != WidgetKind::label) continue;
        QAccessibleInterface* label = interface_of(*item.widget);
        if (label->rect().contains(x, y)) return label;
    }
    return nullptr;
}

std::vector<BoardAccessible::Change> BoardAccessible::take_changes() {
    const std::vector<BoardItem> before = std::exchange(told_, items());
    std::vector<Change> changes;
    for (const BoardItem& item : before) {
        if (!find(told_, item.widget)) {
            changes.push_back({QAccessible::ObjectDestroyed, interface_of(*item.widget)});
        }
    }
    for (const BoardItem& item : told_) {
        const BoardItem* told = find(before, item.widget);
        QAccessibleInterface* child = interface_of(*item.widget);
        if (!told) {
            changes.push_back({QAccessible::ObjectCreated, child});
            continue;
        }
        if (told->name != item.name) changes.push_back({QAccessible::NameChanged, child});
        if (told->value != item.value) changes.push_back({QAccessible::ValueChanged, child});
    }
    if (shared_widgets(before, told_) != shared_widgets(told_, before)) {
        changes.push_back({QAccessible::ObjectReorder, this});
    }
    return changes;
}

BoardNews::BoardNews(BoardWidget& board) : wanted_(QAccessible::isActive()) {
    QAccessible::installActivationObserver(this);
    timer_.setSingleShot(true);
    timer_.setInterval(news_delay);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [&board] {
        auto* accessible = dynamic_cast<BoardAccessible*>(QAccessible::queryAccessibleInterface(&board));
        if (!accessible || !accessible->isValid()) return;
        for (const BoardAccessible::Change& change : accessible->take_changes()) send(change);
    });
}

BoardNews::~BoardNews() { QAccessible::removeActivationObserver(this); }

}  // namespace tarnwick
