// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/MapProgram.h"

#include "places/PositionText.h"
#include "shell/desktop/GioLibrary.h"

namespace quorvin {

bool hasMapProgram()
{
    const GioLibrary::AppInfoPtr info{GioLibrary::instance().defaultForScheme("geo")};
    return info != nullptr;
}

Expected<void> openInMapProgram(const Location &location)
{
    const QByteArray uri = positionText(location, PositionNotation::GeoUri).toLatin1();
    GError *error = nullptr;
    const GioLibrary &gio = GioLibrary::instance();
    if (gio.launchDefault(uri.constData(), static_cast<GAppLaunchContext *>(nullptr), &error))
        return {};
    return failure(gio.take(error));
}

} // namespace quorvin
