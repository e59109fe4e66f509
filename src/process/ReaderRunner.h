// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "process/JobRunner.h"
#include "process/RootSet.h"

#include <memory>
#include <string>

namespace quorvin {

/// Does the jobs in a reader process behind a guard, started with the first job. A reader that crashes,
/// exceeds a job's limit or gives no proper answer is replaced; its job fails with "stopped: …". Where none
/// can be started, after a few tries, all jobs fail with `FailureKind::NoReader`. A stop takes effect at
/// once.
///
/// A reader may read what is in `roots` when it starts. A job outside them is done all the same, by a fresh
/// reader that may read that too; `roots` grows by it. Null stands for a set of the runner's own.
/// `program` is the path of the reader; "" is the one beside this program.
std::unique_ptr<JobRunner> makeReaderRunner(std::shared_ptr<RootSet> roots = nullptr,
                                            const std::string &program = {});

/// The same for a writer: it does jobs like a reader, may read every file, and write in `folder` alone.
std::unique_ptr<JobRunner> makeWriterRunner(const QString &folder, const std::string &program = {});

/// Starts a reader to ask it what guards it, as `raiseGuard` tells it; an error when none can be started.
Expected<quint32> guardPartsInForce();

} // namespace quorvin
