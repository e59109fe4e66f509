// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QAbstractItemModel;
class QString;
class QTableView;

namespace quorvin {

/// Makes a table the one beside a chart: it shows rows of the model, which are chosen as a whole, each of one
/// line of the window's letters. The table stands in its window already, with the header that it is to have;
/// what draws its values comes from the caller. Main thread.
void setUpChartTable(QTableView &table, QAbstractItemModel *model, const QString &accessibleName);

} // namespace quorvin
