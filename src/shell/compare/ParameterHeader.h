// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/compare/TableLook.h"
#include "shell/outline/CellText.h"

#include <QHeaderView>

namespace quorvin {

/// The names of the parameters and of their sections at the side of a comparison, which stay while its
/// columns scroll. Main thread.
class ParameterHeader final : public QHeaderView {
    Q_OBJECT
public:
    explicit ParameterHeader(QWidget *parent = nullptr);

    TableLook look;
    QString soughtText; ///< whatever its case, as in the cells; "": none

    bool isHeading(int row) const;
    CellText cellOf(int row) const;
    /// The room above a heading, beyond that of other rows; device-independent pixels.
    int headingGap(int row) const;

Q_SIGNALS:
    void menuWanted(int row, const QPoint &globalPosition);

protected:
    void paintSection(QPainter *painter, const QRect &rect, int row) const override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    bool viewportEvent(QEvent *event) override;
};

} // namespace quorvin
