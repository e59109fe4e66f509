// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <optional>

namespace quorvin {

/// The kinds of streams, with the values of the MediaInfo library.
enum class StreamKind : qint32 {
    General = 0,
    Video = 1,
    Audio = 2,
    Text = 3,
    Other = 4,
    Image = 5,
    Menu = 6
};

inline constexpr int kStreamKinds = 7;

/// The order in which the kinds stand in a record.
inline constexpr std::array kStreamKindOrder{
    StreamKind::General, StreamKind::Video, StreamKind::Audio, StreamKind::Text,
    StreamKind::Menu,    StreamKind::Other, StreamKind::Image,
};
static_assert(kStreamKindOrder.size() == kStreamKinds);

/// The place of a kind in a table of all.
constexpr std::size_t placeOf(StreamKind kind)
{
    return static_cast<std::size_t>(kind);
}

/// "General", "Video", "Audio", "Text", "Other", "Image", "Menu"; absent for any other value.
std::optional<QString> streamKindToString(qint32 kind);
/// "Container", "Video", "Audio", "Subtitles", "Other", "Image", "Menu/Chapters"; absent for any other value.
std::optional<QString> streamKindToHumanString(qint32 kind);
QString streamKindToHumanString(StreamKind kind);
/// The reverse of `streamKindToString`; every other string gives General.
StreamKind streamStringToKind(QStringView name);

QStringList arrayOfStreamNames();
QStringList arrayOfStreamsWithHumanNames();

} // namespace quorvin
