// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/mediainfo/StandardParameters.h"

#include "readers/mediainfo/MediaInfoLibrary.h"

#include <QHash>

#include <array>

namespace quorvin::StandardParameters {

namespace {

std::vector<Section> readList()
{
    std::vector<Section> sections;
    for (const QString &line : text().split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList fields = line.split(u';');
        if (fields.size() == 1)
            sections.push_back({line.trimmed(), {}});
        else if (!sections.empty())
            sections.back().names.append(fields.first().trimmed());
    }
    return sections;
}

using Indexes = std::array<QHash<QString, qint64>, kStreamKinds>;

const Indexes &indexes()
{
    static const Indexes byKind = [] {
        Indexes made;
        for (const Section &section : list()) {
            auto &index = made[placeOf(streamStringToKind(section.heading))];
            for (const QString &name : section.names)
                index.insert(name, index.size());
        }
        return made;
    }();
    return byKind;
}

} // namespace

const QString &text()
{
    static const QString list = mi::option(nullptr, QStringLiteral("Info_Parameters_CSV"), QString());
    return list;
}

const std::vector<Section> &list()
{
    static const std::vector<Section> sections = readList();
    return sections;
}

qint64 count(StreamKind kind)
{
    return indexes()[placeOf(kind)].size();
}

std::optional<qint64> indexOf(StreamKind kind, const QString &name)
{
    const auto &index = indexes()[placeOf(kind)];
    const auto found = index.constFind(name);
    return found == index.constEnd() ? std::nullopt : std::optional(*found);
}

bool isStreamSize(const QString &name)
{
    return name == QLatin1String("StreamSize/String") || name == QLatin1String("Source_StreamSize/String");
}

} // namespace quorvin::StandardParameters
