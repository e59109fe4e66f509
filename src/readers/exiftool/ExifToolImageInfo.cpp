// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/exiftool/ExifToolImageInfo.h"

#include "model/FailureKind.h"
#include "model/Log.h"
#include "platform/NativePath.h"
#include "process/oExifToolStayOpenProcess.h"
#include "readers/exiftool/ExifToolJson.h"

#include <QByteArrayView>

#include <optional>
#include <variant>

namespace quorvin {

namespace {

constexpr qsizetype kLeastFields = 4;
constexpr qsizetype kPlaceOfCopy = 3; ///< of the field that tells copies of a tag apart

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
    const auto *object = std::get_if<const Json5Object *>(&tag);
    const Json5Value *label = object ? (*object)->find("desc") : nullptr;
    const Json5Value *value = object ? (*object)->find("val") : nullptr;
    if (!label || !value)
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
        return failure(FailureKind::NoExifTool);
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
    QHash<QByteArrayView, const Json5Value *> tags;
    for (const Json5Member &member : root->root->members)
        tags.insert(member.key, &member.value);
    for (const QByteArrayView key : root->document->keysOrder()) {
        const QStringList fields = fieldsOf(QString::fromUtf8(key));
        if (fields.isEmpty())
            continue;
        const Json5Value *tag = tags.value(key);
        const auto item = tag ? itemOf(*tag, fields[1]) : std::nullopt;
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
