// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/RecordOptions.h"
#include "platform/Settings.h"
#include "process/JobRunner.h"
#include "process/RootSet.h"

#include <functional>
#include <memory>

namespace quorvin {

/// How files are to be analysed; each thread asks for it once, when it starts.
struct AnalysisSetup {
    RecordOptions options;
    JobLimits limits; ///< of every file
    bool logsDebug = false; ///< the pool tells what it does
    std::function<std::unique_ptr<JobRunner>()> makeRunner;

    Job recordOf(const QString &path) const { return {RecordRequest{path, options}, limits}; }
    /// Somebody waits for this one, and what a library traces takes ten times its length: it may take longer
    /// than a record, and twice the memory.
    Job reportOf(const QString &path, const QString &source) const;
    /// Into a folder that exists. It may take longer, too.
    Job extractionOf(const QString &path, const QString &folder, ExtractionRequest::Kind kind) const;
};

/// By the settings as they stand now. Any thread.
RecordOptions recordOptionsFrom(const Settings &settings);
/// With readers that may read what is in `roots`.
AnalysisSetup analysisSetupFrom(const Settings &settings, const std::shared_ptr<RootSet> &roots);

} // namespace quorvin
