// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/charts/ParameterChooser.h"

#include "shell/desktop/Counts.h"
#include "shell/desktop/PlainText.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTreeView>
#include <QVBoxLayout>

namespace quorvin {

namespace {

enum ChooserColumn { ChooserName, ChooserFiles, ChooserValues };
constexpr int kParameterRole = Qt::UserRole;
constexpr int kPresetRole = Qt::UserRole + 1; ///< place in the presets, from 0; absent of other rows

QList<QStandardItem *> makeRow(const QString &text, const QString &parameter)
{
    QList<QStandardItem *> row{new QStandardItem(text), new QStandardItem, new QStandardItem};
    row.first()->setData(parameter, kParameterRole);
    for (QStandardItem *item : row)
        item->setEditable(false);
    for (QStandardItem *number : row.sliced(1))
        number->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return row;
}

QList<QStandardItem *> makeHeading(const QString &text)
{
    QList<QStandardItem *> row = makeRow(text, {});
    for (QStandardItem *item : row)
        item->setSelectable(false);
    return row;
}

void showNumber(QStandardItem *parent, int row, const ParameterCoverage *one)
{
    parent->child(row, ChooserFiles)->setText(one ? groupedCount(one->files) : QString());
    parent->child(row, ChooserValues)->setText(one ? groupedCount(one->values) : QString());
}

} // namespace

ParameterChooser::ParameterChooser(QWidget *parent)
    : QWidget(parent),
      _model(new QStandardItemModel(this)),
      _found(new QSortFilterProxyModel(this)),
      _field(new QLineEdit),
      _tree(new QTreeView)
{
    _field->setPlaceholderText(tr("Find a parameter"));
    _field->setAccessibleName(_field->placeholderText());
    _field->setClearButtonEnabled(true);
    _model->setHorizontalHeaderLabels({tr("Parameter"), tr("Files"), tr("Values")});
    addPresets();
    _found->setSourceModel(_model);
    _found->setRecursiveFilteringEnabled(true);
    _found->setFilterCaseSensitivity(Qt::CaseInsensitive);
    _tree->setModel(_found);
    _tree->setAccessibleName(tr("Parameters"));
    _tree->setUniformRowHeights(true);
    _tree->setAllColumnsShowFocus(true);
    _tree->setTextElideMode(Qt::ElideMiddle);
    _tree->header()->setStretchLastSection(false);
    _tree->header()->setSectionResizeMode(ChooserName, QHeaderView::Stretch);
    fitNumbers(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(_field);
    layout->addWidget(_tree);
    connect(_field, &QLineEdit::textChanged, this, &ParameterChooser::search);
    connect(_tree->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &ParameterChooser::tellChosen);
    _tree->expandAll();
}

void ParameterChooser::addPresets()
{
    QStandardItem *trade = nullptr;
    for (std::size_t place = 0; place < countPresets().size(); ++place) {
        const CountPreset &preset = countPresets()[place];
        if (!trade || trade->text() != preset.trade) {
            const auto heading = makeHeading(preset.trade);
            trade = heading.first();
            _model->appendRow(heading);
        }
        const auto row = makeRow(preset.title, preset.parameter);
        row.first()->setData(static_cast<int>(place), kPresetRole);
        row.first()->setToolTip(plainTip(preset.parameter));
        trade->appendRow(row);
    }
    const auto heading = makeHeading(tr("All Parameters"));
    _all = heading.first();
    _model->appendRow(heading);
}

void ParameterChooser::setCoverage(const std::vector<ParameterCoverage> &coverage,
                                   const ParameterCoverage &failures)
{
    const QScopedValueRollback guard(_isSetting, true);
    Known known;
    for (const ParameterCoverage &one : coverage)
        known.insert(one.name, &one);
    known.insert(failures.name, &failures);
    // Else each number has all of them measured.
    fitNumbers(false);
    for (int trade = 0; trade < _all->row(); ++trade)
        showNumbersOf(_model->item(trade), known);
    updateAll(coverage, known);
    fitNumbers(true);
}

void ParameterChooser::fitNumbers(bool fits)
{
    const auto mode = fits ? QHeaderView::ResizeToContents : QHeaderView::Fixed;
    for (const int column : {ChooserFiles, ChooserValues})
        _tree->header()->setSectionResizeMode(column, mode);
}

void ParameterChooser::showNumbersOf(QStandardItem *trade, const Known &known)
{
    for (int row = 0; row < trade->rowCount(); ++row)
        showNumber(trade, row, known.value(trade->child(row)->data(kParameterRole).toString()));
}

/// Rows come and go with what the files have; those that stay keep their place on the screen.
void ParameterChooser::updateAll(const std::vector<ParameterCoverage> &coverage, const Known &known)
{
    int row = 0;
    for (const ParameterCoverage &one : coverage) {
        while (row < _all->rowCount() && !known.contains(_all->child(row)->text()))
            _all->removeRow(row);
        if (row == _all->rowCount() || _all->child(row)->text() != one.name)
            _all->insertRow(row, makeRow(one.name, one.name));
        showNumber(_all, row++, &one);
    }
    _all->removeRows(row, _all->rowCount() - row);
    _tree->expand(_found->mapFromSource(_all->index()));
}

QStandardItem *ParameterChooser::itemOf(const QString &parameter) const
{
    for (int row = 0; row < _all->rowCount(); ++row) {
        if (_all->child(row)->text().compare(parameter, Qt::CaseInsensitive) == 0)
            return _all->child(row);
    }
    return nullptr;
}

void ParameterChooser::setChosen(const QString &parameter)
{
    const QScopedValueRollback guard(_isSetting, true);
    if (const QStandardItem *item = itemOf(parameter)) {
        _field->clear();
        _tree->setCurrentIndex(_found->mapFromSource(item->index()));
    } else {
        _tree->selectionModel()->clear();
    }
}

void ParameterChooser::tellChosen(const QModelIndex &current)
{
    const QModelIndex name = current.siblingAtColumn(ChooserName);
    const QString parameter = name.data(kParameterRole).toString();
    if (_isSetting || parameter.isEmpty())
        return;
    const QVariant place = name.data(kPresetRole);
    Q_EMIT chosen(parameter,
                  place.isValid() ? &countPresets()[static_cast<std::size_t>(place.toInt())] : nullptr);
}

void ParameterChooser::search(const QString &text)
{
    // What is hidden gives its place as the current row to another, which nobody has chosen.
    const QScopedValueRollback guard(_isSetting, true);
    _found->setFilterFixedString(text);
    _tree->expandAll();
}

} // namespace quorvin
