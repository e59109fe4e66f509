// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "surgery/AttachmentFiles.h"

#include "filefacts/Paths.h"
#include "platform/AtomicFile.h"
#include "platform/NativePath.h"
#include "platform/RegularFile.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace quorvin {

namespace {

constexpr QByteArrayView kBase64("base64:");
constexpr qsizetype kPiece = 1 << 20; ///< of base64; four characters are three bytes
constexpr qsizetype kMostNameBytes = 240; ///< leaves room for a number
constexpr qsizetype kMostToldLetters = 200;

constexpr quint64 kCopied = 1 << 20; ///< bytes at a time

Expected<void> writeAll(const QByteArray &bytes, QFile &to)
{
    return to.write(bytes) == bytes.size() ? Expected<void>() : failure(to.errorString());
}

Expected<void> writeBase64(QByteArrayView text, QFile &to)
{
    for (; !text.isEmpty(); text = text.sliced(std::min(kPiece, text.size()))) {
        const QByteArrayView piece = text.first(std::min(kPiece, text.size()));
        const QByteArray bytes = QByteArray::fromBase64(QByteArray::fromRawData(piece.data(), piece.size()));
        if (auto written = writeAll(bytes, to); !written)
            return written;
    }
    return {};
}

Expected<void> copyPart(const RegularFile &file, quint64 offset, quint64 size, QFile &to)
{
    QByteArray bytes;
    for (const quint64 end = offset + size; offset < end; offset += static_cast<quint64>(bytes.size())) {
        bytes.resize(static_cast<qsizetype>(std::min(kCopied, end - offset)));
        const ssize_t count = ::pread(file.descriptor(), bytes.data(), static_cast<std::size_t>(bytes.size()),
                                      static_cast<off_t>(offset));
        if (count <= 0)
            return count < 0 ? Expected<void>(posixFailure(errno))
                             : failure(QStringLiteral("the file ends in it"));
        bytes.truncate(count);
        if (auto written = writeAll(bytes, to); !written)
            return written;
    }
    return {};
}

/// Shorter by its stem, so that its kind can still be told.
QString shortened(QString name)
{
    const QString extension = pathExtension(name).left(kMostNameBytes / 8);
    const QString tail = extension.isEmpty() ? QString() : u'.' + extension;
    if (name.toUtf8().size() <= kMostNameBytes)
        return name;
    name.chop(pathExtension(name).size() + (extension.isEmpty() ? 0 : 1));
    while (name.toUtf8().size() + tail.toUtf8().size() > kMostNameBytes)
        name.chop(name.back().isLowSurrogate() ? 2 : 1);
    return name + tail;
}

} // namespace

QString fileNameOfAttachment(const QString &name)
{
    QString plain = name.section(u'/', -1).trimmed();
    std::ranges::replace_if(
        plain, [](QChar letter) { return letter.category() == QChar::Other_Control; }, u'_');
    const bool isNone = std::ranges::all_of(plain, [](QChar letter) { return letter == u'.'; });
    return isNone ? QStringLiteral("attachment") : shortened(plain);
}

AttachmentFiles::AttachmentFiles(QString folder, QString what)
    : _folder(std::move(folder)), _what(std::move(what))
{
    AtomicFile::removeLeftovers(_folder);
}

AttachmentFiles::~AttachmentFiles() = default;

void AttachmentFiles::addName(const QByteArray &key, const QString &name)
{
    if (name.isEmpty())
        return;
    if (auto waiting = _files.extract(key))
        save(name, std::move(waiting.mapped()));
    else
        _names.insert(key, name);
}

void AttachmentFiles::addContent(const QByteArray &key, QByteArrayView text)
{
    const bool isBase64 = text.startsWith(kBase64);
    if (isBase64)
        text = text.sliced(kBase64.size());
    const auto writing = [text, isBase64](QFile &device) {
        return isBase64 ? writeBase64(text, device)
                        : writeAll(QByteArray::fromRawData(text.data(), text.size()), device);
    };
    auto file = text.isEmpty() ? Expected<File>(File()) : write(writing);
    if (const QString name = _names.take(key); !name.isEmpty())
        save(name, std::move(file));
    else
        _files.insert_or_assign(key, std::move(file));
}

void AttachmentFiles::addFile(const QString &name, QByteArrayView bytes)
{
    const auto writing = [bytes](QFile &device) {
        return writeAll(QByteArray::fromRawData(bytes.data(), bytes.size()), device);
    };
    save(name, bytes.isEmpty() ? Expected<File>(File()) : write(writing));
}

void AttachmentFiles::addProblem(const QString &name, const QString &reason)
{
    save(name, failure(reason));
}

void AttachmentFiles::addPart(const QString &name, const RegularFile &file, quint64 offset, quint64 size)
{
    if (!name.isEmpty() && size > 0)
        save(name, write([&](QFile &device) { return copyPart(file, offset, size, device); }));
}

Expected<AttachmentFiles::File> AttachmentFiles::write(const Writing &writing) const
{
    // The name for now is one that no file has, so that none is taken for the one to replace.
    auto file
        = AtomicFile::create(_folder + QStringLiteral("/.quorvin-attachment"), AtomicFile::Extent::OneOfMany);
    if (!file)
        return file;
    QFile &device = (*file)->device();
    if (const auto written = writing(device); !written)
        return tl::unexpected(written.error());
    if (device.pos() == 0)
        return File();
    return file;
}

void AttachmentFiles::save(const QString &name, Expected<File> file)
{
    const auto complain = [&](const QString &reason) {
        _saved.problems.push_back(
            QStringLiteral("%1 %2: %3").arg(_what, name.left(kMostToldLetters), reason));
    };
    if (_saved.paths.size() + _saved.problems.size() >= kMost) {
        if (!std::exchange(_isFull, true))
            complain(QStringLiteral("it and what follows is too much"));
        return;
    }
    const auto path = file.and_then(
        [&](const File &content) { return content ? commit(name, *content) : Expected<QString>(QString()); });
    if (!path)
        complain(path.error().description);
    else if (!path->isEmpty())
        _saved.paths.push_back(*path);
}

Expected<QString> AttachmentFiles::commit(const QString &name, AtomicFile &file) const
{
    const QString path = _folder + u'/' + fileNameOfAttachment(name);
    return Utilities::takeUniqueFilename(path, [&](const QString &free) {
        file.setName(lastPathComponent(free));
        return file.commit(AtomicFile::Existing::Keep);
    });
}

SavedFiles AttachmentFiles::finish()
{
    _files.clear();
    for (const QString &name : std::as_const(_names))
        save(name, failure(QStringLiteral("exiftool does not give its contents")));
    AtomicFile::syncFolder(_folder);
    return std::move(_saved);
}

} // namespace quorvin
