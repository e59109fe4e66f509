// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "statistics/CountPresets.h"
#include "statistics/ParameterCoverage.h"

#include <QHash>
#include <QString>
#include <QWidget>

#include <vector>

class QLineEdit;
class QModelIndex;
class QSortFilterProxyModel;
class QStandardItem;
class QStandardItemModel;
class QTreeView;

namespace quorvin {

/// The parameters of a list to choose from, with how many files have each and how many values it has: on top
/// those that people of some trades ask for; a field narrows them by name. Main thread.
class ParameterChooser final : public QWidget {
    Q_OBJECT
public:
    explicit ParameterChooser(QWidget *parent = nullptr);

    /// `failures` are those that could not be read; they are no parameter among all.
    void setCoverage(const std::vector<ParameterCoverage> &coverage, const ParameterCoverage &failures);
    /// Shows that one as chosen, and tells nobody; nothing where it is not among the parameters.
    void setChosen(const QString &parameter);

Q_SIGNALS:
    /// By the user. `preset` is null when it was chosen among all parameters.
    void chosen(const QString &parameter, const quorvin::CountPreset *preset);

private:
    void addPresets();
    /// The columns of numbers are as wide as these, from now on, or stay as they are.
    void fitNumbers(bool fits);
    using Known = QHash<QString, const ParameterCoverage *>; ///< by name
    static void showNumbersOf(QStandardItem *trade, const Known &known);
    void updateAll(const std::vector<ParameterCoverage> &coverage, const Known &known);
    void tellChosen(const QModelIndex &current);
    void search(const QString &text);
    QStandardItem *itemOf(const QString &parameter) const;

    QStandardItemModel *_model;
    QSortFilterProxyModel *_found;
    QLineEdit *_field;
    QTreeView *_tree;
    QStandardItem *_all = nullptr; ///< the heading of all parameters
    bool _isSetting = false;
};

} // namespace quorvin
