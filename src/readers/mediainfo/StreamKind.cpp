// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/mediainfo/StreamKind.h"

#include <algorithm>

namespace quorvin {

namespace {

struct Names {
    QString library;
    QString human;
};

const std::array<Names, kStreamKinds> &names()
{
    static const std::array<Names, kStreamKinds> table{{
        {QStringLiteral("General"), QStringLiteral("Container")},
        {QStringLiteral("Video"), QStringLiteral("Video")},
        {QStringLiteral("Audio"), QStringLiteral("Audio")},
        {QStringLiteral("Text"), QStringLiteral("Subtitles")},
        {QStringLiteral("Other"), QStringLiteral("Other")},
        {QStringLiteral("Image"), QStringLiteral("Image")},
        {QStringLiteral("Menu"), QStringLiteral("Menu/Chapters")},
    }};
    return table;
}

const Names *namesOf(qint32 kind)
{
    return kind >= 0 && kind < kStreamKinds ? &names()[static_cast<std::size_t>(kind)] : nullptr;
}

} // namespace

std::optional<QString> streamKindToString(qint32 kind)
{
    const Names *found = namesOf(kind);
    return found ? std::optional(found->library) : std::nullopt;
}

std::optional<QString> streamKindToHumanString(qint32 kind)
{
    const Names *found = namesOf(kind);
    return found ? std::optional(found->human) : std::nullopt;
}

QString streamKindToHumanString(StreamKind kind)
{
    return names()[placeOf(kind)].human;
}

StreamKind streamStringToKind(QStringView name)
{
    const auto found = std::ranges::find(names(), name, &Names::library);
    return found == names().end() ? StreamKind::General : static_cast<StreamKind>(found - names().begin());
}

QStringList arrayOfStreamNames()
{
    return {QStringLiteral("General"), QStringLiteral("Video"), QStringLiteral("Audio"),
            QStringLiteral("Text"),    QStringLiteral("Menu"),  QStringLiteral("Chapters"),
            QStringLiteral("Image")};
}

QStringList arrayOfStreamsWithHumanNames()
{
    return {QStringLiteral("Container"), QStringLiteral("Video"),         QStringLiteral("Audio"),
            QStringLiteral("Subtitles"), QStringLiteral("Menu/Chapters"), QStringLiteral("Chapters"),
            QStringLiteral("Image")};
}

} // namespace quorvin
