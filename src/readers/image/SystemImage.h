// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/DigestProgress.h"
#include "model/Error.h"
#include "model/FlatInfo.h"
#include "model/RecordContents.h"
#include "model/RecordOptions.h"
#include "platform/RegularFile.h"

namespace quorvin {

/// The fallback for HEIC files that the metadata libraries refuse: what can be told of the picture itself.
/// Any thread.

/// The properties of the first image, as "group.name" with the name as label; those of no group, and those of
/// TIFF, are in the group Container. Fails for a file that no image reader opens.
Expected<FlatInfo> imageioInfoFromFile(const QString &path);

/// The General facts of such a file; its format is always HEIC.
GeneralFacts prepareImageioGeneral(const FlatInfo &info, const RegularFile &file,
                                   const RecordOptions &options, const DigestWatch &watch);

/// Appends the file facts and the properties, a group each. They show in the tree; exports and comparisons
/// leave them out.
void prepareImageioExtended(const FlatInfo &info, const FlatInfo &fileInfo, ParameterGroups &groups);

/// The record of such a file; the error says that no image reader opens it.
Expected<RecordContents> readSystemImage(const QString &filename, const RegularFile &file,
                                         const RecordOptions &options, const DigestWatch &watch);

/// Path and properties of a file as text, for diagnostics; fails for a file that no image reader opens.
Expected<QString> imageioReport(const QString &path);

} // namespace quorvin
