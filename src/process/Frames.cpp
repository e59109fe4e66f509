// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/Frames.h"

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
static_assert(kOptions.size() * sizeof(bool) == sizeof(RecordOptions), "each option has its bit");
static_assert(kOptions.size() <= 8, "the bits fit into their byte");

template <typename... Kinds>
constexpr auto mostBytesOfKinds(const std::variant<Kinds...> *)
{
    return std::array{Kinds::kMostBytes...};
}
constexpr std::array kMostBytes = mostBytesOfKinds(static_cast<ReaderMessage *>(nullptr));

} // namespace

template <>
struct Fields<RecordOptions> {
    static quint8 pack(const RecordOptions &options)
    {
        quint8 bits = 0;
        for (std::size_t i = 0; i < kOptions.size(); ++i)
            bits |= static_cast<quint8>((options.*kOptions[i] ? 1 : 0) << i);
        return bits;
    }
    static RecordOptions unpack(quint8 bits)
    {
        RecordOptions options;
        for (std::size_t i = 0; i < kOptions.size(); ++i)
            options.*kOptions[i] = ((bits >> i) & 1) != 0;
        return options;
    }
};

template <>
struct Fields<RecordRequest> {
    static constexpr auto list = std::tuple(&RecordRequest::path, &RecordRequest::options);
};

template <>
struct Fields<ReportRequest> {
    static constexpr auto list
        = std::tuple(&ReportRequest::path, &ReportRequest::source, &ReportRequest::usesExifTool);
};

template <>
struct Fields<ExtractionRequest> {
    static constexpr auto list
        = std::tuple(&ExtractionRequest::path, &ExtractionRequest::folder, &ExtractionRequest::kind);
    static bool isValid(const ExtractionRequest &request)
    {
        return request.kind <= ExtractionRequest::Kind::Pictures;
    }
};

template <>
struct Fields<SavedFiles> {
    static constexpr auto list = std::tuple(&SavedFiles::paths, &SavedFiles::problems);
};

template <>
struct Fields<FilesSaved> {
    static constexpr auto list = std::tuple(&FilesSaved::job, &FilesSaved::files);
};

template <>
struct Fields<oEXIV2Metadata> {
    static constexpr auto list
        = std::tuple(&oEXIV2Metadata::removeExif, &oEXIV2Metadata::removeMakernote,
                     &oEXIV2Metadata::removeGPS, &oEXIV2Metadata::removeIPTC, &oEXIV2Metadata::removeXMP);
};

template <>
struct Fields<RemovalRequest> {
    static constexpr auto list
        = std::tuple(&RemovalRequest::path, &RemovalRequest::copy, &RemovalRequest::options);
};

template <>
struct Fields<KeptItem> {
    static constexpr auto list = std::tuple(&KeptItem::key, &KeptItem::reason);
};

template <>
struct Fields<RemovalResult> {
    static constexpr auto list = std::tuple(&RemovalResult::removed, &RemovalResult::kept);
};

template <>
struct Fields<EncodedRemoval> {
    static constexpr auto list = std::tuple(&EncodedRemoval::job, &EncodedRemoval::result);
};

template <>
struct Fields<PictureRequest> {
    static constexpr auto list
        = std::tuple(&PictureRequest::path, &PictureRequest::side, &PictureRequest::detail);
    static bool isValid(const PictureRequest &request) { return request.detail <= Picture::Detail::Draft; }
};

template <>
struct Fields<ReaderRoots> {
    static constexpr auto list = std::tuple(&ReaderRoots::paths, &ReaderRoots::through,
                                            &ReaderRoots::writable, &ReaderRoots::exifToolMiB);
};

template <>
struct Fields<JobOrder> {
    static constexpr auto list = std::tuple(&JobOrder::number, &JobOrder::request);
};

template <>
struct Fields<Greeting> {
    static constexpr auto list
        = std::tuple(&Greeting::magic, &Greeting::guardParts, &Greeting::reached, &Greeting::exifTool);
    static bool isValid(const Greeting &greeting) { return greeting.magic == Greeting::kMagic; }
};

template <>
struct Fields<JobDone> {
    static constexpr auto list = std::tuple(&JobDone::job);
};

template <>
struct Fields<JobOutside> {
    static constexpr auto list = std::tuple(&JobOutside::job);
};

template <>
struct Fields<Error> {
    static constexpr auto list = std::tuple(&Error::domain, &Error::code, &Error::description);
};

template <>
struct Fields<JobFailed> {
    static constexpr auto list = std::tuple(&JobFailed::job, &JobFailed::error);
};

template <>
struct Fields<EncodedRecord> {
    static constexpr auto list = std::tuple(&EncodedRecord::job, &EncodedRecord::record);
};

template <>
struct Fields<EncodedReport> {
    static constexpr auto list = std::tuple(&EncodedReport::job, &EncodedReport::text);
};

template <>
struct Fields<Picture> {
    static constexpr auto list = std::tuple(&Picture::width, &Picture::height, &Picture::fullWidth,
                                            &Picture::fullHeight, &Picture::isAnimated, &Picture::pixels);
    static bool isValid(const Picture &picture) { return picture.isValid(); }
};

template <>
struct Fields<EncodedPicture> {
    static constexpr auto list = std::tuple(&EncodedPicture::job, &EncodedPicture::picture);
};

template <>
struct Fields<LogLine> {
    static constexpr auto list = std::tuple(&LogLine::isOfLibrary, &LogLine::text);
};

template <>
struct Fields<DigestProgress> {
    static constexpr auto list = std::tuple(&DigestProgress::done, &DigestProgress::total);
    static bool isValid(const DigestProgress &progress) { return progress.done <= progress.total; }
};

template <>
struct Fields<JobProgress> {
    static constexpr auto list = std::tuple(&JobProgress::job, &JobProgress::progress);
};

namespace {

QByteArray framed(const QByteArray &content)
{
    ByteWriter frame;
    frame.bytes(content);
    return frame.take();
}

} // namespace

quint32 mostBytesOfMessage(quint8 kind)
{
    // Beside the message stands its kind.
    return kind < kMostBytes.size() ? kMostBytes[kind] + 1 : 0;
}

QByteArray frameOf(const ReaderRoots &roots)
{
    return framed(bytesOf(roots));
}

QByteArray frameOf(const JobOrder &order)
{
    return framed(bytesOf(order));
}

QByteArray frameOf(const ReaderMessage &message)
{
    return framed(bytesOf(message));
}

std::optional<ReaderRoots> rootsOf(QByteArrayView content)
{
    return valueOf<ReaderRoots>(content);
}

std::optional<JobOrder> orderOf(QByteArrayView content)
{
    return valueOf<JobOrder>(content);
}

std::optional<ReaderMessage> messageOf(QByteArrayView content)
{
    return valueOf<ReaderMessage>(content);
}

} // namespace quorvin
