// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

class QIODevice;

namespace quorvin {

struct FileKind {
    QString description; ///< of the type, in the user's language: "MPEG-4 video"
    QString identifier; ///< its MIME name: "video/mp4"
};

/// The kind of a file by the shared MIME database: by name, and by content where the name does not settle it.
/// Both texts are "" when the database is missing. `content` is open for reading at its start and is left
/// there. Any thread.
FileKind fileKind(const QString &fileName, QIODevice &content);

/// The preferred extension of a MIME type, without a dot; "" for a type that the database does not know.
QString fileExtensionFromMimeType(const QString &mimeType);

} // namespace quorvin
