// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/RecordBytes.h"

#include "process/Bytes.h"

namespace quorvin {

namespace {

/// One list of the fields of a record for both ways. A codec has an overload for each type of field.
template <typename Codec, typename Facts>
void visitGeneral(Codec &codec, Facts &facts)
{
    codec(facts.filesize), codec(facts.filesizeinbytes), codec(facts.localizedModificationDate);
    codec(facts.localizedCreationDate), codec(facts.modificationDate), codec(facts.creationDate);
    codec(facts.fileKind), codec(facts.fileUTI), codec(facts.finderComment), codec(facts.fileLabelName);
    codec(facts.fileFrom), codec(facts.fileAuthors), codec(facts.fileFromDate), codec(facts.fileTagNames);
    codec(facts.md5), codec(facts.sha1);
    codec(facts.format), codec(facts.formatProfile), codec(facts.duration), codec(facts.bitrate);
    codec(facts.imageSize), codec(facts.imageSizeMP), codec(facts.thumbCount), codec(facts.latitude);
    codec(facts.longitude), codec(facts.coverData), codec(facts.container), codec(facts.lines);
}

template <typename Codec, typename Record>
void visitRecord(Codec &codec, Record &record)
{
    codec(record.filename), codec(record.duration);
    codec(record.isImage), codec(record.isVideo), codec(record.isAudio);
    visitGeneral(codec, record.general);
    codec(record.mapLocation);
}

struct Writing {
    ByteWriter &out;

    void operator()(const QString &text)
    {
        // UTF-16, so that a path keeps bytes that are no UTF-8.
        out.bytes(QByteArrayView(reinterpret_cast<const char *>(text.utf16()),
                                 text.size() * qsizetype{sizeof(QChar)}));
    }
    void operator()(const QByteArray &bytes) { out.bytes(bytes); }
    void operator()(qint64 number) { out.number(number); }
    void operator()(bool flag) { out.number(static_cast<quint8>(flag)); }
    void operator()(double number) { out.number(number); }
    void operator()(const Location &location) { (*this)(location.latitude), (*this)(location.longitude); }
    void operator()(const GeneralLine &line)
    {
        (*this)(line.key), (*this)(line.name), (*this)(line.value.plain);
        (*this)(static_cast<qint64>(line.value.titleStart));
        (*this)(static_cast<qint64>(line.value.italicLength));
        (*this)(static_cast<qint64>(line.streamIndex)), (*this)(line.isLocation);
    }
    template <typename Value>
    void operator()(const std::optional<Value> &value)
    {
        (*this)(value.has_value());
        if (value)
            (*this)(*value);
    }
    void operator()(const std::vector<GeneralLine> &lines)
    {
        out.number(static_cast<quint32>(lines.size()));
        for (const GeneralLine &line : lines)
            (*this)(line);
    }
};

struct Reading {
    ByteReader &in;

    void operator()(QString &text)
    {
        const QByteArrayView bytes = in.bytes();
        text.resize(bytes.size() / qsizetype{sizeof(QChar)});
        std::copy_n(bytes.begin(), text.size() * qsizetype{sizeof(QChar)},
                    reinterpret_cast<char *>(text.data()));
    }
    void operator()(QByteArray &bytes) { bytes = in.bytes().toByteArray(); }
    void operator()(qint64 &number) { number = in.number<qint64>(); }
    void operator()(bool &flag) { flag = in.number<quint8>() != 0; }
    void operator()(double &number) { number = in.number<double>(); }
    void operator()(Location &location) { (*this)(location.latitude), (*this)(location.longitude); }
    void operator()(GeneralLine &line)
    {
        (*this)(line.key), (*this)(line.name), (*this)(line.value.plain);
        const qsizetype length = line.value.plain.size();
        const auto titleStart = in.number<qint64>();
        line.value.titleStart = titleStart < 0 || titleStart > length ? -1 : titleStart;
        line.value.italicLength = std::clamp<qsizetype>(in.number<qint64>(), 0, length);
        line.streamIndex = in.number<quint64>();
        (*this)(line.isLocation);
    }
    template <typename Value>
    void operator()(std::optional<Value> &value)
    {
        if (in.number<quint8>() != 0)
            (*this)(value.emplace());
    }
    void operator()(std::vector<GeneralLine> &lines)
    {
        constexpr qsizetype kLeastBytes = 37;
        const quint32 count = in.count(kLeastBytes);
        for (quint32 i = 0; i < count && in.ok(); ++i)
            (*this)(lines.emplace_back());
    }
};

constexpr qsizetype kLeastBytesOfTerm = 8;
constexpr qsizetype kLeastBytesOfGroup = 13;
constexpr qsizetype kLeastBytesOfSubgroup = 4;
constexpr qsizetype kLeastBytesOfStream = 8;
constexpr qsizetype kLeastBytesOfParameter = 11;

bool readStream(ByteReader &in, const std::vector<TermPtr> &terms, ParameterGroups &groups)
{
    groups.beginStream(static_cast<int>(in.number<quint32>()));
    const quint32 count = in.count(kLeastBytesOfParameter);
    for (quint32 i = 0; i < count && in.ok(); ++i) {
        const auto number = in.number<quint32>();
        const auto flags = ParameterFlags::fromInt(in.number<quint8>());
        const auto subgroup = in.number<quint16>();
        const QByteArrayView value = in.bytes();
        if (!in.ok() || number >= terms.size() || subgroup > groups.groups().back().subgroups.size())
            return false;
        groups.addUtf8(terms[number], value, flags, subgroup);
    }
    return in.ok();
}

bool readGroups(ByteReader &in, const std::vector<TermPtr> &terms, ParameterGroups &groups)
{
    const quint32 groupCount = in.count(kLeastBytesOfGroup);
    for (quint32 i = 0; i < groupCount && in.ok(); ++i) {
        const QString key = in.text();
        groups.beginGroup(internTerm(key, key)->key, in.number<quint8>() != 0);
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
    ByteWriter newTerms;
    quint32 newCount = 0;
    const bool startsAnew = _terms.size() >= kMaxConnectionTerms;
    if (startsAnew) {
        _terms.clear();
        _numbers.clear();
    }
    ByteWriter body;
    Writing writing{body};
    visitRecord(writing, record);

    body.number(static_cast<quint32>(record.groups.groups().size()));
    for (const auto &group : record.groups.groups()) {
        body.text(group.key);
        body.number(static_cast<quint8>(group.numbered));
        body.number(static_cast<quint32>(group.subgroups.size()));
        for (const QString &subgroup : group.subgroups)
            body.text(subgroup);
        body.number(static_cast<quint32>(group.streams.size()));
        for (const auto &stream : group.streams) {
            body.number(stream.number);
            body.number(stream.count);
            for (const auto &parameter : record.groups.parameters(stream)) {
                const auto [known, isNew]
                    = _numbers.try_emplace(parameter.term.get(), static_cast<quint32>(_terms.size()));
                if (isNew) {
                    _terms.push_back(parameter.term);
                    newTerms.text(parameter.term->key);
                    newTerms.text(parameter.term->label);
                    ++newCount;
                }
                body.number(known->second);
                body.number(static_cast<quint8>(parameter.flags.toInt()));
                body.number(parameter.subgroup);
                body.bytes(record.groups.utf8Value(parameter));
            }
        }
    }
    ByteWriter whole;
    whole.number(static_cast<quint8>(startsAnew));
    whole.number(newCount);
    return whole.result() + newTerms.result() + body.result();
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
        _terms.push_back(internTerm(key, label));
    }
    RecordContents record;
    Reading reading{in};
    visitRecord(reading, record);
    if (!in.ok() || !readGroups(in, _terms, record.groups) || !in.atEnd())
        return std::nullopt;
    record.groups.squeeze();
    return record;
}

} // namespace quorvin
