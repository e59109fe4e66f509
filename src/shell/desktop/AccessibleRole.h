// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAccessible>

class QWidget;

namespace quorvin {

/// What the widget is to screen readers, in place of what its class is; a button that is down counts as
/// selected. Call before the widget gets a name or is shown. Main thread.
void setAccessibleRole(QWidget *widget, QAccessible::Role role);

} // namespace quorvin
