// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QFileDialog;

namespace quorvin {

class LiveSettings;

/// Lets the dialog begin in the folder in which one of them was used last, in this run or an earlier one, and
/// remembers its own. `settings` must outlive the dialog. Main thread.
void startInLastFolder(QFileDialog &dialog, LiveSettings &settings);

} // namespace quorvin
