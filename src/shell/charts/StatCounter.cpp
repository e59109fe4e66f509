// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/charts/StatCounter.h"

#include "shell/filelist/FilelistController.h"
#include "statistics/ParameterTally.h"

#include <QPointer>

#include <functional>
#include <memory>
#include <utility>

namespace quorvin {

namespace {

constexpr int kChangeMilliseconds = 500; ///< so often it follows the files

struct Counted {
    CountTablePtr table; ///< null: nothing was asked, or it was stopped
    std::optional<std::vector<ParameterCoverage>> coverage; ///< absent: it is as it was
    ParameterCoverage failures; ///< with it
};

Counted countFor(const StatCounter::Question &question, bool wantsCoverage, const RecordIndex &index,
                 const std::vector<FilelistItemPtr> &files, const std::stop_token &stop)
{
    Counted result;
    const ParameterCountPtr count
        = question.parameter.isEmpty() ? nullptr : countOf(question.parameter, index, files, stop);
    if (count)
        result.table
            = std::make_shared<const CountTable>(count, question.view.value_or(suitableView(*count)));
    if (wantsCoverage) {
        result.coverage = coverageOf(index, files, stop);
        result.failures = failureCoverageOf(index, files);
    }
    return result;
}

} // namespace

StatCounter::StatCounter(FilelistController &files, QObject *parent) : QObject(parent), _files(files)
{
    _timer.setSingleShot(true);
    _timer.setInterval(kChangeMilliseconds);
    connect(&_timer, &QTimer::timeout, this, &StatCounter::count);
    for (const auto signal :
         {&FilelistController::totalsDidChange, &FilelistController::windowArrangedFilelistDidChange})
        connect(&files, signal, this, &StatCounter::filesDidChange);
}

void StatCounter::setActive(bool isActive)
{
    if (std::exchange(_isActive, isActive) != isActive && isActive)
        count();
}

void StatCounter::ask(const Question &question)
{
    _question = question;
    if (_isActive)
        count();
}

void StatCounter::filesDidChange()
{
    _isCoverageOld = true;
    if (_isActive && !_timer.isActive())
        _timer.start();
}

void StatCounter::count()
{
    if (!_isActive)
        return;
    const bool wantsCoverage = _isCoverageOld;
    const auto use = [self = QPointer(this), number = ++_asked](const Counted &counted) {
        if (!self || self->_asked != number)
            return;
        if (counted.coverage) {
            self->_isCoverageOld = self->_timer.isActive();
            Q_EMIT self->covered(*counted.coverage, counted.failures);
        }
        if (counted.table)
            Q_EMIT self->counted(counted.table);
    };
    _files.filtering().lookAtIndex([question = _question, wantsCoverage, files = _files.arranged().files(),
                                    use](const RecordIndex &index, const std::stop_token &stop) {
        const auto counted
            = std::make_shared<const Counted>(countFor(question, wantsCoverage, index, files, stop));
        return std::function<void()>([counted, use] { use(*counted); });
    });
}

} // namespace quorvin
