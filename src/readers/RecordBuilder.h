// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/DigestProgress.h"
#include "model/Error.h"
#include "model/QuorvinData.h"
#include "model/RecordOptions.h"

#include <QString>

#include <utility>

namespace quorvin {

class oExifToolStayOpenProcess;

/// Makes the record of a file. Knows neither the list nor the thread or process it runs in.
class RecordBuilder {
public:
    /// Set up the libraries that all records are read with, before the first record. Only the first call does
    /// anything; the others wait for it. Any thread.
    static void setupLibraries();

    /// `watch` follows the digests, where the options ask for them. `exifTool` is only looked at where the
    /// options want it; null stands for one that is not installed.
    explicit RecordBuilder(RecordOptions options, DigestWatch watch = {},
                           oExifToolStayOpenProcess *exifTool = nullptr)
        : _options(options), _watch(std::move(watch)), _exifTool(exifTool)
    {
    }

    /// A finished record, or the reason why there is none. Bad files give a reason; nothing is thrown. Any
    /// thread.
    Expected<QuorvinDataPtr> dataAboutFile(const QString &filename) const;

private:
    RecordOptions _options;
    DigestWatch _watch;
    oExifToolStayOpenProcess *_exifTool;
};

} // namespace quorvin
