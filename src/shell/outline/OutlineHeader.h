// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QHeaderView>

namespace quorvin {

/// The header of a tree of parameters: its texts stand where those of the columns stand, and the border
/// between names and values goes by the view's width until the user drags it. Device-independent pixels.
class OutlineHeader final : public QHeaderView {
    Q_OBJECT
public:
    explicit OutlineHeader(QWidget *parent = nullptr);

    /// How far from the edge of their column the names begin, and how far all texts stay from any edge.
    void setLeads(int nameLead, int margin);
    /// As far as the view has it; 0: a part of the view's width.
    void setNamesWidth(int width);
    /// The view has that width.
    void placeBorder(int viewWidth);

Q_SIGNALS:
    /// The user has dragged the border; 0: it is to go by the view's width again.
    void namesWidthChosen(int width);

protected:
    void paintSection(QPainter *painter, const QRect &rect, int section) const override;

private:
    int _nameLead = 0;
    int _margin = 0;
    int _namesWidth = 0;
    int _viewWidth = 0;
    bool _isPlacingBorder = false;
};

} // namespace quorvin
