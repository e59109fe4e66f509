// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace quorvin {

/// From here on screen readers hear of the current row of a list, tree or table that it has the focus only
/// while the view has it: as the toolkit tells it, each view has a focused row at any time. All else of a
/// view and its rows stays as the toolkit tells it. Call before the first view is made; further calls do
/// nothing. Main thread.
void tellFocusOfItemViews();

} // namespace quorvin
