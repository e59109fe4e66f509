// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QByteArray>
#include <QStringList>
#include <QVariant>

namespace quorvin::Utilities {

/// Names are those of the record's vocabulary, such as "com.apple.metadata:kMDItemWhereFroms"; on the disk
/// they stand under "user.". Symbolic links are followed. Any thread.

/// The bytes of the attribute. Errors are of the POSIX domain, ENODATA for one that is not set.
Expected<QByteArray> extendedAttributeData(const QString &name, const QString &path);

/// The attribute as a property list. Fails like `extendedAttributeData`; also for a malformed one, which is
/// logged.
Expected<QVariant> extendedAttribute(const QString &name, const QString &path);

/// The names that are set, in the file system's order. Errors are of the POSIX domain.
Expected<QStringList> listExtendedAttributesOnFileAtPath(const QString &path);

/// Removing the tags removes both forms in which a file may carry them. The error is of the POSIX domain.
Expected<void> removeExtendedAtrribute(const QString &name, const QString &path);

/// Sets the modification date from "UTC yyyy-MM-dd HH:mm:ss" or "yyyy-MM-dd HH:mm:ss UTC", as the media
/// library of the day writes it.
Expected<void> touchDate(const QString &date, const QString &path);

inline constexpr QLatin1String kTagsAttribute("com.apple.metadata:_kMDItemUserTags");
inline constexpr QLatin1String kDesktopTagsAttribute("xdg.tags");

} // namespace quorvin::Utilities
