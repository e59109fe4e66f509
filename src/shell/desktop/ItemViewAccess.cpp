// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/ItemViewAccess.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QColor>
#include <QHash>
#include <QListView>
#include <QPointer>
#include <QRect>
#include <QTableView>
#include <QTreeView>

#include <utility>

namespace quorvin {

namespace {

using Interface = QAccessibleInterface;

/// Says what another one says, or nothing when that is gone: rows come and go with the model.
class RelayedAccess : public QAccessibleInterface {
public:
    explicit RelayedAccess(QAccessible::Id told) : _told(told) { }

    QAccessible::Id toldId() const { return _told; }
    Interface *told() const { return QAccessible::accessibleInterface(_told); }

    bool isValid() const override { return ask(&Interface::isValid); }
    QObject *object() const override { return ask(&Interface::object); }
    QWindow *window() const override { return ask(&Interface::window); }
    QList<QPair<Interface *, QAccessible::Relation>> relations(QAccessible::Relation match) const override
    {
        return ask(&Interface::relations, match);
    }
    Interface *focusChild() const override { return ask(&Interface::focusChild); }
    Interface *childAt(int x, int y) const override { return ask(&Interface::childAt, x, y); }
    Interface *parent() const override { return ask(&Interface::parent); }
    Interface *child(int index) const override { return ask(&Interface::child, index); }
    int childCount() const override { return ask(&Interface::childCount); }
    int indexOfChild(const Interface *child) const override { return ask(&Interface::indexOfChild, child); }
    QString text(QAccessible::Text kind) const override { return ask(&Interface::text, kind); }
    void setText(QAccessible::Text kind, const QString &text) override
    {
        if (Interface *own = told())
            own->setText(kind, text);
    }
    QRect rect() const override { return ask(&Interface::rect); }
    QAccessible::Role role() const override { return ask(&Interface::role); }
    QAccessible::State state() const override { return ask(&Interface::state); }
    QColor foregroundColor() const override { return ask(&Interface::foregroundColor); }
    QColor backgroundColor() const override { return ask(&Interface::backgroundColor); }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return ask(&Interface::interface_cast, type);
    }

private:
    template <typename Question, typename... Details>
    auto ask(Question question, Details... details) const
        -> decltype((std::declval<Interface *>()->*question)(details...))
    {
        Interface *own = told();
        return own ? (own->*question)(details...) : decltype((own->*question)(details...)){};
    }

    QAccessible::Id _told;
};

class ItemAccess final : public RelayedAccess {
public:
    ItemAccess(QAccessible::Id told, const QAbstractItemView *view) : RelayedAccess(told), _view(view) { }

    QAccessible::State state() const override
    {
        QAccessible::State state = RelayedAccess::state();
        state.focused = state.focused && _view && _view->hasFocus();
        return state;
    }

private:
    QPointer<const QAbstractItemView> _view;
};

/// Hands an item of its own out for each one of the toolkit's.
class ItemViewAccess final : public RelayedAccess, public QAccessibleTableInterface {
public:
    ItemViewAccess(QAccessible::Id told, const QAbstractItemView *view) : RelayedAccess(told), _view(view) { }
    ~ItemViewAccess() override
    {
        for (const QAccessible::Id item : std::as_const(_items))
            QAccessible::deleteAccessibleInterface(item);
    }
    Q_DISABLE_COPY_MOVE(ItemViewAccess)

    Interface *focusChild() const override { return itemOf(RelayedAccess::focusChild()); }
    Interface *childAt(int x, int y) const override { return itemOf(RelayedAccess::childAt(x, y)); }
    Interface *child(int index) const override { return itemOf(RelayedAccess::child(index)); }
    int indexOfChild(const Interface *child) const override
    {
        const auto *item = dynamic_cast<const ItemAccess *>(child);
        const Interface *own = item ? item->told() : child;
        return own ? RelayedAccess::indexOfChild(own) : -1;
    }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableInterface && table() ? static_cast<QAccessibleTableInterface *>(this)
                                                              : RelayedAccess::interface_cast(type);
    }

    Interface *caption() const override { return table()->caption(); }
    Interface *summary() const override { return table()->summary(); }
    Interface *cellAt(int row, int column) const override { return itemOf(table()->cellAt(row, column)); }
    int selectedCellCount() const override { return table()->selectedCellCount(); }
    QList<Interface *> selectedCells() const override
    {
        QList<Interface *> cells = table()->selectedCells();
        for (Interface *&cell : cells)
            cell = itemOf(cell);
        return cells;
    }
    QString columnDescription(int column) const override { return table()->columnDescription(column); }
    QString rowDescription(int row) const override { return table()->rowDescription(row); }
    int selectedColumnCount() const override { return table()->selectedColumnCount(); }
    int selectedRowCount() const override { return table()->selectedRowCount(); }
    int columnCount() const override { return table()->columnCount(); }
    int rowCount() const override { return table()->rowCount(); }
    QList<int> selectedColumns() const override { return table()->selectedColumns(); }
    QList<int> selectedRows() const override { return table()->selectedRows(); }
    bool isColumnSelected(int column) const override { return table()->isColumnSelected(column); }
    bool isRowSelected(int row) const override { return table()->isRowSelected(row); }
    bool selectRow(int row) override { return table()->selectRow(row); }
    bool selectColumn(int column) override { return table()->selectColumn(column); }
    bool unselectRow(int row) override { return table()->unselectRow(row); }
    bool unselectColumn(int column) override { return table()->unselectColumn(column); }
    void modelChange(QAccessibleTableModelChangeEvent *event) override
    {
        table()->modelChange(event);
        if (event->modelChangeType() != QAccessibleTableModelChangeEvent::DataChanged)
            forgetItemsThatAreGone();
    }

private:
    QAccessibleTableInterface *table() const
    {
        Interface *own = told();
        return own ? own->tableInterface() : nullptr;
    }
    /// Headers and scroll bars as they are.
    Interface *itemOf(Interface *told) const
    {
        if (!told || !told->tableCellInterface() || dynamic_cast<ItemAccess *>(told))
            return told;
        QAccessible::Id &item = _items[QAccessible::uniqueId(told)];
        if (item == 0)
            item = QAccessible::registerAccessibleInterface(
                new ItemAccess(QAccessible::uniqueId(told), _view));
        return QAccessible::accessibleInterface(item);
    }
    void forgetItemsThatAreGone()
    {
        _items.removeIf([](const auto &item) {
            const bool isGone = !QAccessible::accessibleInterface(item.key());
            if (isGone)
                QAccessible::deleteAccessibleInterface(item.value());
            return isGone;
        });
    }

    const QAbstractItemView *_view;
    mutable QHash<QAccessible::Id, QAccessible::Id> _items; ///< ours by the toolkit's
};

/// Asked once for each class of an object, the most derived one first.
QAccessibleInterface *itemViewAccessOf(const QString &, QObject *object)
{
    static bool isToolkitAsked = false;
    const auto *view = qobject_cast<QAbstractItemView *>(object);
    const bool isOurs = qobject_cast<const QListView *>(view) || qobject_cast<const QTreeView *>(view)
        || qobject_cast<const QTableView *>(view);
    if (!isOurs || isToolkitAsked)
        return nullptr;
    // The toolkit's own comes from the factory behind this one, and both end with the view.
    isToolkitAsked = true;
    Interface *told = QAccessible::queryAccessibleInterface(object);
    isToolkitAsked = false;
    return new ItemViewAccess(QAccessible::uniqueId(told), view);
}

} // namespace

void tellFocusOfItemViews()
{
    static const bool isInstalled = [] {
        QAccessible::installFactory(itemViewAccessOf);
        return true;
    }();
    Q_UNUSED(isInstalled);
}

} // namespace quorvin
