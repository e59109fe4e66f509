// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/GioLibrary.h"

namespace quorvin {

const GioLibrary &GioLibrary::instance()
{
    static const GioLibrary library;
    return library;
}

QString GioLibrary::take(GError *error) const
{
    if (!error)
        return QStringLiteral("the library of the desktop's applications is missing");
    QString reason = QString::fromUtf8(error->message);
    freeError(error);
    return reason;
}

} // namespace quorvin
