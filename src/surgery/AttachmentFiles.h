// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "process/Job.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <cstddef>
#include <functional>
#include <map>
#include <memory>

class QFile;

namespace quorvin {

class AtomicFile;
class RegularFile;

/// Files that come out of another, on their way into a folder. Each is written as it comes, under a temporary
/// name, and gets its own when that is known: name and content come in any order. A name stays in the folder,
/// whatever it says, and replaces no file: "a (1).txt" in its place. One thread.
class AttachmentFiles {
public:
    /// More are not saved.
    static constexpr std::size_t kMost = 1000;

    /// `what` each of them is, in words for problems.
    explicit AttachmentFiles(QString folder, QString what = QStringLiteral("attachment"));
    ~AttachmentFiles();
    AttachmentFiles(const AttachmentFiles &) = delete;
    AttachmentFiles &operator=(const AttachmentFiles &) = delete;

    /// `key` pairs a name with its content. The content is the text itself, or what stands in base64 behind
    /// "base64:". An empty one is no file.
    void addContent(const QByteArray &key, QByteArrayView text);
    void addName(const QByteArray &key, const QString &name);
    /// Both at once; the bytes are the content as they are.
    void addFile(const QString &name, QByteArrayView bytes);
    /// The one of that name can't be had.
    void addProblem(const QString &name, const QString &reason);
    /// A name with its content, which are these bytes of a file.
    void addPart(const QString &name, const RegularFile &file, quint64 offset, quint64 size);

    /// What was saved; contents without a name are dropped, and a name without contents is a problem:
    /// exiftool passes large ones over. Once.
    SavedFiles finish();

private:
    using File = std::unique_ptr<AtomicFile>;

    /// Gets the file, and says whether all went well.
    using Writing = std::function<Expected<void>(QFile &device)>;

    Expected<File> write(const Writing &writing) const;
    void save(const QString &name, Expected<File> file);
    Expected<QString> commit(const QString &name, AtomicFile &file) const;

    QString _folder;
    QString _what;
    QHash<QByteArray, QString> _names; ///< that wait for their contents
    std::map<QByteArray, Expected<File>> _files; ///< that wait for their names
    SavedFiles _saved;
    bool _isFull = false;
};

/// What an attachment of that name is called in a folder: the part behind its last slash, without what no
/// name can have, or "attachment".
QString fileNameOfAttachment(const QString &name);

} // namespace quorvin
