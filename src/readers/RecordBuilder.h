// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/QuorvinData.h"
#include "model/RecordOptions.h"

#include <QByteArrayView>
#include <QString>

#include <tl/expected.hpp>

#include <vector>

namespace quorvin {

/// The ways in which a file can be read.
enum class Way { Image, SystemImage, ExifTool, Media };

/// The ways of a file that begins with these bytes, in the order in which they are tried. The first that
/// accepts the file makes the record; there is no way back. Exiftool and the media reader are alternatives,
/// never a chain.
std::vector<Way> waysFor(QByteArrayView head, const RecordOptions &options);

/// Makes the record of a file. Knows neither the list nor the thread or process it runs in.
class RecordBuilder {
public:
    /// Set up the libraries that all records are read with. Once, before the first record and any thread.
    static void setupLibraries();

    explicit RecordBuilder(RecordOptions options) : _options(options) { }

    /// A finished record, or the reason why there is none. Bad files give a reason; nothing is thrown. Any
    /// thread.
    tl::expected<QuorvinDataPtr, QString> dataAboutFile(const QString &filename) const;

private:
    RecordOptions _options;
};

} // namespace quorvin
