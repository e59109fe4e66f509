// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/Rule.h"

#include <QWidget>

class QAbstractItemModel;
class QComboBox;
class QLabel;
class QLineEdit;

namespace quorvin {

/// One condition of a rule, to be edited: what is compared, how, and with what. Main thread.
class ConditionRow final : public QWidget {
    Q_OBJECT
public:
    /// `names` has the parameters to choose from, and must outlive the row.
    explicit ConditionRow(QAbstractItemModel &names, QWidget *parent = nullptr);

    /// The rule is a condition.
    void setRule(const Rule &rule);
    /// Says nothing while there is nothing to compare with.
    Rule rule() const;

Q_SIGNALS:
    void changed();
    void removeWanted();

private:
    Rule::Kind kind() const;
    Rule::Comparison comparison() const;
    RuleValue valueOf(const QLineEdit &field) const;
    void kindDidChange();
    void comparisonDidChange();

    QComboBox *_kind;
    QLineEdit *_parameter;
    QComboBox *_comparison;
    QComboBox *_fileType;
    QLineEdit *_value;
    QLabel *_and;
    QLineEdit *_upTo;
    bool _isQuoted = false; ///< the value is a text even where it could be a quantity
};

} // namespace quorvin
