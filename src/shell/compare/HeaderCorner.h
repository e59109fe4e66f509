// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

namespace quorvin {

/// The header over the parameters of a comparison, between the other two. Main thread.
class HeaderCorner final : public QWidget {
    Q_OBJECT
public:
    explicit HeaderCorner(QWidget *parent);

    /// Where its text stands.
    void setAlignment(Qt::Alignment alignment);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Qt::Alignment _alignment = Qt::AlignLeading;
};

} // namespace quorvin
