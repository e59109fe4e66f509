// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/GeneralFacts.h"
#include "model/ParameterGroups.h"

namespace quorvin {

struct ImageMetadata;

/// Appends the groups of an image behind the group "File": facts of the picture, the Exif tags by directory,
/// the maker note in subgroups, IPTC, and the XMP properties by namespace. A group without a parameter leaves
/// no trace. Any thread.
void prepareExiv2Data(const ImageMetadata &metadata, const GeneralFacts &general, ParameterGroups &groups);

} // namespace quorvin
