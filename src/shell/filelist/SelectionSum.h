// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FileSum.h"
#include "shell/desktop/BackgroundRun.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <memory>

namespace quorvin {

class FilelistController;

/// The sum of the selected files while there are several, which follows the selection and what is read
/// meanwhile. That of a long selection is made elsewhere; until it is there, the one before stays. Main
/// thread.
class SelectionSum : public QObject {
    Q_OBJECT
public:
    /// The most files whose sum is made at once.
    static constexpr int kFewFiles = 500;

    /// `files` must outlive this object.
    explicit SelectionSum(FilelistController &files, QObject *parent = nullptr);

    /// Null while fewer than two files are selected.
    const std::shared_ptr<const FileSum> &sum() const { return _sum; }

Q_SIGNALS:
    void changed();

private:
    void selectionDidChange();
    void recordsDidChange();
    void make();
    void setSum(std::shared_ptr<const FileSum> sum);
    std::vector<FilelistItemPtr> selectedFiles() const;

    FilelistController &_files;
    std::shared_ptr<const FileSum> _sum;
    BackgroundRun<FileSum> _run{this};
    QTimer _delay;
    QElapsedTimer _sinceStart; ///< of making the sum
    int _lastMilliseconds = 0; ///< that it took
};

} // namespace quorvin
