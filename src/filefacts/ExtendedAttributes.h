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

/// Whether an open file has attributes of any kind. Cheaper than to ask for their names.
bool hasExtendedAttributes(int descriptor);

/// The names that are set, in the file system's order. Errors are of the POSIX domain.
Expected<QStringList> listExtendedAttributesOnFileAtPath(const QString &path);

/// The attribute that the desktop uses for the same, under its own name; "" when there is none.
QString desktopAttributeFor(const QString &name);

/// Removes the attribute, or the desktop's where that one is not set: the one whose value is shown. Of the
/// tags it removes both. The error is of the POSIX domain.
Expected<void> removeExtendedAtrribute(const QString &name, const QString &path);

/// Sets the modification date from "UTC yyyy-MM-dd HH:mm:ss" or "yyyy-MM-dd HH:mm:ss UTC", as the media
/// library of the day writes it, with a fraction or as the first of several dates too.
Expected<void> touchDate(const QString &date, const QString &path);
/// Whether `touchDate` takes it.
bool isTouchDate(const QString &date);

inline constexpr QLatin1String kCommentAttribute("com.apple.metadata:kMDItemFinderComment");
inline constexpr QLatin1String kWhereFromsAttribute("com.apple.metadata:kMDItemWhereFroms");
inline constexpr QLatin1String kAuthorsAttribute("com.apple.metadata:kMDItemAuthors");
inline constexpr QLatin1String kTagsAttribute("com.apple.metadata:_kMDItemUserTags");
inline constexpr QLatin1String kDesktopTagsAttribute("xdg.tags");

} // namespace quorvin::Utilities
