// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace quorvin {

/// What every program of the house does first of all, before any thread and before any file is opened. A
/// standard stream that was closed is occupied, so that no file of ours becomes one; using it fails as
/// before. Temporary files go when a signal ends the process. A file that grows beyond the user's limit is a
/// failed write, not the end.
void setUpProcess();

} // namespace quorvin
