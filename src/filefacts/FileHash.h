// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/DigestProgress.h"
#include "model/Error.h"

#include <QString>
#include <QStringList>

#include <initializer_list>

namespace quorvin::FileHash {

enum class Digest { MD5, SHA1, SHA256, SHA512 };

/// Loads what computes digests; a process that may open no library later calls it before.
void setupLibrary();

/// The digests of a whole file in lower-case hex, in the order asked for, in one pass over the file with
/// memory that does not grow with it. Fails when the file cannot be read to its end, or `watch` gives it up.
/// Reads from the start of the descriptor without moving its position. Any thread.
Expected<QStringList> hashesOfFile(int descriptor, std::initializer_list<Digest> digests,
                                   const DigestWatch &watch = {});

/// The same for a path; fails also for what is no regular file.
Expected<QString> hashOfFileAtPath(const QString &path, Digest digest);
Expected<QString> md5HashOfFileAtPath(const QString &path);
Expected<QString> sha1HashOfFileAtPath(const QString &path);
Expected<QString> sha512HashOfFileAtPath(const QString &path);

/// Lower-case hex SHA-1 of the first n bytes of the string's UTF-8, n being its length in UTF-16 units: a
/// string with multi-byte characters is hashed short.
QString sha1String(const QString &string);

} // namespace quorvin::FileHash
