// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QHeaderView>

#include <optional>

namespace quorvin {

/// The names of the files over the columns of a comparison. A click on one makes its file the reference, or
/// not any more; a cross at its end closes the column; columns are dragged to other places. Main thread.
class FileHeader final : public QHeaderView {
    Q_OBJECT
public:
    explicit FileHeader(QWidget *parent = nullptr);

    /// As high as it was made; the toolkit would load a bold font to measure names that stand in another.
    QSize sizeHint() const override { return minimumSize(); }

Q_SIGNALS:
    void referenceWanted(int column);
    void closeWanted(int column);
    void menuWanted(int column, const QPoint &globalPosition);

protected:
    void paintSection(QPainter *painter, const QRect &rect, int column) const override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void leaveEvent(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;

private:
    /// In the viewport; as long as the column has room for one.
    QRect crossRect(int column) const;
    /// The column whose cross is there; -1 for none.
    int crossAt(const QPoint &position) const;
    void setHovered(int column);
    void paintCross(QPainter *painter, const QRect &rect) const;

    int _hovered = -1; ///< the column under the pointer
    int _hoveredCross = -1;
    std::optional<int> _pressedCross;
};

} // namespace quorvin
