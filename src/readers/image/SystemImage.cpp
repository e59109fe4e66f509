// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/SystemImage.h"

#include "filefacts/FileStream.h"
#include "pictures/ImageSource.h"
#include "platform/FileOrder.h"
#include "readers/image/ImageGeneral.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

constexpr ParameterFlags kTreeOnly = ParameterFlag::SkipInExport | ParameterFlag::SkipInComparison;

/// Properties by group; those of no group are in "{Container}".
QVariantMap grouped(const QVariantMap &properties)
{
    QVariantMap groups;
    QVariantMap container;
    for (auto property = properties.begin(); property != properties.end(); ++property) {
        const bool own
            = property->typeId() == QMetaType::QVariantMap || property->typeId() == QMetaType::QVariantList;
        (own ? groups : container).insert(property.key(), *property);
    }
    QVariantMap tiff = groups.value(u"{TIFF}"_s).toMap();
    if (container.contains(u"Orientation"_s) && tiff.remove(u"Orientation"_s) > 0)
        groups.insert(u"{TIFF}"_s, tiff);
    if (!container.isEmpty())
        groups.insert(u"{Container}"_s, container);
    return groups;
}

QString textOf(const QVariantMap &map)
{
    return QString::fromUtf8(QJsonDocument(QJsonObject::fromVariantMap(map)).toJson()).trimmed();
}

QVariant converted(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return value.toStringList().join(", "_L1);
    case QMetaType::QVariantMap:
        return textOf(value.toMap());
    case QMetaType::QByteArray:
        return u"(Binary data, %1 bytes)"_s.arg(value.toByteArray().size());
    default:
        return value;
    }
}

QStringList sortedKeys(const QVariantMap &map)
{
    const QStringList keys = map.keys();
    QStringList sorted;
    for (const std::size_t place : fileBrowserOrder(keys))
        sorted.append(keys[static_cast<qsizetype>(place)]);
    return sorted;
}

/// Adds the items of one group as a group of the record.
void addGroup(const QString &name, const std::vector<FlatInfo::ItemPtr> &items, ParameterGroups &groups)
{
    groups.beginGroup(name);
    groups.beginStream(0);
    for (const auto &item : items) {
        ParameterFlags flags = kTreeOnly;
        flags.setFlag(ParameterFlag::SkipInExtended, item->skipInExtended);
        flags.setFlag(ParameterFlag::IsPrivateInfo, item->isPrivateInfo);
        groups.add(internTerm(item->key, item->label.value_or(item->key)), item->value, flags);
    }
}

} // namespace

Expected<FlatInfo> imageioInfoFromFile(const QString &path)
{
    const auto properties = imageProperties(path);
    if (!properties)
        return tl::unexpected(properties.error());
    const QVariantMap groups = grouped(*properties);
    FlatInfo info;
    for (auto group = groups.begin(); group != groups.end(); ++group) {
        const QString bare = group.key().sliced(1).chopped(1);
        const QString name = bare == "TIFF"_L1 ? u"Container"_s : bare;
        const QVariantMap members = group->toMap();
        for (const QString &key : sortedKeys(members))
            info.addItem(std::make_shared<const FlatItem>(
                FlatItem::itemWithKey(name + u'.' + key, key, converted(members.value(key)))));
    }
    return info;
}

GeneralFacts prepareImageioGeneral(const FlatInfo &info, const RegularFile &file,
                                   const RecordOptions &options, const DigestWatch &watch)
{
    GeneralFacts general;
    static_cast<FileFacts &>(general) = getFileInfo(file, options, watch);
    general.format = u"HEIC"_s;
    const auto width = info[u"Container.PixelWidth"_s];
    const auto height = info[u"Container.PixelHeight"_s];
    if (width && height)
        setImageSize(width->value, height->value, general);
    return general;
}

void prepareImageioExtended(const FlatInfo &info, const FlatInfo &fileInfo, ParameterGroups &groups)
{
    addGroup(u"File"_s, fileInfo.items(), groups);
    QStringList order;
    QHash<QString, std::vector<FlatInfo::ItemPtr>> members;
    for (const auto &item : info.items()) {
        const qsizetype point = item->key.indexOf(u'.');
        if (point < 0)
            continue;
        const QString group = item->key.left(point);
        if (!members.contains(group))
            order.append(group);
        members[group].push_back(item);
    }
    for (const QString &group : order)
        addGroup(group, members.value(group), groups);
}

Expected<RecordContents> readSystemImage(const QString &filename, const RegularFile &file,
                                         const RecordOptions &options, const DigestWatch &watch)
{
    const auto info = imageioInfoFromFile(filename);
    if (!info)
        return failure(u"Not an image"_s);
    RecordContents record;
    record.filename = filename;
    record.isImage = true;
    record.general = prepareImageioGeneral(*info, file, options, watch);
    prepareImageioExtended(*info, prepareFileInfo(filename, file, options, record.general), record.groups);
    return record;
}

Expected<QString> imageioReport(const QString &path)
{
    return imageProperties(path).map(
        [&](const QVariantMap &properties) { return path + u' ' + textOf(properties); });
}

} // namespace quorvin
