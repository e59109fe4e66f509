// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/exiftool/ExifToolImageInfo.h"

#include "model/Log.h"
#include "platform/NativePath.h"
#include "process/oExifToolStayOpenProcess.h"
#include "readers/exiftool/ExifToolJson.h"

#include <memory>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

namespace quorvin {

namespace {

constexpr qsizetype kLeastFields = 4;
constexpr qsizetype kPlaceOfCopy = 3; ///< of the field that tells copies of a tag apart

using ObjectPtr = std::shared_ptr<Json5Object>;

/// The groups of a tag and its name; empty for what is no tag to show.
QStringList fieldsOf(const QString &key)
{
    QStringList fields = key.split(u':');
    if (fields.size() > kLeastFields && fields[kPlaceOfCopy].isEmpty())
        fields.removeAt(kPlaceOfCopy);
    const bool isOfProgram = fields.value(1) == QLatin1String("ExifTool");
    const bool isOfFileSystem
        = fields.value(0) == QLatin1String("File") && fields.value(1) == QLatin1String("System");
    return fields.size() < kLeastFields || isOfProgram || isOfFileSystem ? QStringList() : fields;
}

/// Absent for a tag without label or value.
std::optional<ExifToolImageInfo::Item> itemOf(const Json5Value &tag, const QString &group)
{
    const auto *object = std::get_if<ObjectPtr>(&tag);
    if (!object)
        return std::nullopt;
    const auto &members = (*object)->members;
    const auto label = members.constFind(QStringLiteral("desc"));
    const auto value = members.constFind(QStringLiteral("val"));
    if (label == members.cend() || value == members.cend())
        return std::nullopt;
    return ExifToolImageInfo::Item{textOfJson(*value), textOfJson(*label),
                                   group == QLatin1String("File") ? QStringLiteral("Container") : group};
}

} // namespace

Expected<ExifToolImageInfo> ExifToolImageInfo::initWithFilename(const QString &filename,
                                                                oExifToolStayOpenProcess *exifTool)
{
    if (!exifTool) {
        qCInfo(lcQuorvin) << "No ExifTool process";
        return failure(QStringLiteral("exiftool is not installed"));
    }
    return exifTool->outputWithArguments({encodePath(filename), "-json", "-l", "-G:0:1:2:4", "-D", "-a"})
        .and_then(initWithOutput);
}

Expected<ExifToolImageInfo> ExifToolImageInfo::initWithOutput(const QByteArray &json)
{
    const auto root = rootOfOutput(json);
    if (!root)
        return tl::unexpected(root.error());
    ExifToolImageInfo info;
    for (const QString &key : root->keysOrder) {
        const QStringList fields = fieldsOf(key);
        if (fields.isEmpty())
            continue;
        const auto item = itemOf(root->members->members.value(key), fields[1]);
        if (!item)
            continue;
        const bool isDuration = fields.last() == QLatin1String("Duration");
        const QString itemKey = isDuration ? fields.last() : fields.join(u'.');
        info._data.exifData.insert(itemKey, *item);
        info._data.exifKeys.append(itemKey);
    }
    return info;
}

} // namespace quorvin
