// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/ViewChoice.h"

#include <QMimeDatabase>

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

/// Media whose names do not begin with what they are.
constexpr std::array kMedia{
    QLatin1String("application/ogg"),
    QLatin1String("application/mxf"),
    QLatin1String("application/vnd.rn-realmedia"),
    QLatin1String("application/x-matroska"),
    QLatin1String("application/vnd.ms-asf"),
};

bool isText(const QMimeType &type)
{
    return type.inherits(QStringLiteral("text/plain"));
}

bool isMedium(const QMimeType &type)
{
    return std::ranges::any_of(kMedia, [&](QLatin1String name) { return type.inherits(name); })
        || type.name().startsWith(QLatin1String("audio/")) || type.name().startsWith(QLatin1String("video/"));
}

/// No medium is without them; a list of addresses is.
bool hasControlBytes(const QByteArray &head)
{
    return std::ranges::any_of(head, [](char byte) {
        return byte >= 0 && byte < ' ' && byte != '\t' && byte != '\n' && byte != '\r';
    });
}

PanelView viewOf(const QMimeType &type, const QMimeType &content, const QByteArray &head)
{
    if (isText(type) || isText(content) || (isMedium(type) && !hasControlBytes(head)))
        return PanelView::Text;
    if (type.name().startsWith(QLatin1String("image/")))
        return PanelView::Picture;
    return isMedium(type) ? PanelView::Medium : PanelView::Facts;
}

} // namespace

ViewChoice viewFor(const QString &fileName, const QByteArray &head)
{
    const QMimeDatabase types;
    const QMimeType content = types.mimeTypeForData(head);
    QMimeType type = types.mimeTypeForFileNameAndData(fileName, head);
    // A name that says nothing, or a name against which the bytes speak.
    if (type.isDefault() || (isMedium(content) && !isMedium(type)))
        type = content;
    ViewChoice choice{viewOf(type, content, head), !type.name().startsWith(QLatin1String("audio/")), {}, {}};
    if (!type.isDefault()) {
        choice.kind = type.comment();
        choice.mimeName = type.name();
    }
    return choice;
}

} // namespace quorvin
