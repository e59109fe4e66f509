// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/Frames.h"

#include "platform/NativePath.h"
#include "process/Bytes.h"

#include <array>

namespace quorvin {

namespace {

/// The options as bits, in this order.
constexpr std::array kOptions{
    &RecordOptions::useSIUnits,           &RecordOptions::useSlowThumbProcessing,
    &RecordOptions::otherTracksInGeneral, &RecordOptions::computeFileHashes,
    &RecordOptions::skipExtAttributes,    &RecordOptions::keepCover,
    &RecordOptions::useExiftoolForVideo,
};

quint8 bitsOf(const RecordOptions &options)
{
    quint8 bits = 0;
    for (std::size_t i = 0; i < kOptions.size(); ++i)
        bits |= static_cast<quint8>((options.*kOptions[i] ? 1 : 0) << i);
    return bits;
}

RecordOptions optionsOf(quint8 bits)
{
    RecordOptions options;
    for (std::size_t i = 0; i < kOptions.size(); ++i)
        options.*kOptions[i] = ((bits >> i) & 1) != 0;
    return options;
}

} // namespace

QByteArray frameOf(QByteArrayView content)
{
    ByteWriter frame;
    frame.bytes(content);
    return frame.result();
}

QByteArray helloFrame(quint32 guardParts)
{
    ByteWriter content;
    content.number(kHelloMagic);
    content.number(guardParts);
    return frameOf(content.result());
}

std::optional<quint32> guardPartsOfHello(QByteArrayView content)
{
    ByteReader in(content);
    const bool isHello = in.number<quint32>() == kHelloMagic;
    const auto parts = in.number<quint32>();
    return isHello && in.ok() && in.atEnd() ? std::optional(parts) : std::nullopt;
}

QByteArray requestFrame(const Job &job)
{
    ByteWriter content;
    content.number(static_cast<quint8>(job.kind));
    content.number(bitsOf(job.options));
    content.bytes(encodePath(job.path));
    content.text(job.source);
    return frameOf(content.result());
}

std::optional<Job> jobOfRequest(QByteArrayView content)
{
    ByteReader in(content);
    Job job;
    job.kind = in.number<quint8>() == 0 ? Job::Kind::Record : Job::Kind::RawReport;
    job.options = optionsOf(in.number<quint8>());
    job.path = decodePath(in.bytes().toByteArray());
    job.source = in.text();
    return in.ok() && in.atEnd() ? std::optional(job) : std::nullopt;
}

QByteArray replyFrame(ReplyKind kind, QByteArrayView content)
{
    ByteWriter whole;
    whole.number(static_cast<quint32>(content.size() + 1));
    whole.number(static_cast<quint8>(kind));
    return QByteArray(whole.result()).append(content);
}

} // namespace quorvin
