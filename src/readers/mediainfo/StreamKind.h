// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <optional>

namespace quorvin {

/// The kinds of streams, with the values of the MediaInfo library.
enum StreamKind : qint32 { General = 0, Video = 1, Audio = 2, Text = 3, Other = 4, Image = 5, Menu = 6 };

inline constexpr int kStreamKinds = 7;

/// The order in which the kinds stand in a record.
inline constexpr std::array<StreamKind, kStreamKinds> kStreamKindOrder{General, Video, Audio, Text,
                                                                       Menu,    Other, Image};

/// "General", "Video", "Audio", "Text", "Other", "Image", "Menu"; absent for any other value.
std::optional<QString> streamKindToString(qint32 kind);
/// "Container", "Video", "Audio", "Subtitles", "Other", "Image", "Menu/Chapters"; absent for any other value.
std::optional<QString> streamKindToHumanString(qint32 kind);
/// The reverse of `streamKindToString`; every other string gives General.
StreamKind streamStringToKind(QStringView name);

QStringList arrayOfStreamNames();
QStringList arrayOfStreamsWithHumanNames();

} // namespace quorvin
