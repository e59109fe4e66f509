// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/mediainfo/StreamKind.h"

#include "model/EnumNames.h"

#include <algorithm>

namespace quorvin {

namespace {

struct Names {
    StreamKind kind;
    QLatin1String library;
    QLatin1String human;
};

using L = QLatin1String;

constexpr std::array kNames{
    Names{StreamKind::General, L("General"), L("Container")},
    Names{StreamKind::Video, L("Video"), L("Video")},
    Names{StreamKind::Audio, L("Audio"), L("Audio")},
    Names{StreamKind::Text, L("Text"), L("Subtitles")},
    Names{StreamKind::Other, L("Other"), L("Other")},
    Names{StreamKind::Image, L("Image"), L("Image")},
    Names{StreamKind::Menu, L("Menu"), L("Menu/Chapters")},
};
static_assert(hasRowOfEach(kNames, &Names::kind));
static_assert(kNames.size() == kStreamKinds);

const Names *namesOf(qint32 kind)
{
    return kind >= 0 && kind < kStreamKinds ? &kNames[static_cast<std::size_t>(kind)] : nullptr;
}

} // namespace

std::optional<QString> streamKindToString(qint32 kind)
{
    const Names *found = namesOf(kind);
    return found ? std::optional<QString>(found->library) : std::nullopt;
}

std::optional<QString> streamKindToHumanString(qint32 kind)
{
    const Names *found = namesOf(kind);
    return found ? std::optional<QString>(found->human) : std::nullopt;
}

QString streamKindToHumanString(StreamKind kind)
{
    return kNames[placeOf(kind)].human;
}

StreamKind streamStringToKind(QStringView name)
{
    const auto found = std::ranges::find_if(kNames, [&](const Names &row) { return row.library == name; });
    return found == kNames.end() ? StreamKind::General : static_cast<StreamKind>(found - kNames.begin());
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
