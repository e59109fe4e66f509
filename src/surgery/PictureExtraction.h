// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "process/Job.h"

#include <QString>

namespace quorvin {

class QuorvinData;

// Pictures that files carry inside, written into a folder, which must be there. None replaces a file, and no
// name leads out of the folder. An error when the file could not be looked into; a picture that could not be
// written is a problem of its own and harms no other. Any thread, once the libraries are set up.

/// Covers, named by what they are, such as "Cover (front).jpg", and thumbnails, of a file that is no image.
Expected<SavedFiles> saveCoversOfFile(const QString &path, const QString &folder);
/// Previews of an image: "NAME #1.jpg", "NAME #2.jpg" and so on. Of HEIF and AVIF its thumbnails, as PNG.
Expected<SavedFiles> savePreviewsOfFile(const QString &path, const QString &folder);
/// Whichever of the two the file has.
Expected<SavedFiles> savePicturesOfFile(const QString &path, const QString &folder);

/// The record tells of pictures that these would save.
bool hasPictures(const QuorvinData &record);

} // namespace quorvin
