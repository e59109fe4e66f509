// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/QuorvinData.h"

#include <QString>

namespace quorvin {

/// One analysed file of an export.
struct ExportEntry {
    QString filename; ///< full path
    QString pathPrefix; ///< the path as the list shows it
    QuorvinDataPtr data; ///< never null
};

} // namespace quorvin
