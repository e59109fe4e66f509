// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/mediainfo/ParameterFaces.h"

#include "readers/mediainfo/StandardParameters.h"

#include <array>
#include <mutex>
#include <vector>

namespace quorvin {

namespace {

ParameterRule ruleOf(const QString &name)
{
    if (StandardParameters::isStreamSize(name))
        return ParameterRule::StreamSize;
    return name == QLatin1String("Duration/String") ? ParameterRule::Duration : ParameterRule::Plain;
}

} // namespace

std::span<const ParameterFace> standardFaces(const oMediaInfo &info, StreamKind kind)
{
    static std::array<std::once_flag, kStreamKinds> once;
    static std::array<std::vector<ParameterFace>, kStreamKinds> known;
    auto &facesOfKind = known[placeOf(kind)];
    std::call_once(once[placeOf(kind)], [&] {
        for (qint64 i = 0; i < StandardParameters::count(kind); ++i)
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

} // namespace quorvin
