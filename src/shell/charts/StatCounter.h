// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "statistics/CountTable.h"
#include "statistics/ParameterCoverage.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <optional>
#include <vector>

namespace quorvin {

class FilelistController;

/// Counts a parameter over the arranged list of a window, again and again as that changes; the counting is
/// done on the thread of the list's index. Main thread.
class StatCounter : public QObject {
    Q_OBJECT
public:
    struct Question {
        QString parameter; ///< as `ParameterTally` takes it; "": none
        std::optional<CountView> view; ///< absent: what suits
    };

    /// `files` must outlive this object. Nothing is counted while it is not active.
    StatCounter(FilelistController &files, QObject *parent);

    void setActive(bool isActive);
    /// The answer to what was asked before is not told any more.
    void ask(const Question &question);
    const Question &question() const { return _question; }

Q_SIGNALS:
    void counted(const quorvin::CountTablePtr &table);
    /// What parameters the files have, and how many of them failed.
    void covered(const std::vector<quorvin::ParameterCoverage> &coverage,
                 const quorvin::ParameterCoverage &failures);

private:
    void filesDidChange();
    void count();

    FilelistController &_files;
    QTimer _timer; ///< files come one by one
    Question _question;
    quint64 _asked = 0; ///< so many times; only the last answer counts
    bool _isCoverageOld = true;
    bool _isActive = false;
};

} // namespace quorvin
