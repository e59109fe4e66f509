// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filefacts/FileStream.h"

#include "filefacts/AttributeFacts.h"
#include "filefacts/ExtendedAttributes.h"
#include "filefacts/FileHash.h"
#include "filefacts/Sizes.h"
#include "platform/FileKinds.h"
#include "platform/LocalDates.h"
#include "platform/NativePath.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <string_view>

namespace quorvin {

namespace {

using enum ParameterFlag;

/// A parameter of the file stream: how it is called, where it shows, and its value; absent leaves it out.
struct Row {
    QLatin1String key;
    QLatin1String label;
    ParameterFlags flags;
    std::optional<QString> (*value)(const QString &filename, const FileFacts &facts);
};

QString sizeAndBytes(const FileFacts &facts)
{
    const QString bytes = facts.filesizeinbytes + QLatin1String(" bytes");
    return facts.filesize == bytes ? bytes : facts.filesize + QLatin1String(" (") + bytes + u')';
}

template <auto Member>
std::optional<QString> fact(const QString &, const FileFacts &facts)
{
    return facts.*Member;
}

using L = QLatin1String;

constexpr std::array kRows{
    Row{L("FileName"), L("Name"), None,
        [](const QString &filename, const FileFacts &) {
            return std::optional(lastPathComponent(filename));
        }},
    Row{L("FileSize"), L("Size"), SkipInExtended | SkipInComparison, fact<&FileFacts::filesize>},
    Row{L("FileSizeAndBytes"), L("Size"), SkipInExport,
        [](const QString &, const FileFacts &facts) { return std::optional(sizeAndBytes(facts)); }},
    Row{L("FileSizeInBytes"), L("Size"), SkipInExtended | SkipInComparison,
        [](const QString &, const FileFacts &facts) { return std::optional(facts.filesizeinbytes); }},
    Row{L("FileKind"), L("Kind"), IsPrivateInfo, fact<&FileFacts::fileKind>},
    Row{L("FileUTI"), L("UTI"), IsPrivateInfo, fact<&FileFacts::fileUTI>},
    Row{L("FileLocation"), L("Location"), IsPrivateInfo,
        [](const QString &filename, const FileFacts &) {
            return std::optional(withoutLastPathComponent(filename));
        }},
    Row{L("LocalizedCreationDate"), L("Created"), SkipInExport, fact<&FileFacts::localizedCreationDate>},
    Row{L("CreationDate"), L("Created"), SkipInExtended | SkipInComparison, fact<&FileFacts::creationDate>},
    Row{L("LocalizedModificationDate"), L("Modified"), SkipInExport,
        fact<&FileFacts::localizedModificationDate>},
    Row{L("ModificationDate"), L("Modified"), SkipInExtended | SkipInComparison,
        fact<&FileFacts::modificationDate>},
    Row{L("FileFinderComment"), L("Finder comment"), IsPrivateInfo, fact<&FileFacts::finderComment>},
    Row{L("FileLabel"), L("Label"), IsPrivateInfo, fact<&FileFacts::fileLabelName>},
    Row{L("FileTags"), L("Tags"), IsPrivateInfo, fact<&FileFacts::fileTagNames>},
    Row{L("FileFrom"), L("Downloaded From"), IsPrivateInfo, fact<&FileFacts::fileFrom>},
    Row{L("FileAuthors"), L("Authors"), IsPrivateInfo, fact<&FileFacts::fileAuthors>},
    Row{L("FileFromDate"), L("Downloaded Date"), IsPrivateInfo, fact<&FileFacts::fileFromDate>},
    Row{L("MD5Hash"), L("MD5 hash"), None, fact<&FileFacts::md5>},
    Row{L("SHA1Hash"), L("SHA1 hash"), None, fact<&FileFacts::sha1>},
};

/// The flat list has the same rows in this order.
constexpr std::array kFlatOrder{
    L("FileName"),
    L("FileSize"),
    L("FileSizeInBytes"),
    L("FileSizeAndBytes"),
    L("FileKind"),
    L("FileUTI"),
    L("FileLocation"),
    L("LocalizedCreationDate"),
    L("LocalizedModificationDate"),
    L("CreationDate"),
    L("ModificationDate"),
    L("FileFinderComment"),
    L("FileLabel"),
    L("FileFrom"),
    L("FileAuthors"),
    L("FileFromDate"),
    L("FileTags"),
    L("MD5Hash"),
    L("SHA1Hash"),
};
constexpr std::string_view lettersOf(QLatin1String key)
{
    return {key.data(), static_cast<std::size_t>(key.size())};
}
static_assert(std::ranges::is_permutation(kFlatOrder, kRows, {}, lettersOf,
                                          [](const Row &row) { return lettersOf(row.key); }));

void readSizeAndDates(const RegularFile &file, bool useSIUnits, FileFacts &facts)
{
    const auto size = static_cast<qint64>(file.size());
    facts.filesize = useSIUnits ? Utilities::filesizeToMacHumanString(size)
                                : Utilities::filesizeToBase2HumanString(size);
    facts.filesizeinbytes = QString::number(file.size());
    facts.localizedModificationDate = localizedDate(file.modificationTime());
    facts.modificationDate = fixedDate(file.modificationTime());
    if (const auto created = file.creationTime()) {
        facts.localizedCreationDate = localizedDate(*created);
        facts.creationDate = fixedDate(*created);
    }
}

void readKind(const RegularFile &file, const QString &resolvedPath, FileFacts &facts)
{
    QFile content;
    if (!content.open(file.descriptor(), QIODevice::ReadOnly))
        return;
    const FileKind kind = fileKind(lastPathComponent(resolvedPath), content);
    if (!kind.identifier.isEmpty()) {
        facts.fileKind = kind.description;
        facts.fileUTI = kind.identifier;
    }
}

enum class Attributes { All, OnlyLists };

void readAttributes(const RegularFile &file, Attributes wanted, FileFacts &facts)
{
    // Most files have none, and the path through the descriptor is long.
    if (!Utilities::hasExtendedAttributes(file.descriptor()))
        return;
    AttributeFacts attributes = readAttributeFacts(file.descriptorPath());
    for (auto *value : {&attributes.whereFroms, &attributes.authors, &attributes.downloadedDate}) {
        if (wanted == Attributes::OnlyLists && *value && (*value)->typeId() != QMetaType::QVariantList)
            value->reset();
    }
    facts.finderComment = attributes.comment;
    facts.fileFrom = joinedText(attributes.whereFroms);
    facts.fileAuthors = joinedText(attributes.authors);
    facts.fileFromDate = joinedDates(attributes.downloadedDate);
    if (!attributes.tags.isEmpty())
        facts.fileTagNames = attributes.tags.join(QLatin1String(", "));
}

void readHashes(const RegularFile &file, const DigestWatch &watch, FileFacts &facts)
{
    const auto hashes
        = FileHash::hashesOfFile(file.descriptor(), {FileHash::Digest::MD5, FileHash::Digest::SHA1}, watch);
    if (!hashes)
        return;
    facts.md5 = hashes->at(0);
    facts.sha1 = hashes->at(1);
}

} // namespace

FileFacts getFileInfo(const RegularFile &file, const RecordOptions &options, const DigestWatch &watch)
{
    FileFacts facts;
    const QString resolvedPath = file.resolvedPath();
    readSizeAndDates(file, options.useSIUnits, facts);
    readKind(file, resolvedPath, facts);
    if (!options.skipExtAttributes)
        readAttributes(file, Attributes::All, facts);
    if (options.computeFileHashes)
        readHashes(file, watch, facts);
    return facts;
}

void prepareFileStream(const QString &filename, const FileFacts &facts, PrivateFacts privacy,
                       ParameterGroups &groups)
{
    static const auto terms = [] {
        std::array<TermPtr, kRows.size()> made;
        std::ranges::transform(kRows, made.begin(),
                               [](const Row &row) { return internTerm(row.key, row.label); });
        return made;
    }();

    groups.beginGroup(QStringLiteral("File"));
    groups.beginStream(0);
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        const auto value = kRows[i].value(filename, facts);
        if (!value)
            continue;
        ParameterFlags flags = kRows[i].flags;
        flags.setFlag(IsPrivateInTreeOnly,
                      privacy == PrivateFacts::InTreeOnly && flags.testFlag(IsPrivateInfo));
        groups.add(terms[i], *value, flags);
    }
}

FlatInfo prepareFileInfo(const QString &filename, const RegularFile &file, const RecordOptions &options,
                         const FileFacts &known)
{
    FileFacts facts = known;
    if (!options.skipExtAttributes)
        readAttributes(file, Attributes::OnlyLists, facts);
    FlatInfo info;
    for (const QLatin1String key : kFlatOrder) {
        const Row &row = *std::ranges::find(kRows, key, &Row::key);
        auto value = row.value(filename, facts);
        if (!value)
            continue;
        if (key == L("FileSizeAndBytes"))
            value = facts.filesize == facts.filesizeinbytes
                ? facts.filesizeinbytes
                : facts.filesize + L(" (") + facts.filesizeinbytes + u')';
        info.addItem(std::make_shared<const FlatItem>(
            FlatItem::itemWithKey(key, *value, QString(row.label), row.flags.testFlag(IsPrivateInfo),
                                  row.flags.testFlag(SkipInExtended), row.flags.testFlag(SkipInExport),
                                  row.flags.testFlag(SkipInComparison))));
    }
    return info;
}

} // namespace quorvin
