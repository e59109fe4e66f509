// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/AccessibleRole.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QApplication>
#include <QComboBox>
#include <QVariant>

namespace quorvin {

namespace {

constexpr char kProperty[] = "accessibleRole";

class WidgetInRole final : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        // The toolkit means whoever a widget hands its focus on to as well, which says so itself.
        state.focused = state.focused && object() == QApplication::focusWidget();
        if (const auto *button = qobject_cast<QAbstractButton *>(object()); button && button->isCheckable()) {
            state.selectable = true;
            state.selected = button->isChecked();
        }
        return state;
    }
    QStringList actionNames() const override
    {
        return qobject_cast<QAbstractButton *>(object())
            ? QStringList{pressAction()} + QAccessibleWidget::actionNames()
            : QAccessibleWidget::actionNames();
    }
    void doAction(const QString &name) override
    {
        if (auto *button = qobject_cast<QAbstractButton *>(object()); button && name == pressAction())
            button->click();
        else
            QAccessibleWidget::doAction(name);
    }
};

/// Asked once for each class of an object, the most derived one first.
QAccessibleInterface *interfaceOf(const QString &, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    const QVariant role = widget ? widget->property(kProperty) : QVariant();
    return role.isValid() ? new WidgetInRole(widget, static_cast<QAccessible::Role>(role.toInt())) : nullptr;
}

} // namespace

void setAccessibleRole(QWidget *widget, QAccessible::Role role)
{
    static const bool isInstalled = [] {
        QAccessible::installFactory(interfaceOf);
        return true;
    }();
    Q_UNUSED(isInstalled);
    widget->setProperty(kProperty, int{role});
}

void setChoiceName(QComboBox *box, const QString &name)
{
    box->setAccessibleName(name);
    box->setAccessibleDescription(name);
}

} // namespace quorvin
