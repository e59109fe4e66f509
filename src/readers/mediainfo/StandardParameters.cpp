// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/mediainfo/StandardParameters.h"

#include "readers/mediainfo/MediaInfoLibrary.h"
#include "readers/mediainfo/oMediaInfo.h"

#include <QHash>

#include <array>
#include <mutex>

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
            auto &index = made[streamStringToKind(section.heading)];
            for (const QString &name : section.names)
                index.insert(name, index.size());
        }
        return made;
    }();
    return byKind;
}

ParameterRule ruleOf(const QString &name)
{
    if (isStreamSize(name))
        return ParameterRule::StreamSize;
    return name == QLatin1String("Duration/String") ? ParameterRule::Duration : ParameterRule::Plain;
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

std::optional<qint64> indexOf(StreamKind kind, const QString &name)
{
    const auto &index = indexes()[kind];
    const auto found = index.constFind(name);
    return found == index.constEnd() ? std::nullopt : std::optional(*found);
}

std::span<const ParameterFace> faces(const oMediaInfo &info, StreamKind kind)
{
    static std::array<std::once_flag, kStreamKinds> once;
    static std::array<std::vector<ParameterFace>, kStreamKinds> known;
    auto &facesOfKind = known[kind];
    std::call_once(once[kind], [&] {
        for (qint64 i = 0; i < indexes()[kind].size(); ++i)
            facesOfKind.push_back(faceOf(info, kind, 0, i));
    });
    return facesOfKind;
}

ParameterFace faceOf(const oMediaInfo &info, StreamKind kind, quint64 number, qint64 parameter)
{
    const QString name = info.GetI_Name(kind, number, parameter);
    const QString displayName = info.GetI(kind, number, parameter, oMediaInfo::DisplayName);
    const bool shown = info.GetI(kind, number, parameter, oMediaInfo::Options).startsWith(u'Y');
    return {internTerm(name, displayName.isEmpty() ? name : displayName), shown, ruleOf(name)};
}

bool isStreamSize(const QString &name)
{
    return name == QLatin1String("StreamSize/String") || name == QLatin1String("Source_StreamSize/String");
}

} // namespace quorvin::StandardParameters
