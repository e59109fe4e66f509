// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>

namespace quorvin {

/// Says over the lower edge of a widget what a drop there would do. Main thread.
class DropHint : public QLabel {
    Q_OBJECT
public:
    explicit DropHint(QWidget *over);

    /// "" takes it away.
    void tell(const QString &hint);
};

} // namespace quorvin
