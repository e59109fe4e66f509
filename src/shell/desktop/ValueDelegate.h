// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStyledItemDelegate>

namespace quorvin {

/// Cells of values, each in the direction of its own letters: "2.5 KB" stays as it is in a window that runs
/// from the right. Main thread.
class ValueDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &locale) const override;
};

} // namespace quorvin
