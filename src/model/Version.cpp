// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/Version.h"

namespace quorvin {

QString programVersion()
{
    return QStringLiteral("v" QUORVIN_VERSION " (" QUORVIN_BUILD ")");
}

} // namespace quorvin
