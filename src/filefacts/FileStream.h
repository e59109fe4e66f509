// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/DigestProgress.h"
#include "model/FlatInfo.h"
#include "model/GeneralFacts.h"
#include "model/ParameterGroups.h"
#include "model/RecordOptions.h"
#include "platform/RegularFile.h"

namespace quorvin {

/// The facts of an open file. Size, dates, kind and attributes are those of the file that symbolic links lead
/// to. `options` decides on the size rule, the extended attributes and the hashes; hashing reads the whole
/// file once, and tells `watch`; hashes that fail or are given up are left out. Any thread.
FileFacts getFileInfo(const RegularFile &file, const RecordOptions &options, const DigestWatch &watch = {});

/// Where the private facts of a file count as private.
enum class PrivateFacts {
    Everywhere,
    InTreeOnly, ///< the key list for exports keeps them
};

/// Appends the group "File" of a record to `groups`: one stream of file facts in display order. Name and
/// location are those of `filename`, which may be a link.
void prepareFileStream(const QString &filename, const FileFacts &facts, PrivateFacts privacy,
                       ParameterGroups &groups);

/// The facts that `getFileInfo` gave as a flat list, in an order of its own. Here "FileSizeAndBytes" has the
/// bare number of bytes, and origin, authors and download date count only when the attribute holds a list.
FlatInfo prepareFileInfo(const QString &filename, const RegularFile &file, const RecordOptions &options,
                         const FileFacts &known);

} // namespace quorvin
