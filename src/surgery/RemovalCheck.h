// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "model/RemovalResult.h"

#include <QString>

namespace quorvin {

/// Compares a file with the copy that metadata was taken from: what `result` calls removed is gone, any other
/// item has the same bytes, and so has every part of the picture; of a kind that `options` remove whole, no
/// block is left. The error names what is not so. Any thread.
Expected<void> checkRemoval(const oEXIV2Metadata &options, const RemovalResult &result,
                            const QString &original, const QString &copy);

} // namespace quorvin
