// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/RecordOptions.h"
#include "platform/Settings.h"
#include "process/JobRunner.h"

#include <functional>
#include <memory>

namespace quorvin {

/// How files are to be analysed; each thread asks for it once, when it starts.
struct AnalysisSetup {
    RecordOptions options;
    bool logsDebug = false; ///< the pool tells what it does
    std::function<std::unique_ptr<JobRunner>()> makeRunner;
};

/// By the settings as they stand now. Any thread.
RecordOptions recordOptionsFrom(const Settings &settings);
AnalysisSetup analysisSetupFrom(const Settings &settings);

} // namespace quorvin
