// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QTableView;

namespace quorvin {

/// Lets what stands at the right of its column, the name of the column too, end some way before the next one,
/// whose text may begin right there. Gives the table a delegate for values and a horizontal header for that,
/// so it comes before all that is to be said of the header. Main thread.
void giveNumbersAir(QTableView &table);

} // namespace quorvin
