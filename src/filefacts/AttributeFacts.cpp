// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filefacts/AttributeFacts.h"

#include "filefacts/ExtendedAttributes.h"
#include "model/Log.h"
#include "platform/LocalDates.h"

#include <QDateTime>

namespace quorvin {

namespace {

constexpr QLatin1String kListSeparator(",\n");

std::optional<QString> desktopText(const QString &name, const QString &path)
{
    const auto bytes = Utilities::extendedAttributeData(name, path);
    if (!bytes)
        return std::nullopt;
    if (!bytes->isValidUtf8()) {
        qCInfo(lcQuorvin).noquote()
            << QStringLiteral("Failed to unserialize xattr %1: %2").arg(name, QLatin1String("not UTF-8"));
        return std::nullopt;
    }
    return QString::fromUtf8(*bytes);
}

std::optional<QVariant> known(Expected<QVariant> value)
{
    return value ? std::optional(*std::move(value)) : std::nullopt;
}

/// The attribute of the vocabulary if it is set, malformed or not; only otherwise the desktop's.
std::optional<QVariant> attribute(QLatin1String name, const QString &path)
{
    if (Utilities::extendedAttributeData(name, path))
        return known(Utilities::extendedAttribute(name, path));
    const auto text = desktopText(Utilities::desktopAttributeFor(name), path);
    return text ? std::optional<QVariant>(*text) : std::nullopt;
}

/// A stored tag is its name, or its name, a line feed and the number of its colour.
QString nameOfTag(const QString &tag)
{
    return tag.section(u'\n', 0, 0).trimmed();
}

QStringList readTags(const QString &path)
{
    const auto stored = attribute(Utilities::kTagsAttribute, path);
    if (!stored)
        return {};
    const bool isList = stored->typeId() == QMetaType::QVariantList;
    QStringList tags;
    for (const QString &tag : isList ? stored->toStringList() : stored->toString().split(u','))
        tags.append(nameOfTag(tag));
    tags.removeAll(QString());
    return tags;
}

} // namespace

AttributeFacts readAttributeFacts(const QString &path)
{
    AttributeFacts facts;
    // Most files have none, and one question is cheaper than nine.
    if (const auto names = Utilities::listExtendedAttributesOnFileAtPath(path); !names || names->isEmpty())
        return facts;
    const auto comment = attribute(Utilities::kCommentAttribute, path);
    if (comment && comment->typeId() == QMetaType::QString)
        facts.comment = comment->toString();
    facts.whereFroms = attribute(Utilities::kWhereFromsAttribute, path);
    facts.authors = attribute(Utilities::kAuthorsAttribute, path);
    facts.downloadedDate = known(
        Utilities::extendedAttribute(QLatin1String("com.apple.metadata:kMDItemDownloadedDate"), path));
    facts.tags = readTags(path);
    return facts;
}

std::optional<QString> joinedText(const std::optional<QVariant> &value)
{
    if (!value)
        return std::nullopt;
    if (value->typeId() == QMetaType::QString)
        return value->toString().isEmpty() ? std::nullopt : std::optional(value->toString());
    if (value->typeId() == QMetaType::QVariantList && !value->toList().isEmpty())
        return value->toStringList().join(kListSeparator);
    return std::nullopt;
}

std::optional<QString> joinedDates(const std::optional<QVariant> &value)
{
    if (!value)
        return std::nullopt;
    const QVariantList dates
        = value->typeId() == QMetaType::QVariantList ? value->toList() : QVariantList{*value};
    QStringList texts;
    for (const QVariant &date : dates) {
        if (date.typeId() == QMetaType::QDateTime)
            texts.append(localizedDate(date.toDateTime().toMSecsSinceEpoch()));
    }
    return texts.isEmpty() ? std::nullopt : std::optional(texts.join(kListSeparator));
}

} // namespace quorvin
