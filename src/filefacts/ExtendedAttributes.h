// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QByteArray>
#include <QStringList>
#include <QVariant>

#include <tl/expected.hpp>

#include <optional>

namespace quorvin::Utilities {

/// Names are those of the record's vocabulary, such as "com.apple.metadata:kMDItemWhereFroms"; on the disk
/// they stand under "user.". Symbolic links are followed. Any thread.

/// The bytes of the attribute; absent when it is not set or cannot be read.
std::optional<QByteArray> extendedAttributeData(const QString &name, const QString &path);

/// The attribute as a property list. Absent when it is not set; also when it is malformed, which is logged.
std::optional<QVariant> extendedAttribute(const QString &name, const QString &path);

/// The names that are set, in the file system's order; absent when they cannot be listed.
std::optional<QStringList> listExtendedAttributesOnFileAtPath(const QString &path);

/// Removing the tags removes both forms in which a file may carry them. The error is of the POSIX domain.
tl::expected<void, Error> removeExtendedAtrribute(const QString &name, const QString &path);

/// Sets the modification date from "UTC yyyy-MM-dd HH:mm:ss".
tl::expected<void, Error> touchDate(const QString &date, const QString &path);

inline constexpr QLatin1String kTagsAttribute("com.apple.metadata:_kMDItemUserTags");
inline constexpr QLatin1String kDesktopTagsAttribute("xdg.tags");

} // namespace quorvin::Utilities
