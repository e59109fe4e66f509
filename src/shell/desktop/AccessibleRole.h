// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAccessible>

class QComboBox;
class QWidget;

namespace quorvin {

/// What the widget is to screen readers, in place of what its class is; a button that is down counts as
/// selected. Call before the widget gets a name or is shown. Main thread.
void setAccessibleRole(QWidget *widget, QAccessible::Role role);

/// Says what is chosen in a box that has no label beside it. Readers of this desktop take what is chosen for
/// its name, and hear this behind it. Main thread.
void setChoiceName(QComboBox *box, const QString &name);

} // namespace quorvin
