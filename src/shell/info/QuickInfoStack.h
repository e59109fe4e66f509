// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

#include <vector>

namespace quorvin {

class QuickInfoView;

/// Panels one below another, as wide as the stack, which is as high as all of them; each begins where the one
/// before it ends, also while that is opened or closed. Hidden ones take no room.
class QuickInfoStack final : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

    /// At the end; takes it over.
    void addPanel(QuickInfoView *panel);
    /// After one was hidden or shown.
    void place();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    std::vector<QuickInfoView *> _panels;
};

} // namespace quorvin
