// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Vocabulary.h"

#include <exiv2/exiv2.hpp>

#include <string>

namespace quorvin {

/// What all Exif tags of one number in one directory have in common.
struct ExifTagFace {
    TermPtr term; ///< null for a tag that stays out of the record
    std::string ifdName;
    bool printsAsItIs = false; ///< the library prints the numbers of the value and nothing else
    bool namesLens = false;
    bool servesPreviews = false; ///< in a directory that the library looks into for previews
    bool pointsToPreview = false; ///< and where it points a preview may lie
    bool tellsReduced = false; ///< says of the pixels of such a directory whether they are a preview
};

/// The library makes key and label anew at each call, which takes longer than printing most values: a face is
/// made once in a thread. It is good until the next call.
const ExifTagFace &faceOf(const Exiv2::Exifdatum &datum);

} // namespace quorvin
