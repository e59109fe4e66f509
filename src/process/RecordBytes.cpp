// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/RecordBytes.h"

#include "process/Values.h"

namespace quorvin {

template <>
struct Fields<Location> {
    static constexpr auto list = std::tuple(&Location::latitude, &Location::longitude);
};

template <>
struct Fields<StyledText> {
    static constexpr auto list
        = std::tuple(&StyledText::plain, &StyledText::titleStart, &StyledText::italicLength);
    static bool isValid(const StyledText &text)
    {
        const qsizetype length = text.plain.size();
        return text.titleStart >= -1 && text.titleStart <= length && text.italicLength >= 0
            && text.italicLength <= length;
    }
};

template <>
struct Fields<GeneralLine> {
    static constexpr auto list = std::tuple(&GeneralLine::key, &GeneralLine::name, &GeneralLine::value,
                                            &GeneralLine::streamIndex, &GeneralLine::isLocation);
};

template <>
struct Fields<Cover> {
    static constexpr auto list = std::tuple(&Cover::width, &Cover::height, &Cover::hasAlpha, &Cover::pixels);
    static bool isValid(const Cover &cover) { return cover.isValid(); }
};

template <>
struct Fields<GeneralFacts> {
    using Facts = GeneralFacts;
    static constexpr auto list
        = std::tuple(&Facts::filesize, &Facts::filesizeinbytes, &Facts::localizedModificationDate,
                     &Facts::localizedCreationDate, &Facts::modificationDate, &Facts::creationDate,
                     &Facts::fileKind, &Facts::fileUTI, &Facts::finderComment, &Facts::fileLabelName,
                     &Facts::fileFrom, &Facts::fileAuthors, &Facts::fileFromDate, &Facts::fileTagNames,
                     &Facts::md5, &Facts::sha1, &Facts::format, &Facts::formatProfile, &Facts::duration,
                     &Facts::bitrate, &Facts::imageSize, &Facts::imageSizeMP, &Facts::thumbCount,
                     &Facts::latitude, &Facts::longitude, &Facts::cover, &Facts::container, &Facts::lines);
};

namespace {

/// Of a record, all but its groups.
constexpr std::tuple kRecordFields(&RecordContents::filename, &RecordContents::duration,
                                   &RecordContents::isImage, &RecordContents::isVideo,
                                   &RecordContents::isAudio, &RecordContents::general,
                                   &RecordContents::mapLocation);

template <typename Codec, typename Record>
void visitRecord(Codec codec, Record &record)
{
    std::apply([&](auto... field) { (codec(record.*field), ...); }, kRecordFields);
}

constexpr qsizetype kLeastBytesOfTerm = 8;
constexpr qsizetype kLeastBytesOfGroup = 13;
constexpr qsizetype kLeastBytesOfSubgroup = 4;
constexpr qsizetype kLeastBytesOfStream = 8;
constexpr qsizetype kLeastBytesOfParameter = 15;

/// Names that a file brings along, and that no other has, are not kept for good.
TermPtr termOf(const QString &key, const QString &label)
{
    constexpr qsizetype kMostShared = 200;
    const bool isShared = key.size() <= kMostShared && label.size() <= kMostShared;
    return isShared ? internTerm(key, label) : std::make_shared<const Term>(Term{key, label});
}

bool readStream(ByteReader &in, const std::vector<TermPtr> &terms, ParameterGroups &groups)
{
    groups.beginStream(static_cast<int>(in.number<quint32>()));
    const quint32 count = in.count(kLeastBytesOfParameter);
    for (quint32 i = 0; i < count && in.ok(); ++i) {
        const auto number = in.number<quint32>();
        const auto flags = ParameterFlags::fromInt(in.number<quint8>());
        const auto subgroup = in.number<quint16>();
        const auto offset = in.number<quint32>();
        const auto length = in.number<quint32>();
        if (!in.ok() || number >= terms.size() || subgroup > groups.groups().back().subgroups.size()
            || !groups.addSlice(terms[number], offset, length, flags, subgroup))
            return false;
    }
    return in.ok();
}

bool readGroups(ByteReader &in, const std::vector<TermPtr> &terms, ParameterGroups &groups)
{
    if (!groups.setText(in.bytes()))
        return false;
    const quint32 groupCount = in.count(kLeastBytesOfGroup);
    for (quint32 i = 0; i < groupCount && in.ok(); ++i) {
        const QString key = in.text();
        groups.beginGroup(termOf(key, key)->key, in.number<quint8>() != 0);
        const quint32 subgroupCount = in.count(kLeastBytesOfSubgroup);
        for (quint32 j = 0; j < subgroupCount; ++j)
            groups.addSubgroup(in.text());
        const quint32 streamCount = in.count(kLeastBytesOfStream);
        for (quint32 j = 0; j < streamCount; ++j) {
            if (!readStream(in, terms, groups))
                return false;
        }
    }
    return in.ok();
}

} // namespace

QByteArray RecordEncoder::encode(const RecordContents &record)
{
    const bool startsAnew = _terms.empty() || _terms.size() >= kMaxConnectionTerms;
    if (startsAnew) {
        _terms.clear();
        _numbers.clear();
    }
    const std::size_t known = _terms.size();
    ByteWriter body;
    visitRecord(ValueWriter(body), record);
    body.bytes(record.groups.text());
    body.number(static_cast<quint32>(record.groups.groups().size()));
    for (const auto &group : record.groups.groups())
        writeGroup(body, record.groups, group);

    ByteWriter whole;
    whole.number(static_cast<quint8>(startsAnew));
    whole.number(static_cast<quint32>(_terms.size() - known));
    for (std::size_t i = known; i < _terms.size(); ++i) {
        whole.text(_terms[i]->key);
        whole.text(_terms[i]->label);
    }
    return whole.take().append(body.result());
}

void RecordEncoder::writeGroup(ByteWriter &out, const ParameterGroups &groups,
                               const ParameterGroups::Group &group)
{
    out.text(group.key);
    out.number(static_cast<quint8>(group.numbered));
    out.number(static_cast<quint32>(group.subgroups.size()));
    for (const QString &subgroup : group.subgroups)
        out.text(subgroup);
    out.number(static_cast<quint32>(group.streams.size()));
    for (const auto &stream : group.streams) {
        out.number(stream.number);
        out.number(stream.count);
        for (const auto &parameter : groups.parameters(stream)) {
            out.number(numberOf(parameter.term));
            out.number(static_cast<quint8>(parameter.flags.toInt()));
            out.number(parameter.subgroup);
            out.number(parameter.offset);
            out.number(parameter.length);
        }
    }
}

quint32 RecordEncoder::numberOf(const TermPtr &term)
{
    const auto [known, isNew] = _numbers.try_emplace(term.get(), static_cast<quint32>(_terms.size()));
    if (isNew)
        _terms.push_back(term);
    return known->second;
}

std::optional<RecordContents> RecordDecoder::decode(QByteArrayView bytes)
{
    ByteReader in(bytes);
    if (in.number<quint8>() != 0)
        _terms.clear();
    if (_terms.size() >= kMaxConnectionTerms)
        return std::nullopt;
    const quint32 newCount = in.count(kLeastBytesOfTerm);
    for (quint32 i = 0; i < newCount && in.ok(); ++i) {
        const QString key = in.text();
        const QString label = in.text();
        _terms.push_back(termOf(key, label));
    }
    RecordContents record;
    visitRecord(ValueReader(in), record);
    if (!in.ok() || !readGroups(in, _terms, record.groups) || !in.atEnd()
        || record.groups.lengthOfValues() > kMostLengthOfValues)
        return std::nullopt;
    record.groups.squeeze();
    return record;
}

} // namespace quorvin
