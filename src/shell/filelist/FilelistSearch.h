// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/IndexAnswer.h"
#include "shell/desktop/BackgroundRun.h"

namespace quorvin {

/// A question to the index of a list as a background run, which counts files. Main thread.
class FilelistSearch final : public BackgroundRunBase {
    Q_OBJECT
public:
    explicit FilelistSearch(QObject *parent = nullptr);

    void start();
    void tell(const IndexAnswer::Progress &progress);
    /// The answer is complete. Does nothing when none is under way.
    void end();

private:
    void forget() override { }
};

} // namespace quorvin
