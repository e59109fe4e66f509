// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/RawReport.h"

#include "model/FailureKind.h"
#include "platform/RegularFile.h"
#include "readers/Engines.h"
#include "readers/IsoMetadata.h"
#include "readers/exiftool/ExifToolUtilities.h"
#include "readers/image/SystemImage.h"
#include "readers/image/oEXIV2Reports.h"
#include "readers/mediainfo/ParameterList.h"
#include "readers/mediainfo/oMediaInfo.h"

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

struct Source {
    QLatin1String name;
    bool takesFiles;
    Expected<QString> (*report)(const QString &path);
    /// In place of that, of a source that needs exiftool.
    Expected<QString> (*reportWith)(const QString &path, oExifToolStayOpenProcess *exifTool) = nullptr;
};

constexpr std::array kSources{
    Source{QLatin1String("mediainfo"), true, oMediaInfo::InformOnFile},
    Source{QLatin1String("mediainfo-complete"), true, oMediaInfo::InformCompleteOnFile},
    Source{QLatin1String("mediainfo-trace"), true, oMediaInfo::InformTraceOnFile},
    Source{QLatin1String("exiv2"), true, oEXIV2Reports::outputOnFile},
    Source{QLatin1String("exiv2-structure"), true, oEXIV2Reports::structureOfFile},
    Source{QLatin1String("xmp"), true, oEXIV2Reports::rawXmpOfFile},
    Source{QLatin1String("xmp-arranged"), true, oEXIV2Reports::arrangedXmpOfFile},
    Source{QLatin1String("exiftool"), true, nullptr, ExifToolUtilities::exiftoolOutputForFile},
    Source{QLatin1String("engines"), true, nullptr, enginesReport},
    Source{QLatin1String("system-image"), true, imageioReport},
    Source{QLatin1String("iso-metadata"), true, isoMetadataReport},
    Source{QLatin1String("parameters"), false,
           [](const QString &) { return Expected<QString>(oMediaInfo::parameterReport()); }},
    Source{QLatin1String("parameters-plist"), false,
           [](const QString &) { return Expected<QString>(parameterPropertyList()); }},
};

const Source &sourceNamed(const QString &name)
{
    const auto found
        = std::ranges::find_if(kSources, [&](const Source &source) { return source.name == name; });
    return found == kSources.end() ? kSources.front() : *found;
}

} // namespace

QStringList rawSources()
{
    QStringList names;
    for (const Source &source : kSources)
        names.append(source.name);
    return names;
}

bool rawSourceTakesFiles(const QString &source)
{
    return sourceNamed(source).takesFiles;
}

bool rawSourceUsesExifTool(const QString &source)
{
    return sourceNamed(source).reportWith != nullptr;
}

Expected<QString> rawReport(const QString &source, const QString &path, oExifToolStayOpenProcess *exifTool)
{
    const Source &row = sourceNamed(source);
    if (row.takesFiles) {
        if (const auto file = RegularFile::open(path); !file)
            return tl::unexpected(file.error());
    }
    if (row.reportWith)
        return row.reportWith(path, exifTool);
    // Which library refused and why went to the log.
    return row.report(path).map_error(
        [](const Error &) { return failure(FailureKind::NotUnderstood).value(); });
}

} // namespace quorvin
