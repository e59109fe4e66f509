// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/charts/ChartTable.h"

#include <QHeaderView>
#include <QTableView>

namespace quorvin {

void setUpChartTable(QTableView &table, QAbstractItemModel *model, const QString &accessibleName)
{
    table.setModel(model);
    table.setAccessibleName(accessibleName);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setAlternatingRowColors(true);
    table.setShowGrid(false);
    table.setWordWrap(false);
    table.setTabKeyNavigation(false);
    table.verticalHeader()->hide();
    table.verticalHeader()->setDefaultSectionSize(table.window()->fontMetrics().height() + 6);
    table.horizontalHeader()->setHighlightSections(false);
}

} // namespace quorvin
