// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/MapProgram.h"

#include "places/PositionText.h"

#include <gio/gio.h>

namespace quorvin {

bool hasMapProgram()
{
    GAppInfo *info = g_app_info_get_default_for_uri_scheme("geo");
    if (info)
        g_object_unref(info);
    return info != nullptr;
}

Expected<void> openInMapProgram(const Location &location)
{
    const QByteArray uri = positionText(location, PositionNotation::GeoUri).toLatin1();
    GError *error = nullptr;
    if (g_app_info_launch_default_for_uri(uri.constData(), nullptr, &error))
        return {};
    const QString reason = QString::fromUtf8(error->message);
    g_error_free(error);
    return failure(reason);
}

} // namespace quorvin
