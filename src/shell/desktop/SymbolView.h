// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QIcon>
#include <QWidget>

namespace quorvin {

/// A bundled picture of one size, drawn when it is first in sight. Main thread.
class SymbolView final : public QWidget {
public:
    /// `side` is in device-independent pixels.
    SymbolView(const QString &name, int side, QIcon::Mode mode = QIcon::Normal);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QIcon _symbol;
    QIcon::Mode _mode;
};

} // namespace quorvin
