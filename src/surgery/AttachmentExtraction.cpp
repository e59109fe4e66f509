// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "surgery/AttachmentExtraction.h"

#include "SBJson5/SBJson5StreamParser.h"
#include "SBJson5/SBJson5StreamParserDelegate.h"
#include "model/FailureKind.h"
#include "model/Log.h"
#include "platform/NativePath.h"
#include "platform/RegularFile.h"
#include "process/oExifToolStayOpenProcess.h"
#include "surgery/AttachmentFiles.h"
#include "surgery/MatroskaAttachments.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace quorvin {

namespace {

constexpr QByteArrayView kGroup("Matroska:");
constexpr QByteArrayView kDataTag(":AttachedFileData");
constexpr QByteArrayView kNameTag(":AttachedFileName");
constexpr quint64 kMostNesting = 512;

/// Hears the tags of the first file that exiftool tells of, and hands on those of attachments.
class AttachmentListener final : public SBJson5StreamParserDelegate {
public:
    explicit AttachmentListener(AttachmentFiles &files) : _files(files) { }

    /// Whether there was a file at all.
    bool foundFile() const { return _foundFile; }

    void parserFoundObjectStart() override { open(); }
    void parserFoundObjectEnd() override { close(); }
    void parserFoundArrayStart() override { open(); }
    void parserFoundArrayEnd() override { close(); }
    void parserFoundObjectKey(QByteArrayView key) override
    {
        if (_depth == kDepthOfTags)
            _key = key.toByteArray();
    }
    void parserFoundString(QByteArrayView text) override { take(text); }
    // A text that looks like another value comes as that.
    void parserFoundNumber(const SBJson5Number &number) override { take(number.text); }
    void parserFoundBoolean(bool value) override { take(value ? "true" : "false"); }
    void parserFoundNull() override { }
    void parserFoundError(const SBJson5Error &error) override
    {
        qCInfo(lcQuorvin).noquote() << "json parser found error:" << error.description;
    }

private:
    static constexpr int kDepthOfTags = 2;

    void open()
    {
        if (++_depth == kDepthOfTags)
            _isFirst = !std::exchange(_foundFile, true);
    }
    void close() { --_depth; }
    void take(QByteArrayView text)
    {
        if (_depth != kDepthOfTags || !_isFirst || !_key.startsWith(kGroup))
            return;
        if (_key.endsWith(kDataTag))
            _files.addContent(_key.chopped(kDataTag.size()), text);
        else if (_key.endsWith(kNameTag))
            _files.addName(_key.chopped(kNameTag.size()), QString::fromUtf8(text));
    }

    AttachmentFiles &_files;
    QByteArray _key;
    int _depth = 0;
    bool _foundFile = false;
    bool _isFirst = false;
};

/// By exiftool, which then takes the content of one for that of another, too: it numbers what it gives.
bool isPassedOver(const MatroskaAttachment &attachment)
{
    constexpr quint64 kMostBytes = 10'000'000;
    return attachment.isBehindStreams || attachment.size > kMostBytes;
}

SavedFiles saveParts(const RegularFile &file, const std::vector<MatroskaAttachment> &attachments,
                     const QString &folder)
{
    AttachmentFiles files(folder);
    for (const MatroskaAttachment &attachment : attachments)
        files.addPart(attachment.name, file, attachment.offset, attachment.size);
    return files.finish();
}

} // namespace

Expected<SavedFiles> ExifToolUtilities::saveEmbeddedFilesFromFile(const QString &path, const QString &folder,
                                                                  oExifToolStayOpenProcess *exifTool)
{
    if (const auto file = RegularFile::open(path)) {
        const auto attachments = matroskaAttachments(*file);
        if (std::ranges::any_of(attachments,
                                [&](const auto &each) { return !exifTool || isPassedOver(each); }))
            return saveParts(*file, attachments, folder);
    }
    if (!exifTool)
        return failure(FailureKind::NoExifTool);
    AttachmentFiles files(folder);
    AttachmentListener listener(files);
    SBJson5StreamParser parser(listener, kMostNesting);
    const auto answered = exifTool->outputWithArguments(
        {encodePath(path), "-json", "-G:0:1:2:4", "-b", "-a", "-e"},
        [&](QByteArrayView piece) { return parser.parse(piece) != SBJson5ParserStatus::Error; });
    if (!answered)
        return tl::unexpected(answered.error());
    if (!listener.foundFile())
        return failure(FailureKind::NotUnderstood);
    // An answer that makes no sense is one with nothing more to save.
    return files.finish();
}

} // namespace quorvin
